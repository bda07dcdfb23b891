// Turns a file's tags, as they come, into a Layout.
#pragma once

#include "host/dxf/layout.h"

namespace quor::dxf {

class LayoutBuilder {
public:
    LayoutBuilder(Layout& layout, std::string_view file, const ScanOptions& options);

    enum class Step { Go, End, Refuse };

    // Most tags mean nothing for the layout: they need not be handed over unless this is true.
    [[nodiscard]] bool wants(int code) const { return wantsAll_ || isTelling(code); }
    // One tag. End at 0/EOF; Refuse when the file cannot be used (see refusal()).
    [[nodiscard]] Step tag(const Tag& tag);

    // The file is damaged at offset. False if that refuses the file, else reading may go on at a place found later.
    [[nodiscard]] bool problem(Error::Kind kind, std::size_t offset, std::wstring excerpt);
    // The bytes from here to the next tag are damaged: belong to the open record, if any.
    void markDamaged() { record_.damaged = true; }
    // The file breaks off; everything before lastWhole was tags. `recordWhole`: the open record ends there, nothing of
    // it is missing; else it is left out and reported.
    void breakOff(std::size_t lastWhole, bool recordWhole);

    [[nodiscard]] bool inHeader() const { return inHeader_; }
    [[nodiscard]] const Error& refusal() const { return refusal_; }

private:
    static bool isTelling(int code);

    Step zeroGroup(const Tag& tag);
    Step openSection(const Tag& tag);
    void closeSection(std::size_t bodyEnd, std::size_t end, bool closed);
    void nameSection(const Tag& tag);
    void openRecord(const Tag& tag, std::string_view name);
    Step closeRecord(std::size_t end);
    void recordTag(const Tag& tag);
    void headerTag(const Tag& tag);
    void closeVar(std::size_t end);
    void report(std::size_t offset);
    std::size_t lineAt(std::size_t offset);

    Layout& layout_;
    std::string_view file_;
    const ScanOptions& options_;
    Error refusal_;

    Record record_;
    bool recordOpen_ = false;
    bool handleIn105_ = false; // DIMSTYLE
    bool markerSeen_ = false;  // behind the first group 100 a 330 is no owner
    bool inGroup_ = false;     // between 102 {… and 102 }
    bool paperSeen_ = false;

    bool sectionOpen_ = false;
    bool nameless_ = false; // 0/SECTION read, its name not yet
    bool inHeader_ = false;
    bool varOpen_ = false;
    bool wantsAll_ = false;

    std::size_t nextReport_ = 0;
    std::size_t countedTo_ = 0; // lines before this offset are in line_
    std::size_t line_ = 1;
};

inline bool LayoutBuilder::isTelling(int code) {
    switch (code) {
    case 0:
    case 5:
    case 67:
    case 100:
    case 102:
    case 105:
    case 330:
        return true;
    default:
        return false;
    }
}

} // namespace quor::dxf
