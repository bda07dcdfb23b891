#include "desktop/front/event_pump.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace quor::desktop {
namespace {

void later(const std::function<void()>& action) { QTimer::singleShot(0, qApp, action); }

// A window with a line that has the keyboard, and a button.
class EventPumpTest : public testing::Test {
protected:
    EventPumpTest() {
        auto* const layout = new QVBoxLayout(&window_);
        layout->addWidget(&line_);
        layout->addWidget(&button_);
        window_.show();
        window_.activateWindow();
        line_.setFocus();
        QTest::qWait(EventPump::kMilliseconds + 20);
    }

    QWidget window_;
    QLineEdit line_;
    QPushButton button_;
    EventPump pump_;
};

TEST_F(EventPumpTest, TimersRunWhileTheHostWorks) {
    bool ran = false;
    later([&] { ran = true; });
    QTest::qSleep(EventPump::kMilliseconds);
    pump_.breathe();
    EXPECT_TRUE(ran);
}

TEST_F(EventPumpTest, BreathsHaveAPauseBetweenThem) {
    QTest::qSleep(EventPump::kMilliseconds);
    pump_.breathe();
    bool ran = false;
    later([&] { ran = true; });
    pump_.breathe();
    EXPECT_FALSE(ran);
}

TEST_F(EventPumpTest, ClicksAreDropped) {
    bool clicked = false;
    QObject::connect(&button_, &QPushButton::clicked, [&] { clicked = true; });
    later([&] { QTest::mouseClick(&button_, Qt::LeftButton); });
    QTest::qSleep(EventPump::kMilliseconds);
    pump_.breathe();
    EXPECT_FALSE(clicked);
}

TEST_F(EventPumpTest, KeysWaitUntilTheyAreGivenBack) {
    later([&] { QTest::keyClicks(&line_, "ab"); });
    QTest::qSleep(EventPump::kMilliseconds);
    pump_.breathe();
    EXPECT_EQ(line_.text(), "");
    pump_.giveBack();
    QApplication::processEvents();
    EXPECT_EQ(line_.text(), "ab");
}

TEST_F(EventPumpTest, EscapeIsKnownAtOnceAndTakesWhatWasTypedBeforeIt) {
    later([&] {
        QTest::keyClicks(&line_, "ab");
        QTest::keyClick(&line_, Qt::Key_Escape);
        QTest::keyClicks(&line_, "c");
    });
    QTest::qSleep(EventPump::kMilliseconds);
    pump_.breathe();
    EXPECT_TRUE(pump_.takeEscape());
    EXPECT_FALSE(pump_.takeEscape());
    pump_.giveBack();
    QApplication::processEvents();
    EXPECT_EQ(line_.text(), "c");
}

} // namespace
} // namespace quor::desktop
