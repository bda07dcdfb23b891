#include "host/autosave/autosave.h"

#include "host/autosave/pace.h"
#include "host/commands/drawing_files.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/problem_report.h"
#include "host/sys/system_error.h"
#include "host/sys/system_variables.h"
#include "host/texts/autosave.h"

#include <chrono>

namespace quor::autosave {

namespace {

constexpr const wchar_t* kInterval = L"SAVETIME"; // minutes, 0: off
constexpr double kMinute = 60;

double secondsGone() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

Autosave::Autosave(Session& session, std::filesystem::path folder, Clock clock)
    : session_(session), parent_(std::move(folder)), clock_(clock ? std::move(clock) : secondsGone) {
    session_.documents().addReactor(this);
}

Autosave::~Autosave() {
    session_.documents().removeReactor(this);
    if (keepsAll_)
        return;
    for (const auto& [document, copy] : copies_)
        remove(copy.file);
}

void Autosave::tick() {
    keepsAll_ = false;
    if (session_.processor().isRunning())
        return;
    const double longest = kMinute * session_.variables().number(kInterval);
    for (const auto& document : session_.documents().all())
        look(*document, longest);
}

void Autosave::writeAllNow() {
    for (const auto& document : session_.documents().all())
        if (!document->isModified())
            drop(*document);
        else if (const auto known = copies_.find(document.get());
                 known == copies_.end() || known->second.state != document->drawing().journal().state())
            copy(*document, 0);
    keepsAll_ = true;
}

void Autosave::look(Document& document, double longest) {
    if (!document.isModified()) {
        drop(document);
        return;
    }
    const auto known = copies_.find(&document);
    const bool isNew = known == copies_.end();
    if (longest == 0 || document.drawing().refEdit().isActive())
        return;
    if (isNew || (known->second.state != document.drawing().journal().state() && clock_() >= known->second.nextAt))
        copy(document, longest);
}

void Autosave::copy(Document& document, double longest) {
    if (document.drawing().refEdit().isActive())
        return;
    Copy* const copy = copyOf(document);
    if (copy == nullptr)
        return;
    const db::Journal::State state = document.drawing().journal().state();
    const double before = clock_();
    const Result<void, ZrString> written = write(document, copy->file);
    const double now = clock_();
    if (!written) {
        copy->nextAt = now + kWaitAfterFailure;
        complain(document, copy, written.error());
        return;
    }
    copy->failed = false;
    copy->state = state;
    copy->nextAt = now + waitAfter(now - before, longest);
}

const CopyFolder* Autosave::ownFolder(const Document& document) {
    if (folder_)
        return &*folder_;
    if (hasNoFolder_)
        return nullptr;
    if (parent_.empty()) {
        hasNoFolder_ = true;
        reportProblem(texts::kNoCopyFolder.get());
        return nullptr;
    }
    Result<CopyFolder, int> made = CopyFolder::make(parent_);
    if (made.ok())
        return &folder_.emplace(std::move(made).value());
    hasNoFolder_ = true;
    complain(document, nullptr, systemErrorText(made.error()));
    return nullptr;
}

Autosave::Copy* Autosave::copyOf(const Document& document) {
    if (const auto known = copies_.find(&document); known != copies_.end())
        return &known->second;
    const CopyFolder* const folder = ownFolder(document);
    if (folder == nullptr)
        return nullptr;
    Copy& copy = copies_[&document];
    copy.file = {folder->path(), ++lastNumber_};
    return &copy;
}

void Autosave::complain(const Document& document, Copy* copy, const ZrString& reason) {
    if (copy != nullptr && std::exchange(copy->failed, true))
        return;
    reportProblem(fill(texts::kCopyNotWritten, commands::shortName(document), reason, textOf(parent_)));
}

void Autosave::drop(const Document& document) {
    const auto known = copies_.find(&document);
    if (known == copies_.end())
        return;
    remove(known->second.file);
    copies_.erase(known);
}

void Autosave::documentToBeDestroyed(ZrApDocument& document) {
    if (!keepsAll_)
        drop(static_cast<const Document&>(document));
}

bool Autosave::takeOver(const Document& document, const CopyFile& copy) {
    Copy* const own = copyOf(document);
    if (own == nullptr || !move(copy, own->file)) {
        copies_.erase(&document);
        return false;
    }
    own->state = document.drawing().journal().state();
    return true;
}

} // namespace quor::autosave
