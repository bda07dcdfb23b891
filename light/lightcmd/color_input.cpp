#include "light/lightcmd/color_input.h"

#include "light/lightcmd/real_question.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/case_fold.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quor::light {

namespace {

constexpr double maxComponent = 255.0;
constexpr double maxColorIndex = 255.0;

constexpr std::wstring_view englishNames[] = {L"Red", L"Yellow", L"Green", L"Cyan", L"Blue", L"Magenta", L"White"};
constexpr const Text* localNames[] = {&texts.red,  &texts.yellow,  &texts.green, &texts.cyan,
                                      &texts.blue, &texts.magenta, &texts.white};

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

bool readNumber(const ZrString& piece, double& value) {
    return zrdbDisToF(piece.c_str(), unitsOfDrawing, value) == RTNORM;
}

bool isColorName(std::wstring_view text) {
    const auto isThisName = [text](std::wstring_view name) { return equalFolded(text, name); };
    return std::any_of(std::begin(englishNames), std::end(englishNames), isThisName) ||
           std::any_of(std::begin(localNames), std::end(localNames),
                       [&](const Text* name) { return isThisName(LoadedText(*name).c_str()); });
}

} // namespace

bool isRgbTriple(const wchar_t* text) {
    const std::wstring_view whole = text != nullptr ? text : L"";
    if (whole.empty() || !isDigit(whole.back()))
        return false;
    int commas = 0;
    ZrString piece;
    for (const wchar_t c : whole) {
        if (isDigit(c)) {
            piece += c;
            continue;
        }
        double value = 0;
        if (c != L',' || ++commas > 2 || !readNumber(piece, value) || value > maxComponent)
            return false;
        piece.clear();
    }
    return commas == 2;
}

bool parseTriple(const wchar_t* text, double out[3]) {
    const std::wstring_view whole = text != nullptr ? text : L"";
    if (whole.empty())
        return true;
    int commas = 0;
    ZrString piece;
    for (const wchar_t c : whole) {
        if (c != L',' || commas == 2) {
            piece += c;
            continue;
        }
        if (!readNumber(piece, out[commas++]))
            return false;
        piece.clear();
    }
    return readNumber(piece, out[2]);
}

void roundTriple(double v[3]) {
    std::for_each(v, v + 3, [](double& number) {
        const double whole = std::floor(number);
        number = number - whole >= 0.5 ? whole + 1.0 : whole;
    });
}

bool isColorIndexName(wchar_t* text) {
    if (text == nullptr)
        return false;
    if (isColorName(text))
        return true;
    wchar_t* end = text;
    while (isDigit(*end))
        ++end;
    *end = L'\0';
    double index = 0;
    if (zrdbDisToF(text, unitsOfDrawing, index) != RTNORM)
        return false;
    return index >= 1.0 && index <= maxColorIndex;
}

} // namespace quor::light
