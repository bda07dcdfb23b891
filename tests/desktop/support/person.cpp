#include "tests/desktop/support/person.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/texts/text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>
#include <stdexcept>
#include <thread>

namespace quor::desktop::test {

namespace {

// Longer than anything takes, so that a program that hangs fails its test.
constexpr int kPatience = 60'000;
// The same for its end.
constexpr int kPatienceAtTheEnd = 10'000;

QString screenText;

bool isWaiting(Program& program) {
    return program.front().question() != nullptr || QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr || program.session().processor().quitRequested();
}

} // namespace

void Person::post(const std::function<void()>& action) {
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
}

void Person::inProgram(const std::function<void()>& action) {
    QMetaObject::invokeMethod(qApp, action, Qt::BlockingQueuedConnection);
}

// Two rounds: what was posted is done in the first, what it queued in the second.
void Person::waits() {
    QElapsedTimer clock;
    clock.start();
    int rounds = 0;
    while (rounds < 2) {
        bool waiting = false;
        inProgram([&] { waiting = isWaiting(program_); });
        rounds = waiting ? rounds + 1 : 0;
        if (clock.elapsed() > kPatience)
            throw std::runtime_error("the program does not come back to the person");
        if (!waiting)
            QThread::msleep(1);
    }
}

// What is left for later may leave something for later itself.
void Person::settles() {
    constexpr int kRounds = 5;
    for (int round = 0; round < kRounds && !ended_; ++round) {
        auto isDone = std::make_shared<std::atomic<bool>>(false);
        post([isDone] { QTimer::singleShot(0, qApp, [isDone] { *isDone = true; }); });
        while (!*isDone && !ended_)
            QThread::msleep(1);
    }
    waits();
}

bool Person::sawItEnd() const {
    QElapsedTimer clock;
    clock.start();
    while (!ended_ && clock.elapsed() < kPatienceAtTheEnd)
        QThread::msleep(1);
    return ended_;
}

void Person::does(const std::function<void()>& action) {
    post(action);
    waits();
}

void Person::presses(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    does([=] {
        QWidget* const widget = QApplication::focusWidget();
        QTest::keyClick(widget != nullptr ? widget : QApplication::activeWindow(), key, modifiers);
    });
}

// The first character may take the keyboard along, into another window too.
void Person::types(const QString& line) {
    const auto target = [this]() -> QWidget* {
        if (QWidget* const widget = QApplication::focusWidget())
            return widget;
        return QApplication::activeWindow() != nullptr ? QApplication::activeWindow() : &program_.window();
    };
    if (!line.isEmpty())
        does([=] { QTest::keyClicks(target(), line.first(1)); });
    does([=] {
        QTest::keyClicks(target(), line.sliced(line.isEmpty() ? 0 : 1));
        QTest::keyClick(target(), Qt::Key_Return);
    });
}

void Person::takesPicture(const QString& name, QWidget* widget) {
    inProgram([&] {
        QDir folder(QString(QUOR_BUILD_DIR) + "/pictures");
        folder.mkpath(".");
        QWidget* const shown = widget != nullptr ? widget : &program_.window();
        if (!shown->grab().save(folder.filePath(name + ".png")))
            ADD_FAILURE() << "the picture " << name.toStdString() << " could not be kept";
    });
}

QString Person::screen() {
    return sees([] { return screenText; });
}

ProgramOptions usualOptions() {
    ProgramOptions options;
    options.session.resourceFolder = std::filesystem::path(QUOR_BUILD_DIR) / "share/quor";
    options.session.moduleFolders = {std::filesystem::path(QUOR_BUILD_DIR) / "lib/quor/modules"};
    options.session.language = L"zh";
    return options;
}

int withProgram(ProgramOptions options, const std::function<void(Person&)>& story) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
    qputenv("XDG_STATE_HOME", (home.path() + "/state").toUtf8());
    if (options.session.settingsFile.empty())
        options.session.settingsFile = (home.path() + "/settings.ini").toStdString();
    setLanguage(options.session.language == L"en" ? Language::English : Language::Chinese);
    screenText.clear();
    std::string problem;
    int status = 0;
    {
        Program program(std::move(options));
        QObject::connect(&program.front(), &DesktopFrontEnd::printed, qApp,
                         [](const QString& text) { screenText += text; });
        QObject::connect(&program.front(), &DesktopFrontEnd::questionAnswered, qApp,
                         [](const QString& prompt, const QString& answer) { screenText += prompt + answer + "\n"; });
        Person person(program);
        std::atomic<bool> isTold = false;
        std::thread teller([&] {
            try {
                person.waits();
                story(person);
            } catch (const std::exception& error) {
                problem = error.what();
            }
            QMetaObject::invokeMethod(
                qApp,
                [&] {
                    isTold = true;
                    if (person.hasEnded())
                        return;
                    program.session().processor().requestQuit();
                    program.front().end();
                },
                Qt::QueuedConnection);
        });
        QTimer::singleShot(0, qApp, [&] { QApplication::exit(program.run()); });
        status = QApplication::exec();
        person.markEnded();
        while (!isTold)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        teller.join();
    }
    if (!problem.empty())
        throw std::runtime_error(problem);
    return status;
}

} // namespace quor::desktop::test
