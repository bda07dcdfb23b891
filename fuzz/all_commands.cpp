// Any answers at all commands, typed and from scripts, in either language: every command must end, Esc must lead back
// to the command prompt, no control character may be shown, the light list must have the lights, and every drawing must
// still save and open with all that it held. What is typed stays in a scratch folder, so no command is left out.
#include "fuzz/support/answer_maker.h"
#include "fuzz/support/drawing_state.h"
#include "fuzz/support/failure.h"
#include "fuzz/support/fuzzed_front_end.h"
#include "fuzz/support/palette_check.h"
#include "fuzz/support/scratch.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/sys/utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <dlfcn.h>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace quor;

// Longer ones find nothing that a short one does not, and take their time.
constexpr std::size_t kMostBytes = 1024;

using fuzz::fail;
using fuzz::require;

const std::filesystem::path& moduleFile() {
    static const std::filesystem::path file = QUOR_BUILD_DIR "/lib/quor/modules/light.so";
    return file;
}

fuzz::Scratch& scratch() {
    static fuzz::Scratch folder;
    return folder;
}

void keepFiles() {
    const std::filesystem::path source = QUOR_SOURCE_DIR;
    const std::filesystem::path drawings = source / "tests/data/dxf";
    scratch().keep("r12.dxf", drawings / "ez_ASCII_R12.dxf");
    scratch().keep("old.dxf", drawings / "own/light_2000.dxf");
    scratch().keep("binary.dxf", drawings / "own/light_2000_binary.dxf");
    scratch().keep("lit.dxf", drawings / "own/light_2018.dxf");
    scratch().keep("lamps.dxf", drawings / "own/luminaires.dxf");
    scratch().keep("broken.dxf", drawings / "ez_layout_broken_links.dxf");
    scratch().keep("downlight.ies", source / "resources/webs/downlight.ies");
    scratch().keep("wall_washer.ies", source / "resources/webs/wall_washer.ies");
    scratch().keep("tilted.ies", source / "tests/data/ies/pp_tilt_include_v19.ies");
    scratch().keep("lights.scr", source / "resources/samples/lights.scr");
}

// What the fuzzer is told unless somebody says otherwise. Looking for leaks after each run and weighing every place
// that a run passes take ten times as long as the run; leaks are found at the end as well.
constexpr std::array<const char*, 4> kDefaults{"-detect_leaks=0", "-entropic=0", "-max_len=1024", "-rss_limit_mb=4096"};

bool isGiven(const std::vector<std::string>& arguments, const std::string& flag) {
    const std::string name = flag.substr(0, flag.find('=') + 1);
    return std::any_of(arguments.begin(), arguments.end(), [&](const auto& given) { return given.starts_with(name); });
}

// The fuzzer looks at its folders and writes what it finds from the scratch folder too.
void completeArguments(std::vector<std::string>& arguments) {
    const std::string here = std::filesystem::current_path().string();
    for (std::string& argument : std::span(arguments).subspan(1)) { // behind the program's own name
        const bool isPath = argument.find('/') != std::string::npos || std::filesystem::exists(argument);
        if (!argument.starts_with("-") && !argument.starts_with("/") && isPath)
            argument.insert(0, here + "/");
    }
    std::vector<std::string> defaults(kDefaults.begin(), kDefaults.end());
    defaults.push_back("-artifact_prefix=" + here + "/");
    for (const std::string& flag : defaults)
        if (!isGiven(arguments, flag))
            arguments.push_back(flag);
}

std::string bytesOf(db::Database& drawing) {
    auto bytes = drawing.toBytes();
    // Before this version a drawing has no place for lights: saving says so.
    constexpr const wchar_t* kFirstWithLights = L"AC1015";
    if (!bytes.ok() && drawing.version() >= kFirstWithLights)
        fail("not saved: " + toUtf8(bytes.error().message));
    return bytes.ok() ? std::move(bytes).value() : std::string();
}

void requireSame(const fuzz::DrawingState& before, db::Database& drawing, const char* what) {
    const std::string changed = fuzz::difference(before, fuzz::stateOf(drawing));
    if (!changed.empty())
        fail(std::string(what) + ": " + changed);
}

void checkOpensAgain(const fuzz::DrawingState& state, const std::string& bytes) {
    auto opened = db::Database::fromBytes(bytes);
    if (!opened.ok())
        fail("not opened: " + toUtf8(opened.error().message));
    requireSame(state, *opened.value(), "opened with a difference");
    require(bytesOf(*opened.value()) == bytes, "the second save differs from the first");
}

// Of an untouched new drawing the bytes are `fresh`.
void checkUndo(db::Database& drawing, const fuzz::DrawingState& state, const std::string& bytes,
               const std::string* fresh) {
    const std::size_t depth = drawing.journal().undoDepth();
    while (drawing.journal().undo()) {
    }
    require(fresh == nullptr || bytesOf(drawing) == *fresh, "undoing everything leaves something");
    while (drawing.journal().undoDepth() < depth && drawing.journal().redo()) {
    }
    requireSame(state, drawing, "another drawing after undoing everything and redoing it");
    require(bytesOf(drawing) == bytes, "another file after undoing everything and redoing it");
}

// A block that is still being edited in place goes back first: a drawing is not saved meanwhile.
void endEditing(db::Database& drawing) {
    db::RefEdit& editing = drawing.refEdit();
    if (!editing.isActive())
        return;
    drawing.journal().begin(L"REFCLOSE");
    const bool isEnded = editing.save().ok() || editing.discard().ok();
    drawing.journal().end();
    require(isEnded, "a block is edited without an end");
}

void checkDrawing(const Document& document) {
    static const std::string fresh = db::Database::makeNew()->toBytes().value();
    db::Database& drawing = document.drawing();
    endEditing(drawing);
    const bool isNew = drawing.isNew() && document.path().empty();
    const std::string bytes = bytesOf(drawing);
    if (drawing.journal().undoDepth() == 0) {
        require(!isNew || bytes == fresh, "a drawing without changes has changed");
        return; // opening and saving without a change has a target of its own
    }
    if (bytes.empty())
        return;
    const fuzz::DrawingState state = fuzz::stateOf(drawing);
    checkOpensAgain(state, bytes);
    checkUndo(drawing, state, bytes, isNew ? &fresh : nullptr);
}

SessionOptions optionsIn(const wchar_t* language) {
    return {.settingsFile = scratch().path() / "settings.ini",
            .resourceFolder = QUOR_BUILD_DIR "/share/quor",
            .moduleFolders = {moduleFile().parent_path()},
            .language = language};
}

// The fuzzer keeps writing the module's coverage counters after a session has unloaded it: it must stay mapped. The
// module takes its keyword lists when it is mapped, and so needs a session then.
void mapModule() {
    fuzz::FuzzedFrontEnd front;
    const Session session(front, optionsIn(L"zh"));
    require(dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_NODELETE) != nullptr, "no module");
}

// Lights of each kind, and the list of them.
constexpr std::string_view kLightsAndList = "DEFAULTLIGHTING 0\n"
                                            "POINTLIGHT 1,2,3 N Lamp\nX\n"
                                            "SPOTLIGHT 0,0,5 0,0,0 X\n"
                                            "DISTANTLIGHT V 0,-0.01,1 X\n"
                                            "WEBLIGHT 0,0,3 0,0,0 X\n"
                                            "TARGETPOINT 4,5,6 0,0,0 X\n"
                                            "FREESPOT 7,8,9 X\n"
                                            "LIGHTLIST\n";

void runSession(fuzz::FuzzedFrontEnd& front, std::string_view bytes) {
    const unsigned choice = static_cast<std::uint8_t>(bytes.front());
    Session session(front, optionsIn((choice & 1) != 0 ? L"en" : L"zh"));
    session.documents().newDocument();
    require(session.modules().loadModule(fromUtf8(moduleFile().string())) == Quor::eOk, "the module is not loaded");
    if (choice / 6 % 2 != 0)
        session.input().push(std::make_unique<ed::ScriptSource>(std::string(kLightsAndList), L"lights.scr"));
    fuzz::AnswerMaker maker(bytes.substr(1), session, scratch());
    front.answerFrom(maker, static_cast<fuzz::Ending>(choice / 2 % 3));
    while (session.processor().step() && !session.processor().quitRequested()) {
    }
    require(!session.processor().isRunning(), "a command has not ended");
    fuzz::checkLightList(session);
    for (const auto& document : session.documents().all())
        checkDrawing(*document);
}

} // namespace

// A session makes many objects: with the usual quarantine the freed ones fill the memory within minutes.
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier): the sanitizer's own name
    return "quarantine_size_mb=16";
}

extern "C" int LLVMFuzzerInitialize(int* count, char*** values) {
    static std::vector<std::string> arguments(*values, *values + *count);
    completeArguments(arguments);
    static std::vector<char*> pointers;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(pointers),
                   [](std::string& argument) { return argument.data(); });
    pointers.push_back(nullptr);
    *count = static_cast<int>(arguments.size());
    *values = pointers.data();
    mapModule();
    keepFiles();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    fuzz::FuzzedFrontEnd front;
    runSession(front, {reinterpret_cast<const char*>(data), std::min(size, kMostBytes)});
    scratch().empty();
    return 0;
}
