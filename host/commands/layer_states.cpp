#include "host/commands/layer_states.h"

#include "host/commands/ask.h"
#include "host/commands/wildcard.h"
#include "host/props/layer_rows.h"
#include "host/props/value_input.h"
#include "host/sys/text_width.h"
#include "host/sys/trim.h"
#include "host/texts/commands.h"

#include <algorithm>
#include <iterator>

namespace quor::commands {

namespace {

using props::LayerRow;
using props::Refusal;

struct Option {
    const wchar_t* keyword;
    const Text& question;
    const Text& done; // how many layers it was done to
    Refusal (*change)(ZrDbObjectId layer);
};

const Option kOptions[] = {
    {L"ON", texts::kAskLayersOn, texts::kLayersOn, [](ZrDbObjectId id) { return props::setLayerOn(id, true); }},
    {L"OFF", texts::kAskLayersOff, texts::kLayersOff, [](ZrDbObjectId id) { return props::setLayerOn(id, false); }},
    {L"Freeze", texts::kAskLayersFreeze, texts::kLayersFrozen,
     [](ZrDbObjectId id) { return props::setLayerFrozen(id, true); }},
    {L"Thaw", texts::kAskLayersThaw, texts::kLayersThawed,
     [](ZrDbObjectId id) { return props::setLayerFrozen(id, false); }},
    {L"LOck", texts::kAskLayersLock, texts::kLayersLocked,
     [](ZrDbObjectId id) { return props::setLayerLocked(id, true); }},
    {L"Unlock", texts::kAskLayersUnlock, texts::kLayersUnlocked,
     [](ZrDbObjectId id) { return props::setLayerLocked(id, false); }},
};

// The layers that a list of names means, each once, in the order of the drawing.
std::vector<LayerRow> layersNamed(db::Database& drawing, std::wstring_view names) {
    std::vector<LayerRow> layers = props::layersOf(drawing);
    std::vector<bool> meant(layers.size(), false);
    while (!names.empty()) {
        const std::size_t comma = std::min(names.find(L','), names.size());
        const std::wstring_view pattern = trimmed(names.substr(0, comma));
        for (std::size_t i = 0; i < layers.size(); ++i)
            meant[i] = meant[i] || (!pattern.empty() && matchesPattern(layers[i].name, pattern));
        names.remove_prefix(std::min(comma + 1, names.size()));
    }
    std::size_t place = 0;
    std::erase_if(layers, [&](const LayerRow&) { return !meant[place++]; });
    return layers;
}

// Changes each; says why one was not changed, and how many were. False when none was.
bool changeEach(const std::vector<LayerRow>& layers, const Text& done, const auto& change) {
    int changed = 0;
    for (const LayerRow& layer : layers) {
        const Refusal refusal = change(layer.id);
        if (refusal)
            printText(L"\n" + visibleText(*refusal) + L"\n");
        else
            ++changed;
    }
    if (changed > 0)
        say(done, changed);
    return changed > 0;
}

int askLayers(db::Database& drawing, const ZrString& prompt, const Text& done, const auto& change) {
    return askUntilTaken(prompt, [&](const ZrString& names) {
        const std::vector<LayerRow> layers = layersNamed(drawing, names);
        if (!layers.empty())
            return changeEach(layers, done, change);
        sayShown(texts::kNoLayerMatches, shortened(names));
        return false;
    });
}

} // namespace

int changeLayers(db::Database& drawing, const ZrString& keyword) {
    const Option* const option =
        std::ranges::find_if(kOptions, [&](const Option& each) { return keyword == each.keyword; });
    return option == std::end(kOptions) ? RTNORM
                                        : askLayers(drawing, option->question.get(), option->done, option->change);
}

int colorLayers(db::Database& drawing) {
    std::optional<ZrCmColor> color;
    const int asked = askUntilTaken(texts::kAskLayerColor.get(), [&](const ZrString& typed) {
        color = props::parseColor(typed, false);
        if (!color)
            sayShown(texts::kBadLayerColor, shortened(typed));
        return color.has_value();
    });
    if (asked != RTNORM || !color)
        return asked;
    return askLayers(drawing, fill(texts::kAskLayersColored, color->colorNameForDisplay()), texts::kLayersColored,
                     [&](ZrDbObjectId id) { return props::setLayerColor(id, *color); });
}

} // namespace quor::commands
