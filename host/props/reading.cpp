#include "host/props/reading.h"

#include "host/props/kinds.h"
#include "host/props/value_input.h"
#include "host/texts/properties.h"

namespace quor::props {

namespace {

bool counts(const Property& property, const ZrDbEntity& entity, const Context& context) {
    return property.counts == nullptr || property.counts(entity, context);
}

bool isFixedIn(const Property& property, const ZrDbEntity& entity, const Context& context) {
    return property.isFixed != nullptr && property.isFixed(entity, context);
}

class Reader {
public:
    explicit Reader(const Context& context) : context_(context) {}

    void add(const ZrDbEntity& entity) {
        if (!kind_)
            begin(entity);
        else
            compare(entity);
    }
    std::vector<Common> take() { return std::move(common_); }

private:
    void begin(const ZrDbEntity& entity) {
        kind_ = kindOf(entity);
        for (const std::span<const Property> table : propertiesOf(*kind_))
            for (const Property& property : table)
                if (counts(property, entity, context_))
                    common_.push_back({.property = &property,
                                       .value = property.read(entity, context_),
                                       .isFixed = isFixedIn(property, entity, context_)});
    }

    // Objects of several kinds have the general properties in common.
    void compare(const ZrDbEntity& entity) {
        if (kindOf(entity) != *kind_) {
            std::erase_if(common_, [](const Common& c) { return c.property->group != Group::General; });
            kind_ = EntityKind::Other;
        }
        std::erase_if(common_, [&](const Common& c) { return !counts(*c.property, entity, context_); });
        for (Common& common : common_) {
            if (!common.varies)
                common.varies = common.property->read(entity, context_) != common.value;
            if (!common.isFixed)
                common.isFixed = isFixedIn(*common.property, entity, context_);
        }
    }

    const Context& context_;
    std::optional<EntityKind> kind_;
    std::vector<Common> common_;
};

} // namespace

std::vector<Common> readCommon(const ZrDbObjectIdArray& ids, const Context& context) {
    Reader reader(context);
    for (const ZrDbObjectId id : ids)
        if (const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead); entity)
            reader.add(*entity);
    return reader.take();
}

bool isEditable(const Common& common, const Context& context) {
    return common.property->write != nullptr && !common.isFixed && !(common.property->oneAtATime && context.several);
}

Row rowOf(const Common& common, const Context& context) {
    const Property& property = *common.property;
    Row row{.id = property.id, .group = property.group, .label = property.label.get(), .varies = common.varies};
    row.unit = unitOf(property.quantity, context);
    row.text = common.varies ? ZrString(texts::kVaries.get()) : shownText(property, common.value, context);
    if (!common.varies)
        row.input = inputText(property, common.value);
    const auto* const color = std::get_if<ZrCmColor>(&common.value);
    if (color != nullptr && !common.varies && !color->isByLayer() && !color->isByBlock())
        row.color = *color;
    if (!isEditable(common, context))
        return row;
    row.editor = property.editor;
    row.choices = choicesOf(property, context);
    return row;
}

ZrString headingOf(Group group, bool isWorld) {
    switch (group) {
    case Group::General:
        return texts::kGroupGeneral.get();
    case Group::Light:
        return texts::kGroupLight.get();
    case Group::Photometric:
        return texts::kGroupPhotometric.get();
    case Group::Geometry:
        return (isWorld ? texts::kGroupGeometry : texts::kGroupGeometryUcs).get();
    case Group::Attenuation:
        return texts::kGroupAttenuation.get();
    case Group::Shadows:
        return texts::kGroupShadows.get();
    case Group::Web:
        return texts::kGroupWeb.get();
    case Group::Glyph:
        return texts::kGroupGlyph.get();
    case Group::Drawing:
        break;
    }
    return texts::kGroupDrawing.get();
}

} // namespace quor::props
