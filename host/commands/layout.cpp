#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/text_width.h"
#include "host/texts/commands.h"

#include <algorithm>

namespace quor::commands {

namespace {

constexpr int kSheet = 1;         // CVPORT of a layout's own paper space
constexpr int kFirstViewport = 2; // of the model as it is seen through the sheet
const wchar_t* const kModelName = L"Model";

int sayWhere(const db::Database& drawing) {
    if (drawing.isModelTab())
        say(texts::kInModelSpace);
    else
        say(drawing.currentViewport() > kSheet ? texts::kInModelOfLayout : texts::kInPaperSpace,
            drawing.currentLayout());
    return RTNORM;
}

int listLayouts(const db::Database& drawing) {
    const ZrString current = drawing.isModelTab() ? ZrString() : drawing.currentLayout();
    printText(ZrString(L"\n") + (drawing.isModelTab() ? L"* " : L"  ") + texts::kModelTab.get() + L"\n");
    for (const db::LayoutInfo& layout : drawing.layouts())
        printText(ZrString(L"\n") + (equalFolded(layout.name, current) ? L"* " : L"  ") + layout.name + L"\n");
    return RTNORM;
}

int goToModel(db::Database& drawing) {
    if (!drawing.isModelTab())
        drawing.setModelTab(true);
    return sayWhere(drawing);
}

// The name is answered in any case; the model tab goes by its name in either language.
int setLayout(db::Database& drawing) {
    const ZrString shown = drawing.isModelTab() ? ZrString(texts::kModelTab.get()) : drawing.currentLayout();
    const std::optional<ZrString> answer = askLine(fill(texts::kAskLayoutName, shown));
    if (!answer)
        return RTCAN;
    if (answer->empty())
        return RTNORM;
    const std::vector<db::LayoutInfo> layouts = drawing.layouts();
    const auto layout = std::ranges::find_if(layouts, [&](const auto& l) { return equalFolded(l.name, *answer); });
    if (layout == layouts.end()) {
        const bool isModel = equalFolded(*answer, kModelName) || *answer == texts::kModelTab.get();
        return isModel ? goToModel(drawing) : failWith(texts::kNoSuchLayout, shortened(*answer));
    }
    if (!drawing.setCurrentLayout(layout->name))
        return failWith(texts::kNoSuchLayout, shortened(*answer));
    if (drawing.isModelTab())
        drawing.setModelTab(false);
    say(texts::kLayoutNow, layout->name);
    return RTNORM;
}

int setViewport(Session& session, const wchar_t* command, int viewport) {
    db::Database& drawing = session.documents().current()->drawing();
    if (drawing.isModelTab())
        return failWith(texts::kNotInModelTab, command);
    if ((drawing.currentViewport() > kSheet) != (viewport > kSheet))
        drawing.setCurrentViewport(viewport);
    return sayWhere(drawing);
}

} // namespace

int layout(Session& session) {
    db::Database& drawing = session.documents().current()->drawing();
    armKeywords(0, L"List Set");
    ZrString keyword;
    const int result = zredGetKword(texts::kAskLayout.get(), keyword);
    if (result == RTNORM && keyword == L"List")
        return listLayouts(drawing);
    return result == RTNORM || result == RTNONE ? setLayout(drawing) : result;
}

int model(Session& session) { return goToModel(session.documents().current()->drawing()); }

// From the model tab to the sheet of the layout that was last in use; in a layout, to its sheet.
int paper(Session& session) {
    db::Database& drawing = session.documents().current()->drawing();
    if (drawing.layouts().empty())
        return failWith(texts::kNoLayouts);
    if (drawing.isModelTab())
        drawing.setModelTab(false);
    return setViewport(session, L"PAPER", kSheet);
}

int modelInLayout(Session& session) { return setViewport(session, L"MSPACE", kFirstViewport); }
int paperInLayout(Session& session) { return setViewport(session, L"PSPACE", kSheet); }

} // namespace quor::commands
