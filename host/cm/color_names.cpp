#include "host/cm/color_names.h"

#include <iterator>
#include <utility>

#include "host/sys/case_fold.h"
#include "host/texts/text.h"

namespace quor::cm {
namespace {

struct NameRow {
    std::wstring_view english;
    std::wstring_view builtIn;
};

// In index order from 1.
constexpr NameRow nameRows[] = {{L"Red", L"红"},  {L"Yellow", L"黄"},    {L"Green", L"绿"}, {L"Cyan", L"青"},
                                {L"Blue", L"蓝"}, {L"Magenta", L"洋红"}, {L"White", L"白"}};
static_assert(std::size(nameRows) == namedColorCount);

bool isNamed(int index) { return index >= 1 && index <= namedColorCount; }

ColorNameSource& nameSource() {
    static ColorNameSource source;
    return source;
}

} // namespace

std::wstring_view englishColorName(int index) {
    return isNamed(index) ? nameRows[index - 1].english : std::wstring_view();
}

std::wstring localColorName(int index) {
    if (!isNamed(index))
        return {};
    std::wstring name = nameSource() ? nameSource()(index) : std::wstring();
    if (!name.empty())
        return name;
    const NameRow& row = nameRows[index - 1];
    return std::wstring(language() == Language::English ? row.english : row.builtIn);
}

void setColorNameSource(ColorNameSource source) { nameSource() = std::move(source); }

int indexOfColorName(std::wstring_view name) {
    for (int index = 1; index <= namedColorCount; ++index)
        if (equalFolded(name, englishColorName(index)) || equalFolded(name, localColorName(index)))
            return index;
    return 0;
}

} // namespace quor::cm
