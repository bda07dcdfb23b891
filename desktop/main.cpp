// quor: the host on the desktop.
#include "desktop/options.h"
#include "desktop/program.h"
#include "desktop/qt_text.h"
#include "desktop/window/theme.h"
#include "host/sys/language_choice.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"
#include "host/texts/window.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace {

using namespace quor;

constexpr int kNoDisplay = 3;

void print(std::FILE* stream, const ZrString& text) { std::fputs(toUtf8(text).c_str(), stream); }

int answer(const desktop::Notice& notice) {
    print(notice.status == 0 ? stdout : stderr, notice.text);
    return notice.status;
}

// Behind "--" stand names of files: the toolkit is shown what is before it only.
int countBeforeNames(int count, char** arguments) {
    char** const end = arguments + count;
    return static_cast<int>(
        std::find_if(arguments, end, [](const char* word) { return std::string_view(word) == "--"; }) - arguments);
}

// The toolkit would end the program without a word that a person understands.
bool hasDisplay(std::span<char* const> arguments) {
    const bool names = std::any_of(arguments.begin(), arguments.end(), [](std::string_view word) {
        return word.starts_with("-platform") || word.starts_with("--platform") || word.starts_with("-display") ||
               word.starts_with("--display");
    });
    constexpr std::array variables = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return names || std::any_of(variables.begin(), variables.end(),
                                [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); });
}

// While the toolkit starts: what it dies of is a display that it cannot use.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg)
        return;
    print(stderr, fill(texts::window::kDisplayRefused, desktop::fromQt(message)));
    std::fflush(stderr);
    std::_Exit(kNoDisplay);
}

// Without a display that answers, the toolkit may take one of its own that nobody sees, unless it was told which.
bool isSeen(std::span<char* const> arguments) {
    const auto isChoice = [](std::string_view word) { return word.find("-platform") != std::string_view::npos; };
    const QString platform = QApplication::platformName();
    return platform == "xcb" || platform.startsWith("wayland") || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ||
           std::any_of(arguments.begin(), arguments.end(), isChoice);
}

Language usualLanguage() {
    SettingsStore settings;
    return sys::languageOf(settings) == L"en" ? Language::English : Language::Chinese;
}

int runProgram(desktop::Options options) {
    desktop::ProgramOptions program;
    program.drawings = std::move(options.drawings);
    program.scripts = std::move(options.scripts);
    program.session.language = language() == Language::English ? L"en" : L"zh";
    program.desktopIsDark = desktop::isDark(QApplication::palette());
    if (!options.modules.empty())
        program.modules = std::move(options.modules);
    QApplication::setStyle("Fusion");
    desktop::Program running(std::move(program));
    QTimer::singleShot(0, qApp, [&] { QApplication::exit(running.run()); });
    return QApplication::exec();
}

} // namespace

int main(int count, char** arguments) {
    const int before = countBeforeNames(count, arguments);
    const std::vector<std::string> names(arguments + before, arguments + count);
    std::vector<std::string> words(arguments + 1, arguments + count);
    const auto asked = desktop::parseOptions(words, usualLanguage());
    if (const auto* notice = std::get_if<desktop::Notice>(&asked); notice != nullptr && notice->status == 0)
        return answer(*notice);
    if (!hasDisplay({arguments + 1, arguments + before})) {
        print(stderr, texts::window::kNoDisplay.get());
        return kNoDisplay;
    }
    // The toolkit takes away what was meant for it.
    const std::vector<char*> given(arguments + 1, arguments + before);
    int left = before;
    qInstallMessageHandler(endWithoutDisplay);
    const QApplication application(left, arguments);
    qInstallMessageHandler(nullptr);
    if (!isSeen(given)) {
        print(stderr, fill(texts::window::kDisplayRefused, desktop::fromQt(QApplication::platformName())));
        return kNoDisplay;
    }
    QApplication::setApplicationName("quor");
    QApplication::setDesktopFileName("quor");
    words.assign(arguments + 1, arguments + left);
    words.insert(words.end(), names.begin(), names.end());
    auto parsed = desktop::parseOptions(words, language());
    if (const auto* notice = std::get_if<desktop::Notice>(&parsed))
        return answer(*notice);
    return runProgram(std::move(std::get<desktop::Options>(parsed)));
}
