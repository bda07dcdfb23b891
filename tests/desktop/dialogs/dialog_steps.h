// A person in a dialog that waits: what they do is done one step after the other while the dialog runs.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

namespace quor::desktop::test {

using Step = std::function<void()>;

inline QWidget* openDialog() { return QApplication::activeModalWidget(); }

// Whether the person waits for something that the program does beside them.
inline bool isWaiting = false;

// Whether the person can go on: what is open has the keyboard.
inline bool isReady() {
    if (isWaiting)
        return false;
    return QApplication::activePopupWidget() != nullptr ||
           (openDialog() != nullptr && QApplication::activeWindow() == openDialog() &&
            QApplication::focusWidget() != nullptr);
}

// A test that would wait for ever fails instead.
constexpr int kPatience = 5000;
inline void giveUp(QWidget* dialog) {
    ADD_FAILURE() << "the dialog waits for more than the steps of the test";
    while (dialog != nullptr && openDialog() != nullptr)
        openDialog()->hide();
}
inline void watch() {
    QTimer::singleShot(kPatience, qApp, [dialog = QPointer(openDialog())] {
        if (dialog != nullptr && dialog->isVisible())
            giveUp(dialog);
    });
}

// Does the steps in the event loop of whatever waits there.
inline void later(std::vector<Step> steps, int waited = 0) {
    if (steps.empty()) {
        watch();
        return;
    }
    QTimer::singleShot(1, qApp, [steps = std::move(steps), waited]() mutable {
        if (!isReady() && waited < kPatience) {
            // Where there is no window manager, nobody gives the keyboard back to what was below.
            if (openDialog() != nullptr && !isWaiting)
                openDialog()->activateWindow();
            later(std::move(steps), waited + 1);
            return;
        }
        const Step step = std::move(steps.front());
        steps.erase(steps.begin());
        later(std::move(steps));
        step();
    });
}

// A key in the widget that has the keyboard.
inline Step press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [=] {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : openDialog(), key, modifiers);
    };
}

inline Step type(const QString& text) {
    return [=] { QTest::keyClicks(QApplication::focusWidget(), text); };
}

inline Step until(const std::function<bool()>& condition) {
    return [=] {
        isWaiting = true;
        EXPECT_TRUE(QTest::qWaitFor(condition));
        isWaiting = false;
    };
}

// Keeps a picture of the open dialog among the test output.
inline void keepPicture(QWidget& widget, const QString& name) {
    const QDir folder(QString(QUOR_BUILD_DIR) + "/pictures");
    folder.mkpath(".");
    widget.grab().save(folder.filePath("dialog_" + name + ".png"));
}

} // namespace quor::desktop::test
