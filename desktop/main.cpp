// quor: the host on the desktop.
#include "desktop/options.h"
#include "desktop/program.h"
#include "desktop/window/theme.h"
#include "host/sys/language_choice.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"
#include "host/texts/window.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

using namespace quor;

constexpr int kNoDisplay = 3;

void print(std::FILE* stream, const ZrString& text) { std::fputs(toUtf8(text).c_str(), stream); }

// The toolkit would end the program without a word that a person understands.
bool hasDisplay(int count, char** arguments) {
    for (int i = 1; i < count; ++i)
        if (std::string_view(arguments[i]).starts_with("-platform"))
            return true;
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    return false;
}

void chooseLanguage() {
    SettingsStore settings;
    setLanguage(sys::languageOf(settings) == L"en" ? Language::English : Language::Chinese);
}

int runProgram(QApplication& application, desktop::Options options) {
    desktop::ProgramOptions program;
    program.drawings = std::move(options.drawings);
    program.scripts = std::move(options.scripts);
    program.session.language = language() == Language::English ? L"en" : L"zh";
    program.desktopIsDark = desktop::isDark(QApplication::palette());
    if (!options.modules.empty())
        program.modules = std::move(options.modules);
    QApplication::setStyle("Fusion");
    desktop::Program running(std::move(program));
    QTimer::singleShot(0, &application, [&] {
        running.run();
        QApplication::quit();
    });
    return QApplication::exec();
}

} // namespace

int main(int count, char** arguments) {
    chooseLanguage();
    std::vector<std::string> words(arguments + 1, arguments + (count > 0 ? count : 1));
    auto parsed = desktop::parseOptions(words);
    if (const auto* notice = std::get_if<desktop::Notice>(&parsed); notice != nullptr && notice->status == 0) {
        print(stdout, notice->text);
        return notice->status;
    }
    if (!hasDisplay(count, arguments)) {
        print(stderr, texts::window::kNoDisplay.get());
        return kNoDisplay;
    }
    QApplication application(count, arguments);
    QApplication::setApplicationName("quor");
    QApplication::setDesktopFileName("quor");
    // Without what was meant for the toolkit.
    words.clear();
    for (const QString& word : QApplication::arguments().mid(1))
        words.push_back(word.toStdString());
    parsed = desktop::parseOptions(words);
    if (const auto* notice = std::get_if<desktop::Notice>(&parsed)) {
        print(stderr, notice->text);
        return notice->status;
    }
    return runProgram(application, std::move(std::get<desktop::Options>(parsed)));
}
