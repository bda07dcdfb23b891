#include "host/commands/layer_list.h"

#include "host/props/layer_rows.h"
#include "host/props/value_text.h"
#include "host/sys/text_width.h"
#include "host/sys/visible_text.h"
#include "host/texts/commands.h"
#include "sdk/ed/print.h"
#include "sdk/rx/result_codes.h"

#include <algorithm>

namespace quor::commands {

namespace {

struct Line {
    ZrString name;
    ZrString state;
    ZrString color;
};

ZrString stateText(const props::LayerRow& layer) {
    ZrString state = (layer.isOn ? texts::kLayerOn : texts::kLayerOff).get();
    if (layer.isFrozen)
        state += ZrString(L" ") + texts::kLayerFrozen.get();
    if (layer.isLocked)
        state += ZrString(L" ") + texts::kLayerLocked.get();
    return state;
}

} // namespace

int listLayers(db::Database& drawing) {
    std::vector<Line> lines = {
        {texts::kLayerColumnName.get(), texts::kLayerColumnState.get(), texts::kLayerColumnColor.get()}};
    for (const props::LayerRow& layer : props::layersOf(drawing))
        lines.push_back({visibleText(layer.name), stateText(layer), colorText(layer.color)});
    int nameWidth = 0;
    int stateWidth = 0;
    for (const Line& line : lines) {
        nameWidth = std::max(nameWidth, columnsOf(line.name));
        stateWidth = std::max(stateWidth, columnsOf(line.state));
    }
    for (const Line& line : lines)
        printText(L"\n  " + padRight(line.name, nameWidth) + L"  " + padRight(line.state, stateWidth) + L"  " +
                  line.color + L"\n");
    return RTNORM;
}

} // namespace quor::commands
