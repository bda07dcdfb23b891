// The palette beside a command line: while a question of a command is open, nothing can be changed.
#include "desktop/front/desktop_front_end.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/properties/row_tree.h"
#include "desktop/properties/value_editor.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

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
        person_.does([=, this] { panel_->rows().edit(panel_->rows().itemOf(id), false); });
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

TEST(PropertiesOfAProgram, StayWhileTheProgramEnds) {
    std::unique_ptr<PropertiesPanel> panel;
    test::withProgram(test::usualOptions(), [&](Person& person) {
        person.does([&] {
            panel = std::make_unique<PropertiesPanel>(person.program().session(), nullptr);
            panel->show();
            panel->rows().edit(panel->rows().itemOf("drawing.lightingunits"), false);
        });
    });
    QCoreApplication::processEvents();

    EXPECT_FALSE(Session::exists());
    panel->refresh();
}

} // namespace
} // namespace quor::desktop
