// What every object has: layer, colour, visibility.
#include "host/db/database.h"
#include "host/props/kinds.h"
#include "host/props/layer_rows.h"
#include "host/props/value_text.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"
#include "sdk/db/symbol_table.h"
#include "sdk/sys/format.h"

namespace quor::props {

namespace {

using E = const ZrDbEntity&;
using C = const Context&;

bool isOnHiddenLayer(E entity, C) { return entity.layer().starts_with(L'*'); }

std::vector<ZrString> layerNames(C context) {
    std::vector<ZrString> names;
    for (const LayerRow& layer : layersOf(*context.drawing))
        names.push_back(layer.name);
    return names;
}

Refusal writeLayer(ZrDbEntity& entity, const Value& value, C) {
    return refusalOf(entity.setLayer(std::get<ZrString>(value).c_str()));
}

constexpr Property kRows[] = {
    {.id = "kind",
     .group = Group::General,
     .label = texts::kRowKind,
     .read = [](E entity, C) -> Value { return kindName(entity); }},
    {.id = "handle",
     .group = Group::General,
     .label = texts::kListHandle,
     .read = [](E entity, C) -> Value { return zrFormat(L"%X", {entity.handle().value()}); }},
    {.id = "layer",
     .group = Group::General,
     .label = texts::kListLayer,
     .editor = Editor::Choice,
     .list = layerNames,
     .read = [](E entity, C) -> Value { return entity.layer(); },
     .write = writeLayer,
     .isFixed = isOnHiddenLayer},
    {.id = "color",
     .group = Group::General,
     .label = texts::kListColor,
     .editor = Editor::Color,
     .read = [](E entity, C) -> Value { return entity.color(); },
     .write = [](ZrDbEntity& entity, const Value& value,
                 C) { return refusalOf(entity.setColor(std::get<ZrCmColor>(value))); },
     .mayFollow = true},
    {.id = "linetype",
     .group = Group::General,
     .label = texts::kListLinetype,
     .read = [](E entity, C) -> Value { return linetypeText(entity.linetype()); }},
    {.id = "lineweight",
     .group = Group::General,
     .label = texts::kListLineweight,
     .read = [](E entity, C) -> Value { return lineweightText(entity.lineWeight()); }},
    {.id = "visible",
     .group = Group::General,
     .label = texts::kListVisible,
     .editor = Editor::YesNo,
     .choices = texts::kNoYes,
     .read = [](E entity, C) -> Value { return entity.visibility() == ZrDb::kVisible; },
     .write =
         [](ZrDbEntity& entity, const Value& value, C) {
             return refusalOf(entity.setVisibility(std::get<bool>(value) ? ZrDb::kVisible : ZrDb::kInvisible));
         }},
};

} // namespace

std::span<const Property> generalProperties() { return kRows; }

} // namespace quor::props
