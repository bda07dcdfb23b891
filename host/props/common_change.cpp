#include "host/props/common_change.h"

#include "host/props/layer_rows.h"
#include "host/props/value_input.h"
#include "host/sys/trim.h"
#include "host/texts/properties.h"
#include "sdk/sys/format.h"

#include <algorithm>

namespace quor::props {

namespace {

Refusal writeAll(const ZrDbObjectIdArray& ids, const Property& property, const Value& value, const Context& context) {
    for (const ZrDbObjectId id : ids) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForWrite);
        if (!entity)
            return fill(texts::kObjectIsInUse, zrFormat(L"%X", {id.handle().value()}));
        if (property.read(*entity, context) == value)
            continue;
        if (Refusal refusal = property.write(*entity, value, context))
            return refusal;
    }
    return std::nullopt;
}

std::size_t lockedObjects(const ZrDbObjectIdArray& ids) {
    return static_cast<std::size_t>(std::ranges::count_if(ids, [](ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        return entity && isOnLockedLayer(*entity);
    }));
}

} // namespace

Context contextOf(db::Database& drawing, std::size_t objects) {
    return {.drawing = &drawing, .units = photometricUnits(), .several = objects > 1};
}

Refusal changeCommon(const ZrDbObjectIdArray& ids, const Common& common, const ZrString& typed, const Context& context,
                     const Make& make) {
    const Property& property = *common.property;
    if (!isEditable(common, context))
        return fill(texts::kRowIsReadOnly, property.label.get());
    // What is shown may be rounded: left as it is, it changes nothing.
    if (!common.varies && trimmed(typed) == inputText(property, common.value))
        return std::nullopt;
    const Result<Value, ZrString> value = parseValue(property, typed, context);
    if (!value)
        return value.error();
    if (!common.varies && *value == common.value)
        return std::nullopt;
    if (const std::size_t locked = lockedObjects(ids); locked > 0)
        return fill(texts::kObjectsOnLockedLayers, locked);
    return make([&] { return writeAll(ids, property, *value, context); });
}

} // namespace quor::props
