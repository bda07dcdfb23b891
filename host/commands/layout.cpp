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

int sayWhere(const db::Database& drawing) {
    if (drawing.isModelTab())
        say(texts::kInModelSpace);
    else
        sayShown(drawing.currentViewport() > kSheet ? texts::kInModelOfLayout : texts::kInPaperSpace,
                 drawing.currentLayout());
    return RTNORM;
}

int listLayouts(const db::Database& drawing) {
    const ZrString current = drawing.isModelTab() ? ZrString() : drawing.currentLayout();
    printText(ZrString(L"\n") + (drawing.isModelTab() ? L"* " : L"  ") + texts::kModelTab.get() + L"\n");
    for (const db::LayoutInfo& layout : drawing.layouts())
        printText(ZrString(L"\n") + (equalFolded(layout.name, current) ? L"* " : L"  ") + visibleText(layout.name) +
                  L"\n");
    return RTNORM;
}

int goToModel(db::Database& drawing) {
    if (!drawing.isModelTab())
        drawing.setModelTab(true);
    return sayWhere(drawing);
}

// The model tab goes by its name in either language.
bool isModelName(const ZrString& name) {
    return equalFolded(name, texts::kModelTab.english) || equalFolded(name, texts::kModelTab.chinese);
}

// Names are answered in any case.
bool switchTo(db::Database& drawing, const ZrString& name) {
    const std::vector<db::LayoutInfo> layouts = drawing.layouts();
    const auto layout = std::ranges::find_if(layouts, [&](const auto& l) { return equalFolded(l.name, name); });
    if (layout == layouts.end() && isModelName(name)) {
        goToModel(drawing);
        return true;
    }
    if (layout == layouts.end() || !drawing.setCurrentLayout(layout->name)) {
        sayShown(texts::kNoSuchLayout, shortened(name));
        return false;
    }
    if (drawing.isModelTab())
        drawing.setModelTab(false);
    sayShown(texts::kLayoutNow, layout->name);
    return true;
}

int setLayout(db::Database& drawing) {
    const ZrString current = drawing.isModelTab() ? ZrString(texts::kModelTab.get()) : drawing.currentLayout();
    return askUntilTaken(fillShown(texts::kAskLayoutName, current),
                         [&](const ZrString& name) { return switchTo(drawing, name); });
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
