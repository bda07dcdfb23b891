// quorc: the host on a terminal, a pipe or a script.
#include "console/exit_status.h"
#include "console/options.h"
#include "console/run_console.h"
#include "console/screen_columns.h"
#include "console/signals.h"
#include "host/sys/language_choice.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"
#include "host/texts/console.h"

#include <cerrno>
#include <cstdio>
#include <exception>
#include <new>
#include <unistd.h>

namespace {

using namespace quor;
using namespace quor::console;

int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return errno;
        bytes.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return 0;
}

Streams ownStreams() {
    Streams streams;
    streams.in = [](char* buffer, std::size_t size) { return ::read(STDIN_FILENO, buffer, size); };
    streams.out = [](std::string_view bytes) { return writeAll(STDOUT_FILENO, bytes); };
    streams.err = [](std::string_view bytes) { return writeAll(STDERR_FILENO, bytes); };
    streams.outputIsScreen = ::isatty(STDOUT_FILENO) == 1;
    if (streams.outputIsScreen)
        streams.columns = screenColumns;
    streams.editsLines = ::isatty(STDIN_FILENO) == 1 && streams.outputIsScreen;
    streams.showsProgress = ::isatty(STDERR_FILENO) == 1;
    return streams;
}

Language usualLanguage() {
    SettingsStore settings;
    return sys::languageOf(settings) == L"en" ? Language::English : Language::Chinese;
}

int run(std::span<const char* const> arguments) {
    const auto parsed = parseOptions(arguments, usualLanguage());
    if (const auto* notice = std::get_if<Notice>(&parsed)) {
        writeAll(notice->status == kSuccess ? STDOUT_FILENO : STDERR_FILENO, toUtf8(notice->text));
        return notice->status;
    }
    Options options = std::get<Options>(parsed);
    options.language = language() == Language::English ? L"en" : L"zh";
    return runConsole(options, ownStreams());
}

} // namespace

int main(int count, char** arguments) {
    signals::install();
    try {
        return run({arguments + 1, arguments + (count > 0 ? count : 1)});
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "quorc: %s\n", toUtf8(texts::console::kOutOfMemory.get()).c_str());
    } catch (const std::exception& error) {
        const ZrString message = fill(texts::console::kInternalError, fromUtf8(error.what()));
        std::fprintf(stderr, "quorc: %s\n", toUtf8(message).c_str());
    }
    return kCommandFailed;
}
