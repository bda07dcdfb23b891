#include "tests/desktop/properties/panel_on_screen.h"

#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"

#include <QAbstractItemView>
#include <QColorDialog>
#include <QKeyEvent>
#include <QToolButton>

namespace quor::desktop {
namespace {

using Panel = PanelOnScreen;

TEST_F(Panel, ShowsTheDrawingsSettingsWhileNothingIsSelected) {
    EXPECT_EQ(panel->kinds().currentText(), "No selection");
    EXPECT_EQ(shown("drawing.insertionunits"), "millimeters");
}

TEST_F(Panel, FollowsTheSelection) {
    select({lights[0]});

    EXPECT_EQ(panel->kinds().currentText(), "Light (1)");
    EXPECT_EQ(shown("light.name"), "A");
    EXPECT_EQ(shown("photometric.candela"), "1500 cd");

    select(lights);
    EXPECT_EQ(shown("light.name"), "*VARIES*");
}

TEST_F(Panel, IntensityOfThreeLightsIsChangedWithTheKeyboardAndUndoneAtOnce) {
    select(lights);

    open("light.intensity");
    type("2.5");
    press(Qt::Key_Return);

    for (const ZrDbObjectId light : lights)
        EXPECT_EQ(read(light)->intensity(), 2.5);
    EXPECT_EQ(shown("light.intensity"), "2.5");
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(hasFocus(tree()));

    host.run({L"U"});
    for (const ZrDbObjectId light : lights)
        EXPECT_EQ(read(light)->intensity(), 1);
    select(lights);
    EXPECT_EQ(shown("light.intensity"), "1");
}

TEST_F(Panel, DeleteOnARowOpensItEmptied) {
    select({lights[0]});
    tree().setFocus();
    tree().setCurrentItem(tree().itemOf("light.name"));
    press(Qt::Key_Delete);

    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "");
    EXPECT_EQ(read(lights[0])->name(), L"A");
}

TEST_F(Panel, DeleteOnAListOpensItAsItIs) {
    select({lights[0]});
    tree().setFocus();
    tree().setCurrentItem(tree().itemOf("light.on"));
    press(Qt::Key_Delete);
    press(Qt::Key_Delete);

    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "on");
}

TEST_F(Panel, TabWithCtrlIsNotForTheEditor) {
    select({lights[0]});
    open("light.name");
    type("Desk");
    press(Qt::Key_Tab, Qt::ControlModifier);

    EXPECT_EQ(tree().currentItem(), tree().itemOf("light.name"));
    EXPECT_EQ(read(lights[0])->name(), L"A");
}

TEST_F(Panel, ClosedEditorIsNotSeenUntilItIsDeleted) {
    select({lights[0]});
    open("light.intensity");
    const QPointer<ValueEditor> closed = editor();
    tree().giveUp();

    ASSERT_NE(closed, nullptr);
    EXPECT_FALSE(closed->isVisible());
}

TEST_F(Panel, EscapeGivesUp) {
    select(lights);
    open("light.intensity");
    type("7");

    press(Qt::Key_Escape);

    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(read(lights[0])->intensity(), 1);
    EXPECT_TRUE(hasFocus(tree()));
}

TEST_F(Panel, TabAppliesAndGoesOnToTheNextRowThatCanBeChanged) {
    select({lights[0]});
    open("light.name");
    type("Desk");

    press(Qt::Key_Tab); // over the kind, which cannot be changed

    EXPECT_EQ(read(lights[0])->name(), L"Desk");
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(tree().currentItem(), tree().itemOf("light.on"));

    press(Qt::Key_Backtab);
    EXPECT_EQ(tree().currentItem(), tree().itemOf("light.name"));
    EXPECT_EQ(editor()->text(), "Desk");
}

TEST_F(Panel, WrongInputIsSaidBesideTheEditorWhichStaysOpen) {
    select(lights);
    open("light.intensity");
    type("-1");

    press(Qt::Key_Return);

    ASSERT_NE(editor(), nullptr);
    EXPECT_TRUE(editor()->isWrong());
    EXPECT_TRUE(hint().isVisible());
    EXPECT_EQ(hint().text(), "The value must be 0 or more.");
    EXPECT_EQ(editor()->accessibleDescription(), hint().text());
    EXPECT_EQ(editor()->text(), "-1");
    EXPECT_EQ(read(lights[0])->intensity(), 1);
    takePicture("properties_wrong_input");

    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_FALSE(editor()->isWrong());
    press(Qt::Key_Return);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_FALSE(hint().isVisible());
    EXPECT_EQ(read(lights[1])->intensity(), 1);
}

TEST_F(Panel, InputThatIsLeftIsTaken) {
    select(lights);
    open("light.intensity");
    type("3");

    panel->kinds().setFocus();

    EXPECT_EQ(read(lights[2])->intensity(), 3);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(hasFocus(panel->kinds()));
}

TEST_F(Panel, SelectionThatChangesWhileEditingGivesTheInputUp) {
    select({lights[0]});
    open("light.intensity");
    type("3");

    select({lights[1]});

    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(read(lights[0])->intensity(), 1);
    EXPECT_EQ(read(lights[1])->intensity(), 1);
    EXPECT_EQ(shown("light.name"), "B");
}

TEST_F(Panel, InputOfAnOldSelectionIsNotTakenForTheNewOne) {
    select({lights[0]});
    open("light.intensity");
    type("3");
    zredSetImpliedSelection({lights[1]}); // the palette has not been told yet

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

    EXPECT_EQ(read(lights[0])->intensity(), 1);
    EXPECT_EQ(read(lights[1])->intensity(), 1);
}

TEST_F(Panel, OtherChangesLeaveTheEditorOpen) {
    select({lights[0]});
    open("light.intensity");
    type("3");

    host.session().variables().set(L"LUPREC", short{2});
    QCoreApplication::processEvents();

    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "3");
}

TEST_F(Panel, ChoicesAreGoneThroughWithTheArrowsAndTakenWithEnter) {
    select(lights);
    open("glyph.display");
    press(Qt::Key_Down);
    EXPECT_EQ(read(lights[0])->glyphDisplay(), GlyphDisplay::kAutomatic);

    press(Qt::Key_Return);

    EXPECT_EQ(read(lights[0])->glyphDisplay(), GlyphDisplay::kOn);
    EXPECT_EQ(shown("glyph.display"), "on");
}

TEST_F(Panel, ClickOpensTheListAndAClickInItApplies) {
    select(lights);
    click(tree().itemOf("light.on"), 1);
    ASSERT_NE(editor(), nullptr);
    auto* const list = editor()->findChild<QComboBox*>();
    ASSERT_TRUE(list->view()->isVisible());

    const QModelIndex off = list->model()->index(0, 0);
    QTest::mouseMove(list->view()->viewport(), list->view()->visualRect(off).center());
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a release too soon belongs to the click that opened it
    QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, list->view()->visualRect(off).center());
    QCoreApplication::processEvents();

    EXPECT_FALSE(read(lights[0])->isOn());
    EXPECT_EQ(shown("light.on"), "off");
}

TEST_F(Panel, ReadOnlyRowsOpenNoEditor) {
    select(lights);
    open("light.name");
    EXPECT_EQ(editor(), nullptr);
    open("handle");
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(Panel, ColoursAreTypedOrChosen) {
    select(lights);
    open("light.color");
    press(Qt::Key_A, Qt::ControlModifier);
    type("10,20,30");
    press(Qt::Key_Return);
    EXPECT_EQ(read(lights[0])->lightColor(), ZrCmColor::fromRGB(10, 20, 30));

    open("light.color");
    auto* const list = editor()->findChild<QComboBox*>();
    Q_EMIT list->activated(list->count() - 1);
    auto* const dialog = editor()->findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->currentColor(), QColor(10, 20, 30));
    dialog->setCurrentColor(QColor(1, 2, 3));
    dialog->accept();
    QCoreApplication::processEvents();

    EXPECT_EQ(read(lights[2])->lightColor(), ZrCmColor::fromRGB(1, 2, 3));
}

TEST_F(Panel, WebFilesAreLookedFor) {
    const ZrDbObjectId web = addLight(L"Web", DrawableType::kWebLight);
    select({web});
    const QString file = QString(QUOR_TEST_DATA) + "/../../resources/webs/wall_washer.ies";
    host.front().choose(fromQt(file));

    open("web.file");
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "browse");
    press(Qt::Key_Return);

    EXPECT_EQ(toQt(read(web)->webFile()), file);
    EXPECT_TRUE(host.front().lastFileQuestion()->previews);
}

TEST_F(Panel, CancelledSearchForAFileKeepsTheEditor) {
    const ZrDbObjectId web = addLight(L"Web", DrawableType::kWebLight);
    select({web});
    host.front().choose(std::nullopt);

    open("web.file");
    press(Qt::Key_F4);

    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(read(web)->webFile(), L"");
}

TEST_F(Panel, KindsAreChosen) {
    const ZrDbObjectId line = add(std::make_unique<ZrDbLine>(ZrGePoint3d(0, 0, 0), ZrGePoint3d(1, 0, 0)));
    select({line, lights[0], lights[1]});
    EXPECT_EQ(panel->kinds().count(), 3);
    EXPECT_FALSE(has("light.intensity"));

    panel->kinds().setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);

    EXPECT_EQ(panel->kinds().currentText(), "Light (2)");
    EXPECT_TRUE(has("light.intensity"));
}

TEST_F(Panel, GroupsThatAreClosedStayClosed) {
    select(lights);
    QTreeWidgetItem* const group = tree().itemOf("geometry.position.x")->parent();
    tree().setFocus();
    tree().setCurrentItem(group);
    press(Qt::Key_Return);
    EXPECT_FALSE(group->isExpanded());

    select({});
    select({lights[0]});
    EXPECT_FALSE(tree().itemOf("geometry.position.x")->parent()->isExpanded());
    EXPECT_TRUE(tree().itemOf("light.on")->parent()->isExpanded());

    PropertiesPanel other(host.session(), nullptr);
    other.show();
    EXPECT_FALSE(other.rows().itemOf("geometry.position.x")->parent()->isExpanded());
}

TEST_F(Panel, RowKeepsTheKeyboardWhenRowsComeAndGo) {
    select({lights[0]});
    open("attenuation.limits");
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_TRUE(has("attenuation.start"));
    EXPECT_EQ(tree().currentItem(), tree().itemOf("attenuation.limits"));
}

TEST_F(Panel, AnotherDrawingIsShownWhenItBecomesCurrent) {
    select({lights[0]});
    open("light.intensity");
    Document& first = host.document();

    host.session().documents().newDocument();
    QCoreApplication::processEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(panel->kinds().currentText(), "No selection");

    host.session().documents().setCurrent(&first);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown("light.name"), "A");
}

TEST_F(Panel, DrawingThatIsClosedWhileARowIsEditedLeavesAnEmptyPalette) {
    select({lights[0]});
    open("light.intensity");
    type("4");

    host.session().documents().close(host.document());
    QCoreApplication::processEvents();

    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(panel->kinds().currentText(), "No drawing is open");
    EXPECT_EQ(tree().topLevelItemCount(), 0);
}

TEST_F(Panel, ErasedLightTakesItsEditorAlong) {
    select({lights[0]});
    open("light.intensity");

    ZrDbObjectPointer<ZrDbLight>(lights[0], ZrDb::kForWrite)->erase();
    QCoreApplication::processEvents();

    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(has("drawing.layer"));
}

TEST_F(Panel, HiddenPaletteReadsNothingUntilItIsShown) {
    panel->hide();
    select({lights[0]});
    EXPECT_FALSE(has("light.name"));

    panel->show();
    EXPECT_EQ(shown("light.name"), "A");
}

TEST_F(Panel, TypingOnARowIsLeftToOthers) {
    select(lights);
    tree().setFocus();
    tree().setCurrentItem(tree().itemOf("light.intensity"));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_P, Qt::NoModifier, "p");

    QApplication::sendEvent(&tree(), &key);

    EXPECT_FALSE(key.isAccepted());
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(Panel, SettingsOfTheDrawingAreChangedInTheirPlace) {
    open("drawing.lightingunits");
    press(Qt::Key_Up);
    press(Qt::Key_Return);

    EXPECT_EQ(host.session().variables().number(L"LIGHTINGUNITS"), 1);
    EXPECT_EQ(shown("drawing.lightingunits"), "American (foot-candles)");
}

TEST(PanelWithoutASession, GoesQuietly) {
    auto host = std::make_unique<test::TestSession>(test::TestSessionOptions{.language = L"en"});
    auto panel = std::make_unique<PropertiesPanel>(host->session(), nullptr);
    panel->show();

    host.reset();
    QCoreApplication::processEvents();
    panel->refresh();
    panel.reset();

    EXPECT_FALSE(Session::exists());
}

} // namespace
} // namespace quor::desktop
