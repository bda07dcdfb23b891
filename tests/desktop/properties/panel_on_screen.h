// The Properties palette with lights in a drawing, and a person's keys.
#pragma once

#include "desktop/properties/properties_panel.h"
#include "desktop/properties/row_tree.h"
#include "desktop/properties/value_editor.h"
#include "desktop/qt_text.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"
#include "sdk/ed/selection.h"
#include "sdk/rx/command.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>

namespace quor::desktop {

class PanelOnScreen : public testing::Test {
protected:
    explicit PanelOnScreen(const ZrString& language = L"en") : host({.language = language}) {
        lights = {addLight(L"A"), addLight(L"B"), addLight(L"C")};
        panel = std::make_unique<PropertiesPanel>(host.session(), nullptr);
        panel->resize(320, 620);
        panel->show();
        panel->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel.get()));
    }

    template <class T>
    static ZrDbObjectId add(std::unique_ptr<T> entity) {
        const ZrDbObjectId id = RxCommand::postToDb(*entity, nullptr, nullptr, true);
        static_cast<void>(entity.release()); // the drawing's now
        return id;
    }
    static ZrDbObjectId addLight(const ZrString& name, DrawableType type = DrawableType::kPointLight) {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(name);
        light->setLightType(type);
        return add(std::move(light));
    }
    static void select(const ZrDbObjectIdArray& ids) {
        zredSetImpliedSelection(ids);
        QCoreApplication::processEvents();
    }
    static ZrDbObjectPointer<ZrDbLight> read(ZrDbObjectId id) { return {id, ZrDb::kForRead}; }

    RowTree& tree() { return panel->rows(); }
    ValueEditor* editor() { return tree().editor(); }
    QString shown(std::string_view id) {
        const QTreeWidgetItem* const item = tree().itemOf(id);
        return item == nullptr ? QString() : item->text(1);
    }
    bool has(std::string_view id) { return tree().itemOf(id) != nullptr; }
    // Goes to a row with the keyboard's focus and opens its editor as Enter does.
    void open(std::string_view id) {
        tree().setFocus();
        tree().setCurrentItem(tree().itemOf(id));
        press(Qt::Key_Return);
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static bool hasFocus(const QWidget& widget) { return QApplication::focusWidget() == &widget; }
    QLabel& hint() { return *tree().findChild<QLabel*>("hint"); }
    void click(QTreeWidgetItem* item, int column) {
        const QRect cell = tree().visualRect(tree().indexFromItem(item, column));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, cell.center());
        QCoreApplication::processEvents();
    }
    void takePicture(const QString& name) {
        QDir folder(QString(QUOR_BUILD_DIR) + "/pictures");
        folder.mkpath(".");
        panel->grab().save(folder.filePath(name + ".png"));
    }

    test::TestSession host;
    ZrDbObjectIdArray lights;
    std::unique_ptr<PropertiesPanel> panel;
};

} // namespace quor::desktop
