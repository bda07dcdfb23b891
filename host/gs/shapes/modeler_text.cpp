#include "host/gs/shapes/modeler_text.h"

#include "host/dxf/tag.h"

#include <algorithm>
#include <utility>

namespace quor::gs {

namespace {

constexpr int kMirror = 159;
constexpr char kLastBlank = ' ';
constexpr int kHeaderLines = 3;

bool isBlank(char c) { return static_cast<unsigned char>(c) <= kLastBlank; }

// Splits a text into words. A word "@5" stands before a string of so many characters, which is left out with it.
class Words {
public:
    explicit Words(std::string_view text) : left_(text) {}

    // Empty at the end.
    [[nodiscard]] std::string_view next() {
        skipBlanks();
        const auto end = std::ranges::find_if(left_, isBlank);
        const std::string_view word = left_.substr(0, static_cast<std::size_t>(end - left_.begin()));
        left_.remove_prefix(word.size());
        if (!word.starts_with('@'))
            return word;
        const auto length = dxf::parseInt(word.substr(1));
        if (length && *length >= 0)
            left_.remove_prefix(std::min(left_.size(), static_cast<std::size_t>(*length) + 1));
        return word;
    }

private:
    void skipBlanks() {
        left_.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(left_, isBlank) - left_.begin()));
    }

    std::string_view left_;
};

std::string_view behindHeader(std::string_view text) {
    for (int line = 0; line < kHeaderLines; ++line) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            return {};
        text.remove_prefix(end + 1);
    }
    return text;
}

} // namespace

// A caret is followed by a blank in drawing files, so that it is not taken for the sign of a control character.
std::string unscrambled(std::string_view stored) {
    std::string text;
    text.reserve(stored.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const char c = stored[i];
        text += isBlank(c) ? c : static_cast<char>(kMirror - static_cast<unsigned char>(c));
        if (c == '^' && i + 1 < stored.size() && stored[i + 1] == ' ')
            ++i;
    }
    return text;
}

bool ModelerRecord::is(std::string_view kind) const {
    return type == kind ||
           (type.size() > kind.size() && type.ends_with(kind) && type[type.size() - kind.size() - 1] == '-');
}

std::vector<double> ModelerRecord::numbersFrom(std::size_t word) const {
    std::vector<double> numbers;
    for (; word < words.size(); ++word) {
        const auto number = dxf::parseDouble(words[word]);
        if (!number)
            break;
        numbers.push_back(*number);
    }
    return numbers;
}

std::size_t ModelerRecord::endOfReferences() const {
    const auto last = std::find_if(words.rbegin(), words.rend(), [](auto word) { return word.starts_with('$'); });
    return static_cast<std::size_t>(words.rend() - last);
}

ModelerText::ModelerText(std::string text) : text_(std::move(text)) {
    Words words(behindHeader(text_));
    std::vector<std::string_view> record;
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        if (word == "#")
            addRecord(std::exchange(record, {}));
        else
            record.push_back(word);
    }
}

// A record may say its number; else they are counted.
void ModelerText::addRecord(std::vector<std::string_view> words) {
    auto number = static_cast<std::int64_t>(records_.size());
    if (!words.empty() && words.front().starts_with('-')) {
        number = dxf::parseInt(words.front().substr(1)).value_or(number);
        words.erase(words.begin());
    }
    ModelerRecord record;
    if (!words.empty()) {
        record.type = words.front();
        record.words.assign(words.begin() + 1, words.end());
    }
    byNumber_.try_emplace(number, records_.size());
    records_.push_back(std::move(record));
}

const ModelerRecord* ModelerText::referredBy(std::string_view word) const {
    if (!word.starts_with('$'))
        return nullptr;
    const auto number = dxf::parseInt(word.substr(1));
    const auto found = number ? byNumber_.find(*number) : byNumber_.end();
    return found == byNumber_.end() ? nullptr : &records_[found->second];
}

} // namespace quor::gs
