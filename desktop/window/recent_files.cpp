#include "desktop/window/recent_files.h"

#include "host/document.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr const wchar_t* kSection = L"Recent";

ZrString keyOf(std::size_t index) { return L"File" + std::to_wstring(index + 1); }

} // namespace

std::vector<ZrString> RecentFiles::all() const {
    std::vector<ZrString> files;
    for (std::size_t i = 0; i < kMost; ++i)
        if (const std::optional<std::wstring> file = settings_.get(kSection, keyOf(i)); file && !file->empty())
            files.push_back(*file);
    return files;
}

void RecentFiles::follow(const DocumentManager& documents) {
    std::vector<std::filesystem::path> open;
    for (const auto& document : documents.all())
        if (!document->path().empty())
            open.push_back(document->path());
    for (const std::filesystem::path& file : open)
        if (std::ranges::find(open_, file) == open_.end())
            add(file);
    open_ = std::move(open);
}

void RecentFiles::add(const std::filesystem::path& file) {
    const ZrString name = fromUtf8(file.native());
    std::vector<ZrString> files = all();
    if (!files.empty() && files.front() == name)
        return;
    std::erase(files, name);
    files.insert(files.begin(), name);
    files.resize(std::min(files.size(), kMost));
    keep(files);
}

void RecentFiles::clear() { keep({}); }

// A list that cannot be written is of this run only; nobody waits for a message about that.
void RecentFiles::keep(const std::vector<ZrString>& files) {
    for (std::size_t i = 0; i < kMost; ++i) {
        const ZrString value = i < files.size() ? files[i] : ZrString();
        if (settings_.get(kSection, keyOf(i)).value_or(L"") != value)
            (void)settings_.set(kSection, keyOf(i), value);
    }
}

} // namespace quor::desktop
