// The palette beside a command line: while a question of a command is open, nothing can be changed.
#include "desktop/commandline/command_line.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/properties/row_tree.h"
#include "desktop/properties/value_editor.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <memory>

namespace quor::desktop {
namespace {

using test::Person;

class PaletteOfAProgram {
public:
    explicit PaletteOfAProgram(Person& person) : person_(person) {
        person.does([&] {
            panel_ = std::make_unique<PropertiesPanel>(person.program().session(), nullptr);
            panel_->show();
            panel_->activateWindow();
        });
    }
    ~PaletteOfAProgram() {
        person_.does([&] { panel_.reset(); });
    }

    void open(std::string_view id) {
        person_.does([=, this] { panel_->rows().beginEdit(panel_->rows().itemOf(id), false); });
    }
    [[nodiscard]] bool hasEditor() {
        return person_.sees([this] { return panel_->rows().editor() != nullptr; });
    }
    void run(const ZrString& line) {
        person_.does([=, this] { person_.program().front().run(line); });
    }
    void escape() {
        person_.does([this] { person_.program().front().escape(); });
    }

private:
    Person& person_;
    std::unique_ptr<PropertiesPanel> panel_;
};

TEST(PropertiesOfAProgram, AreReadOnlyWhileACommandAsks) {
    test::withProgram(test::usualOptions(), [](Person& person) {
        PaletteOfAProgram palette(person);
        palette.open("drawing.lightingunits");
        EXPECT_TRUE(palette.hasEditor());

        palette.run(L"LINE");
        EXPECT_FALSE(palette.hasEditor());
        palette.open("drawing.lightingunits");
        EXPECT_FALSE(palette.hasEditor());

        palette.escape();
        palette.open("drawing.lightingunits");
        EXPECT_TRUE(palette.hasEditor());
    });
}

// In the main window, whose shortcuts come before the keys of its panels.
class PaletteOfTheWindow {
public:
    explicit PaletteOfTheWindow(Person& person)
        : person_(person),
          panel_(person.sees([&] { return person.program().window().findChild<PropertiesPanel*>("properties"); })) {}

    void goesTo(std::string_view id) {
        person_.does([=, this] {
            panel_->rows().setFocus();
            panel_->rows().setCurrentItem(panel_->rows().itemOf(id));
        });
    }
    [[nodiscard]] ValueEditor* editor() {
        return person_.sees([this] { return panel_->rows().editor(); });
    }
    [[nodiscard]] int editorsSeen() {
        return person_.sees([this] {
            const QList<ValueEditor*> all = panel_->rows().findChildren<ValueEditor*>();
            return static_cast<int>(std::ranges::count_if(all, &ValueEditor::isVisible));
        });
    }

private:
    Person& person_;
    PropertiesPanel* panel_;
};

QString title(Person& person) {
    person.settles();
    return person.sees([&] { return person.program().window().windowTitle(); });
}

std::size_t objects(Person& person) {
    return person.sees(
        [&] { return ed::entitiesOfCurrentSpace(*person.program().session().documents().current()).size(); });
}

TEST(PropertiesInTheWindow, F2OpensTheRowAndNotTheTextWindow) {
    test::withProgram(test::usualOptions(), [](Person& person) {
        PaletteOfTheWindow palette(person);
        palette.goesTo("drawing.lightingunits");
        person.presses(Qt::Key_F2);

        EXPECT_NE(palette.editor(), nullptr);
        EXPECT_FALSE(person.sees([&] { return person.program().window().commandLine().isTextWindowShown(); }));
    });
}

TEST(PropertiesInTheWindow, DeleteErasesNoObject) {
    test::withProgram(test::usualOptions(), [](Person& person) {
        PaletteOfTheWindow palette(person);
        person.types("LINE 0,0 1,1 ");
        person.presses(Qt::Key_A, Qt::ControlModifier);
        person.settles();
        for (const std::string_view row : {"layer", "handle"}) {
            palette.goesTo(row);
            person.presses(Qt::Key_Delete);
            person.presses(Qt::Key_Escape);
        }
        EXPECT_EQ(objects(person), 1U);
    });
}

TEST(PropertiesInTheWindow, ChangeMarksTheDrawing) {
    test::withProgram(test::usualOptions(), [](Person& person) {
        PaletteOfTheWindow palette(person);
        EXPECT_FALSE(title(person).contains('*'));
        palette.goesTo("drawing.lightingunits");
        person.presses(Qt::Key_Return);
        person.presses(Qt::Key_Up);
        person.presses(Qt::Key_Return);

        EXPECT_TRUE(title(person).contains('*'));
    });
}

TEST(PropertiesInTheWindow, CommandTakesWhatIsTypedBeforeItBegins) {
    test::withProgram(test::usualOptions(), [](Person& person) {
        PaletteOfTheWindow palette(person);
        person.types("NEW");
        person.settles();
        palette.goesTo("drawing.lightingunits");
        person.presses(Qt::Key_Return);
        person.presses(Qt::Key_Up);
        person.does([&] { person.program().front().run(L"_CLOSE"); });

        ASSERT_NE(person.sees([] { return QApplication::activeModalWidget(); }), nullptr); // it has changed
        person.presses(Qt::Key_N, Qt::AltModifier);
        person.settles();
        EXPECT_EQ(palette.editorsSeen(), 0);
    });
}

TEST(PropertiesOfAProgram, StayWhileTheProgramEnds) {
    std::unique_ptr<PropertiesPanel> panel;
    test::withProgram(test::usualOptions(), [&](Person& person) {
        person.does([&] {
            panel = std::make_unique<PropertiesPanel>(person.program().session(), nullptr);
            panel->show();
            panel->rows().beginEdit(panel->rows().itemOf("drawing.lightingunits"), false);
        });
    });
    QCoreApplication::processEvents();

    EXPECT_FALSE(Session::exists());
    panel->refresh();
}

} // namespace
} // namespace quor::desktop
