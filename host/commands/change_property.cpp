// CHPROP: what the Properties palette does, on the command line and in scripts.
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/document.h"
#include "host/props/common_change.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/utf8.h"
#include "host/texts/properties.h"
#include "sdk/ed/selection.h"

#include <algorithm>

namespace quor::commands {

namespace {

using props::Common;

// What several objects have in common and can be changed.
class Changeable {
public:
    Changeable(Document& document, ZrDbObjectIdArray ids)
        : document_(document), ids_(std::move(ids)), context_(props::contextOf(document.drawing(), ids_.size())),
          common_(props::readCommon(ids_, context_)) {
        std::erase_if(common_, [&](const Common& each) { return !props::isEditable(each, context_); });
    }

    // By its id, or by its name in the language in use.
    [[nodiscard]] const Common* find(const ZrString& name) const {
        const auto found = std::ranges::find_if(common_, [&](const Common& each) {
            return equalFolded(fromUtf8(each.property->id), name) || equalFolded(each.property->label.get(), name);
        });
        return found != common_.end() ? &*found : nullptr;
    }

    void list() const {
        for (const Common& each : common_)
            printText(L"\n  " + fromUtf8(each.property->id) + L"  " + each.property->label.get() + L": " +
                      visibleText(props::rowOf(each, context_).text) + L"\n");
    }

    [[nodiscard]] ZrString valueOf(const Common& common) const { return props::rowOf(common, context_).text; }

    [[nodiscard]] props::Refusal change(const Common& common, const ZrString& typed) const {
        return props::changeCommon(ids_, common, typed, context_, [this](const std::function<props::Refusal()>& write) {
            props::Refusal refusal = write();
            if (refusal) // all or none
                document_.drawing().journal().rollback();
            return refusal;
        });
    }

    [[nodiscard]] std::size_t count() const { return ids_.size(); }

private:
    Document& document_;
    ZrDbObjectIdArray ids_;
    props::Context context_;
    std::vector<Common> common_;
};

// Until it is one of those that there are; null for Enter and Esc.
const Common* askProperty(const Changeable& objects, int& result) {
    while (true) {
        const std::optional<ZrString> name = askLine(texts::kAskProperty.get());
        result = name ? RTNORM : RTCAN;
        if (!name || name->empty())
            return nullptr;
        if (const Common* const found = objects.find(*name))
            return found;
        if (*name == L"?")
            objects.list();
        else
            sayShown(texts::kNoSuchProperty, *name);
    }
}

} // namespace

int changeProperty(Session& session) {
    ZrDbObjectIdArray ids;
    if (const int result = zredSelect(nullptr, ids); result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    const Changeable objects(*session.documents().current(), std::move(ids));
    int result = RTNORM;
    const Common* const common = askProperty(objects, result);
    if (common == nullptr)
        return result;
    const ZrString label = common->property->label.get();
    return askUntilTaken(fillShown(texts::kAskPropertyValue, label, objects.valueOf(*common)),
                         [&](const ZrString& typed) {
                             if (const props::Refusal refusal = objects.change(*common, typed)) {
                                 printText(L"\n" + visibleText(*refusal) + L"\n");
                                 return false;
                             }
                             sayShown(texts::kPropertyChanged, label, objects.count());
                             return true;
                         });
}

} // namespace quor::commands
