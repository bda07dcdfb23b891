// Any text typed at the command line, a line an answer: every command must end, and the drawing must still save and
// open. Commands that reach the file system are left out.
#include "host/db/database.h"
#include "host/sys/utf8.h"
#include "tests/support/test_session.h"

#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <string_view>

namespace {

// The fuzzer keeps writing the module's coverage counters after the session has unloaded it: it must stay mapped.
void keepModuleMapped() {
    static void* const kept = dlopen(QUOR_BUILD_DIR "/lib/quor/modules/light.so", RTLD_NOW | RTLD_NODELETE);
    if (kept == nullptr)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using quor::test::TestSession;
    TestSession session;
    if (!session.loadLight(QUOR_BUILD_DIR))
        std::abort();
    keepModuleMapped();
    for (const wchar_t* name :
         {L"SAVE", L"SAVEAS", L"OPEN", L"RECOVER", L"SCRIPT", L"LOADMODULE", L"SETVAR", L"IESINFO"})
        (void)session.session().commands().remove(L"QUOR", name);

    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        session.front().type(quor::fromUtf8(rest.substr(0, end)));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    while (session.session().processor().step() && !session.session().processor().quitRequested()) {
    }

    if (quor::Document* document = session.session().documents().current()) {
        const auto bytes = document->drawing().toBytes();
        if (!bytes.ok() || !quor::db::Database::fromBytes(bytes.value()).ok())
            std::abort();
    }
    return 0;
}
