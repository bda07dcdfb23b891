#include "desktop/layers/layers_panel.h"

#include "desktop/layers/layer_table.h"
#include "desktop/qt_text.h"
#include "desktop/window/main_window.h"
#include "desktop/window/theme.h"
#include "host/db/database.h"
#include "host/document.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/ui/user_interface.h"
#include "sdk/db/symbol_table.h"
#include "sdk/ed/selection.h"
#include "tests/desktop/support/person.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <memory>

namespace quor::desktop {
namespace {

class Layers : public testing::Test {
protected:
    explicit Layers(const ZrString& language = L"en") : host({.language = language}) {
        walls = drawing().makeLayer(L"Walls");
        wires = drawing().makeLayer(L"Wires");
        show();
    }
    void show() {
        panel = std::make_unique<LayersPanel>(host.session(), nullptr);
        panel->resize(560, 300);
        panel->show();
        panel->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel.get()));
    }
    db::Database& drawing() { return host.document().drawing(); }
    LayerTable& table() { return panel->table(); }
    static ZrDbObjectPointer<ZrDbLayerTableRecord> read(ZrDbObjectId id) { return {id, ZrDb::kForRead}; }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void goTo(const QString& layer, int column) {
        table().setFocus();
        table().setCurrentCell(table().rowOf(layer), column);
    }
    void click(const QString& layer, int column) {
        const QRect cell = table().visualItemRect(table().item(table().rowOf(layer), column));
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell.center());
        QCoreApplication::processEvents();
    }
    bool isChecked(const QString& layer, int column) {
        return table().item(table().rowOf(layer), column)->checkState() == Qt::Checked;
    }
    template <class T>
    T& part(const char* name) {
        return *panel->findChild<T*>(name);
    }
    QLabel& hint() { return part<QLabel>("hint"); }
    void takePicture(const QString& name) {
        QDir folder(QString(QUOR_BUILD_DIR) + "/pictures");
        folder.mkpath(".");
        panel->grab().save(folder.filePath(name + ".png"));
    }

    quor::test::TestSession host;
    ZrDbObjectId walls;
    ZrDbObjectId wires;
    std::unique_ptr<LayersPanel> panel;
};

TEST_F(Layers, AreShownWithTheirStates) {
    ASSERT_EQ(table().rowCount(), 3);
    EXPECT_EQ(table().item(0, LayerTable::Name)->text(), "0");
    EXPECT_FALSE(table().item(0, LayerTable::Current)->text().isEmpty());
    EXPECT_EQ(table().item(1, LayerTable::Name)->text(), "Walls");
    EXPECT_TRUE(table().item(1, LayerTable::Current)->text().isEmpty());
    EXPECT_TRUE(isChecked("Walls", LayerTable::On));
    EXPECT_FALSE(isChecked("Walls", LayerTable::Frozen));
    EXPECT_FALSE(isChecked("Walls", LayerTable::Locked));
    EXPECT_EQ(table().item(1, LayerTable::Color)->text(), "White");
}

TEST_F(Layers, HiddenOnesAreLeftOut) {
    ZrDbObjectPointer<ZrDbLayerTableRecord>(wires, ZrDb::kForWrite)->setIsHidden(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(table().rowOf("Wires"), -1);
}

TEST_F(Layers, StatesAreChangedByAClickAndUndone) {
    click("Walls", LayerTable::On);
    EXPECT_TRUE(read(walls)->isOff());
    EXPECT_FALSE(isChecked("Walls", LayerTable::On));
    click("Walls", LayerTable::Frozen);
    click("Walls", LayerTable::Locked);
    EXPECT_TRUE(read(walls)->isFrozen());
    EXPECT_TRUE(read(walls)->isLocked());

    host.run({L"U", L"U", L"U"});
    QCoreApplication::processEvents();
    EXPECT_TRUE(isChecked("Walls", LayerTable::On));
    EXPECT_FALSE(read(walls)->isFrozen());
}

TEST_F(Layers, SpaceChangesWhatIsUnderTheKeyboard) {
    goTo("Wires", LayerTable::Name);
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    EXPECT_TRUE(read(wires)->isOff());

    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    EXPECT_TRUE(read(wires)->isLocked());
}

TEST_F(Layers, AllThatAreSelectedChangeAsOneStep) {
    goTo("Walls", LayerTable::On);
    press(Qt::Key_Down, Qt::ShiftModifier);
    const std::size_t depth = drawing().journal().undoDepth();

    press(Qt::Key_Space);

    EXPECT_TRUE(read(walls)->isOff());
    EXPECT_TRUE(read(wires)->isOff());
    EXPECT_EQ(drawing().journal().undoDepth(), depth + 1);
}

TEST_F(Layers, CurrentOneIsNotFrozenAndThePaletteSaysWhy) {
    goTo("0", LayerTable::Frozen);
    press(Qt::Key_Space);

    EXPECT_FALSE(isChecked("0", LayerTable::Frozen));
    EXPECT_TRUE(hint().isVisible());
    EXPECT_TRUE(hint().text().contains("is current"));
    takePicture("layers_refusal");
}

TEST_F(Layers, OneRefusalLeavesAllSelectedAsTheyWere) {
    goTo("0", LayerTable::Frozen);
    press(Qt::Key_A, Qt::ControlModifier);
    goTo("Walls", LayerTable::Frozen);
    table().selectAll();
    const std::size_t depth = drawing().journal().undoDepth();

    press(Qt::Key_Space);

    EXPECT_FALSE(read(walls)->isFrozen());
    EXPECT_EQ(drawing().journal().undoDepth(), depth);
}

TEST_F(Layers, EnterOnTheNameMakesItCurrent) {
    goTo("Walls", LayerTable::Name);
    press(Qt::Key_Return);

    EXPECT_EQ(drawing().interface().currentLayerId(), walls);
    EXPECT_FALSE(table().item(1, LayerTable::Current)->text().isEmpty());
    EXPECT_TRUE(table().item(1, LayerTable::Name)->font().bold());
}

TEST_F(Layers, DoubleClickMakesItCurrent) {
    const QRect cell = table().visualItemRect(table().item(2, LayerTable::Name));
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(drawing().interface().currentLayerId(), wires);
}

TEST_F(Layers, FrozenOneDoesNotBecomeCurrent) {
    ZrDbObjectPointer<ZrDbLayerTableRecord>(walls, ZrDb::kForWrite)->setIsFrozen(true);
    QCoreApplication::processEvents();
    goTo("Walls", LayerTable::Name);

    part<QToolButton>("makeCurrent").click();

    EXPECT_EQ(drawing().interface().currentLayerId(), drawing().interface().layerZeroId());
    EXPECT_TRUE(hint().text().contains("frozen"));
}

TEST_F(Layers, ColourIsChosenInADialog) {
    goTo("Walls", LayerTable::Color);
    press(Qt::Key_Return);
    auto& dialog = part<QColorDialog>("colors");
    dialog.setCurrentColor(QColor(10, 20, 30));
    dialog.accept();
    QCoreApplication::processEvents();

    EXPECT_EQ(read(walls)->color(), ZrCmColor::fromRGB(10, 20, 30));
    EXPECT_EQ(table().item(1, LayerTable::Color)->text(), "10,20,30");
}

TEST_F(Layers, ColourIsTypedAndAcceptedByKeyboardAlone) {
    goTo("Walls", LayerTable::Color);
    press(Qt::Key_Return);
    auto& dialog = part<QColorDialog>("colors");
    auto* const code = dialog.findChild<QLineEdit*>();
    ASSERT_NE(code, nullptr);
    code->setFocus();
    code->selectAll();
    type("#0A141E");
    press(Qt::Key_Return);

    EXPECT_EQ(read(walls)->color(), ZrCmColor::fromRGB(10, 20, 30));
}

TEST_F(Layers, ColourDialogIsLeftWithEsc) {
    const ZrCmColor before = read(walls)->color();
    goTo("Walls", LayerTable::Color);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);

    EXPECT_EQ(read(walls)->color(), before);
}

TEST_F(Layers, FilterLeavesThoseThatHoldItsText) {
    part<QLineEdit>("filter").setFocus();
    type("wi");

    EXPECT_TRUE(table().isRowHidden(table().rowOf("Walls")));
    EXPECT_FALSE(table().isRowHidden(table().rowOf("Wires")));
    drawing().makeLayer(L"Windows");
    QCoreApplication::processEvents();
    EXPECT_FALSE(table().isRowHidden(table().rowOf("Windows")));
    EXPECT_TRUE(table().isRowHidden(table().rowOf("0")));
}

TEST_F(Layers, LayersThatTheFilterHidesAreNotChanged) {
    table().selectAll();
    part<QLineEdit>("filter").setText("Wires");
    goTo("Wires", LayerTable::On);
    table().selectAll();
    press(Qt::Key_Space);

    EXPECT_TRUE(read(wires)->isOff());
    EXPECT_FALSE(read(walls)->isOff());
}

TEST_F(Layers, NewOneIsNamedAndMade) {
    part<QToolButton>("new").click();
    auto& name = part<QLineEdit>("newName");
    ASSERT_TRUE(name.isVisible());
    EXPECT_EQ(name.text(), "Layer1");
    type("walls");
    press(Qt::Key_Return);
    EXPECT_TRUE(hint().text().contains("already a layer"));
    EXPECT_TRUE(name.isVisible());

    name.setText("Lamps");
    press(Qt::Key_Return);

    EXPECT_FALSE(name.isVisible());
    EXPECT_NE(table().rowOf("Lamps"), -1);
    EXPECT_EQ(table().currentRow(), table().rowOf("Lamps"));
    EXPECT_EQ(QApplication::focusWidget(), &table());
}

TEST_F(Layers, EscapeMakesNoNewOne) {
    part<QToolButton>("new").click();
    press(Qt::Key_Escape);

    EXPECT_FALSE(part<QLineEdit>("newName").isVisible());
    EXPECT_EQ(table().rowCount(), 3);
}

TEST_F(Layers, CannotBeChangedWhileACommandRuns) {
    bool wasOff = true;
    bool couldMake = true;
    host.addCommand(L"BUSY", [&] {
        QCoreApplication::processEvents();
        panel->refresh();
        goTo("Walls", LayerTable::On);
        press(Qt::Key_Space);
        wasOff = read(walls)->isOff();
        couldMake = part<QToolButton>("new").isEnabled();
        return RTNORM;
    });
    host.run({L"BUSY"});
    panel->refresh();

    EXPECT_FALSE(wasOff);
    EXPECT_FALSE(couldMake);
    EXPECT_TRUE(part<QToolButton>("new").isEnabled());
}

TEST_F(Layers, AreThoseOfTheCurrentDrawing) {
    host.session().documents().newDocument();
    QCoreApplication::processEvents();
    EXPECT_EQ(table().rowCount(), 1);

    host.session().documents().close(host.document());
    QCoreApplication::processEvents();
    EXPECT_EQ(table().rowCount(), 3);

    host.session().documents().close(host.document());
    QCoreApplication::processEvents();
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_FALSE(part<QToolButton>("new").isEnabled());
}

TEST(LayersWithoutASession, GoQuietly) {
    auto host = std::make_unique<quor::test::TestSession>(quor::test::TestSessionOptions{.language = L"en"});
    auto panel = std::make_unique<LayersPanel>(host->session(), nullptr);
    panel->show();

    host.reset();
    QCoreApplication::processEvents();
    panel->refresh();
    panel.reset();

    EXPECT_FALSE(Session::exists());
}

struct Look {
    const char* name;
    const wchar_t* language;
    bool isDark;
};

class PicturesOfLayers : public Layers, public testing::WithParamInterface<Look> {
protected:
    PicturesOfLayers() : Layers(GetParam().language), before_(QApplication::palette()) {
        panel = nullptr;
        host.session().variables().set(L"COLORTHEME", static_cast<short>(GetParam().isDark ? 0 : 1));
        applyTheme(host.session().ui().service().theme());
        show();
    }
    ~PicturesOfLayers() override {
        panel = nullptr;
        QApplication::setPalette(before_);
        qApp->setStyleSheet({});
    }

private:
    QPalette before_;
};

TEST_P(PicturesOfLayers, ShowStatesAndColours) {
    {
        const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(walls, ZrDb::kForWrite);
        layer->setColor(ZrCmColor::fromIndex(1));
        layer->setIsLocked(true);
    }
    {
        const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(wires, ZrDb::kForWrite);
        layer->setColor(ZrCmColor::fromRGB(90, 160, 220));
        layer->setIsOff(true);
        layer->setIsFrozen(true);
    }
    QCoreApplication::processEvents();
    goTo("Walls", LayerTable::Name);
    takePicture(QString("layers_%1").arg(GetParam().name));
    EXPECT_EQ(table().rowCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(Looks, PicturesOfLayers,
                         testing::Values(Look{"dark_zh", L"zh", true}, Look{"light_zh", L"zh", false},
                                         Look{"dark_en", L"en", true}, Look{"light_en", L"en", false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(LayersInTheWindow, SelectAllIsAboutTheRowsAndDeleteErasesNoObject) {
    test::withProgram(test::usualOptions(), [](test::Person& person) {
        person.types("LINE 0,0 1,1 ");
        person.types("LAYERS");
        auto* const table = person.sees([&] { return person.program().window().findChild<LayerTable*>("layers"); });
        person.does([&] {
            zredSetImpliedSelection(ed::entitiesOfCurrentSpace(*person.program().session().documents().current()));
            table->setFocus();
        });
        person.presses(Qt::Key_Delete);
        person.does([] { zredSetImpliedSelection({}); });
        person.presses(Qt::Key_A, Qt::ControlModifier);

        EXPECT_EQ(person.sees([&] { return table->selectionModel()->selectedRows().size(); }), table->rowCount());
        EXPECT_TRUE(person.sees([] { return zredImpliedSelection().empty(); }));
        EXPECT_EQ(person.sees([&] {
            return ed::entitiesOfCurrentSpace(*person.program().session().documents().current()).size();
        }),
                  1U);
    });
}

} // namespace
} // namespace quor::desktop
