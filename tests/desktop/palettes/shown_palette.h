// The Lights in Model palette on the desktop: a session that answers from a list, a main window, and what a person does
// in the dock. All in one thread; what Qt leaves for later is done by settle().
#pragma once

#include "desktop/palettes/list_view.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/palette_dock.h"
#include "desktop/palettes/palette_host.h"
#include "sdk/db/light.h"
#include "sdk/ui/palette_set_manager.h"
#include "tests/support/test_session.h"

#include <QLineEdit>
#include <QMainWindow>

#include <gtest/gtest.h>

#include <memory>

namespace quor::desktop::test {

using quor::test::ScriptedFrontEnd;
using quor::test::TestSession;

class ShownPalette : public testing::Test {
protected:
    explicit ShownPalette(const ZrString& language = L"zh");
    ~ShownPalette() override;

    // A light in model space, made in a command of its own.
    ZrDbObjectId addLight(const ZrString& name, DrawableType type = DrawableType::kPointLight);
    void show() { session_.run({L"LIGHTLIST"}); }
    // Lights of these names, then LIGHTLIST.
    void showLights(std::initializer_list<const wchar_t*> names);
    // What was left for the event loop.
    static void settle();

    [[nodiscard]] CZrRxPaletteSet& palette();
    [[nodiscard]] CListCtrl& list();
    [[nodiscard]] CWnd& tips();
    [[nodiscard]] PaletteDock& dock() { return *static_cast<PaletteDock*>(widgetOf(palette())); }
    [[nodiscard]] ListView& view() { return *static_cast<ListView*>(widgetOf(list())); }
    [[nodiscard]] QWidget& headings() { return *widgetOf(*list().GetHeaderCtrl()); }

    // In the coordinates of the view's viewport.
    [[nodiscard]] QPoint middleOf(int row);
    [[nodiscard]] QPoint besideRows();
    void click(int row, Qt::KeyboardModifiers held = Qt::NoModifier);
    void rightClick(QPoint at);
    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
    void clickHeading(int column);
    // Gives the keyboard to the list, or to the drawing's own widget.
    void focusList();
    void focusDrawing();

    [[nodiscard]] std::vector<int> selectedRows();
    [[nodiscard]] ZrString names();
    [[nodiscard]] static short lightListState();
    [[nodiscard]] ScriptedFrontEnd& front() { return session_.front(); }

    TestSession session_;
    std::unique_ptr<QMainWindow> main_ = std::make_unique<QMainWindow>();
    QLineEdit* drawing_ = new QLineEdit; // stands for it: what has the keyboard outside of palettes; the window's
    std::unique_ptr<PaletteHost> host_;
    std::vector<ZrDbObjectId> lights_;

private:
    std::function<void()> body_;
};

} // namespace quor::desktop::test
