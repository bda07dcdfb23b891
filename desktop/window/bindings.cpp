#include "desktop/window/bindings.h"

#include "desktop/viewport/viewport.h"
#include "desktop/window/actions.h"
#include "desktop/window/typing.h"
#include "host/sys/system_variables.h"

namespace quor::desktop {

namespace {

// What an action shows, and what choosing it again goes back to.
struct StyleRow {
    const char* action;
    gs::VisualStyle style;
    gs::VisualStyle other;
};
constexpr StyleRow kStyles[] = {
    {"wireframe", gs::VisualStyle::Wireframe, gs::VisualStyle::Wireframe},
    {"shaded", gs::VisualStyle::Shaded, gs::VisualStyle::Wireframe},
    {"interior", gs::VisualStyle::Interior, gs::VisualStyle::Shaded},
};

struct SwitchRow {
    const char* action;
    const wchar_t* variable;
};
constexpr SwitchRow kSwitches[] = {
    {"glyphs", L"LIGHTGLYPHDISPLAY"},
    {"defaultlighting", L"DEFAULTLIGHTING"},
};

struct NumberRow {
    const char* action;
    const wchar_t* variable;
    int value;
};
constexpr NumberRow kNumbers[] = {
    {"unitsgeneric", L"LIGHTINGUNITS", 0}, {"unitsamerican", L"LIGHTINGUNITS", 1}, {"unitssi", L"LIGHTINGUNITS", 2},
    {"themedark", L"COLORTHEME", 0},       {"themelight", L"COLORTHEME", 1},       {"themedesktop", L"COLORTHEME", 2},
};

struct LanguageRow {
    const char* action;
    const wchar_t* language;
};
constexpr LanguageRow kLanguages[] = {{"languagezh", L"zh"}, {"languageen", L"en"}, {"languageauto", L"auto"}};

bool isPerspective(const Viewport& viewport) { return viewport.camera().projection == gs::Projection::Perspective; }

} // namespace

void bindView(Actions& actions, Viewport& viewport) {
    for (const StyleRow& row : kStyles) {
        actions.bind(row.action, [&viewport, &row] {
            viewport.setVisualStyle(viewport.visualStyle() == row.style ? row.other : row.style);
        });
        actions.showState(row.action, [&viewport, &row] { return viewport.visualStyle() == row.style; });
    }
    actions.bind("perspective", [&viewport] {
        gs::Camera camera = viewport.camera();
        camera.projection = isPerspective(viewport) ? gs::Projection::Parallel : gs::Projection::Perspective;
        viewport.setCamera(camera);
    });
    actions.showState("perspective", [&viewport] { return isPerspective(viewport); });
    actions.bind("snap", [&viewport] { viewport.toggleSnaps(); });
    actions.showState("snap", [&viewport] { return viewport.areSnapsOn(); });
    actions.bind("ortho", [&viewport] { viewport.toggleOrtho(); });
    actions.showState("ortho", [&viewport] { return viewport.isOrthoOn(); });
}

void bindVariables(Actions& actions, sys::SystemVariables& variables, Typing& typing) {
    for (const SwitchRow& row : kSwitches) {
        actions.bind(row.action, [&typing, &row] { typing.switchVariable(row.variable); });
        actions.showState(row.action, [&variables, &row] { return variables.number(row.variable) != 0; });
    }
    for (const NumberRow& row : kNumbers)
        actions.showState(row.action, [&variables, &row] { return variables.number(row.variable) == row.value; });
    for (const LanguageRow& row : kLanguages)
        actions.showState(row.action, [&variables, &row] { return variables.text(L"LANGUAGE") == row.language; });
}

} // namespace quor::desktop
