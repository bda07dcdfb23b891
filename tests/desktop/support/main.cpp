// Tests of widgets: without a screen, whatever the machine has.
#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QUOR_TEST_PLATFORM", "offscreen").toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
