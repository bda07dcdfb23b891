#include "console/progress_line.h"

#include "host/sys/utf8.h"
#include "sdk/sys/format.h"

#include <algorithm>

namespace quor::console {

namespace {
// Short enough to stay on one line of any screen, even in wide characters.
constexpr std::size_t kLongestText = 34;
// Back to the start of the line, and clear it.
constexpr std::string_view kClear = "\r\x1b[K";
} // namespace

ProgressLine::ProgressLine(ByteSink sink, Output* shared, ProgressMeter::Clock clock)
    : sink_(std::move(sink)), shared_(shared), meter_(std::move(clock)) {
    if (shared_ != nullptr)
        shared_->beforeWriting([this] { remove(); });
}

void ProgressLine::update(std::wstring_view what, double fraction) {
    if (!sink_)
        return;
    switch (meter_.update(fraction)) {
    case ProgressMeter::Action::Draw:
        draw(what, fraction);
        break;
    case ProgressMeter::Action::Remove:
        remove();
        break;
    case ProgressMeter::Action::Nothing:
        break;
    }
}

void ProgressLine::draw(std::wstring_view what, double fraction) {
    if (shared_ != nullptr)
        shared_->flushLines();
    if (shared_ != nullptr && !shared_->isAtLineStart())
        return;
    ZrString text(what.substr(0, kLongestText));
    if (what.size() > kLongestText)
        text += L"…";
    const int percent = std::clamp(static_cast<int>(fraction * 100), 0, 99);
    sink_(std::string(kClear) + toUtf8(text + zrFormat(L" %d%%", {percent})));
    drawn_ = true;
}

void ProgressLine::remove() {
    if (drawn_)
        sink_(kClear);
    drawn_ = false;
}

} // namespace quor::console
