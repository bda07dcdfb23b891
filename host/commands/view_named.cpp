#include "host/commands/commands.h"
#include "host/commands/view.h"
#include "host/db/view_records.h"
#include "host/document.h"
#include "host/gs/standard_views.h"
#include "host/gs/view_record.h"
#include "host/props/layer_name.h"
#include "host/sys/case_fold.h"
#include "host/texts/view.h"

namespace quor::commands {

namespace {

using gs::View;

struct Call {
    View& view;
    Document& document;
    [[nodiscard]] db::Database& drawing() const { return document.drawing(); }
};

int listViews(const Call& call) {
    ZrString standard;
    for (const gs::StandardView& each : gs::standardViews())
        standard += (standard.empty() ? L"" : L", ") + ZrString(each.name);
    sayShown(texts::kStandardViews, standard);
    ZrString named;
    for (const db::ViewData& each : db::viewsOf(call.drawing()))
        named += (named.empty() ? L"" : L", ") + each.name;
    if (named.empty())
        say(texts::kNoNamedViews);
    else
        sayShown(texts::kNamedViews, named);
    return RTNORM;
}

// A standard view shows everything.
int restore(const Call& call, const gs::StandardView& standard) {
    const gs::Camera turned = lookingAlong(call.view.camera(), standard.backward);
    call.view.setCamera(fitted(turned, call.view.size(), call.view.extents()));
    return RTNORM;
}

int restore(const Call& call, const ZrString& name) {
    if (const gs::StandardView* const standard = gs::findStandardView(name))
        return restore(call, *standard);
    const auto named = db::findView(call.drawing(), name);
    if (!named)
        return failWith(texts::kNoSuchView, name);
    const auto camera = gs::cameraOf(*named);
    if (!camera)
        return failWith(texts::kUnusableView, named->name);
    call.view.setCamera(*camera);
    return RTNORM;
}

int restoreNamed(const Call& call) {
    const auto name = askLine(texts::kAskViewToRestore.get());
    if (!name)
        return RTCAN;
    return name->empty() ? RTNORM : restore(call, *name);
}

// The command itself makes no undo group, since looking at a drawing does not change it; what it saves is one.
class UndoGroup {
public:
    explicit UndoGroup(db::Database& drawing) : journal_(drawing.journal()) { journal_.begin(L"VIEW"); }
    ~UndoGroup() { journal_.end(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    db::Journal& journal_;
};

// The name of a view of the drawing's own. RTKWORD for one; else how the command ends.
int askOwnName(const Text& prompt, std::optional<ZrString>& name) {
    name = askLine(prompt.get());
    if (!name)
        return RTCAN;
    if (name->empty())
        return RTNORM;
    return gs::findStandardView(*name) != nullptr ? failWith(texts::kStandardViewName, *name) : RTKWORD;
}

int save(const Call& call) {
    std::optional<ZrString> name;
    if (const int result = askOwnName(texts::kAskViewToSave, name); result != RTKWORD)
        return result;
    if (!isLayerName(*name))
        return failWith(texts::kBadViewName, *name, kNotInLayerNames);
    if (db::findView(call.drawing(), *name)) {
        const auto replace = askYesNo(fillShown(texts::kAskReplaceView, *name), false);
        if (!replace || !*replace)
            return replace ? RTNORM : RTCAN;
    }
    const gs::PictureSize size = call.view.size();
    db::ViewData view = gs::viewOf(call.view.camera(), static_cast<double>(size.width) / size.height);
    view.name = *name;
    view.flags = call.drawing().isModelTab() ? 0 : 1;
    const UndoGroup group(call.drawing());
    db::setView(call.drawing(), view);
    sayShown(texts::kViewSaved, *name);
    return RTNORM;
}

int deleteView(const Call& call) {
    std::optional<ZrString> name;
    if (const int result = askOwnName(texts::kAskViewToDelete, name); result != RTKWORD)
        return result;
    const UndoGroup group(call.drawing());
    if (!db::eraseView(call.drawing(), *name))
        return failWith(texts::kNoSuchView, *name);
    sayShown(texts::kViewDeleted, *name);
    return RTNORM;
}

struct Option {
    const wchar_t* keyword;
    int (*run)(const Call&);
};
constexpr Option kOptions[] = {
    {L"?", listViews},
    {L"Restore", restoreNamed},
    {L"Save", save},
    {L"Delete", deleteView},
};
constexpr const wchar_t* kKeywords = L"? Restore Save Delete Top Bottom Front BAck Left RIght SWiso SEiso NEiso NWiso";

} // namespace

int view(Session& session) {
    View* const shown = viewFor(session, L"VIEW");
    if (shown == nullptr)
        return RTERROR;
    const Call call{*shown, *session.documents().current()};
    armKeywords(RSG_OTHER, kKeywords);
    ZrString answer;
    const int result = zredGetKword(texts::kAskView.get(), answer);
    if (result == RTNONE)
        return listViews(call);
    if (result != RTNORM && result != RTKWORD)
        return result;
    for (const Option& option : kOptions)
        if (answer == option.keyword)
            return option.run(call);
    // What is left is the name of a view.
    return restore(call, answer);
}

} // namespace quor::commands
