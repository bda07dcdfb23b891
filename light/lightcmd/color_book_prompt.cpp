// A colour of a colour book.
#include "light/lightcmd/color_input.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/cm/color_services.h"
#include "sdk/sys/case_fold.h"

#include <algorithm>
#include <optional>

namespace quor::light {

ZrString s_lastColorBook;
ZrString s_lastBookColor;

namespace {

constexpr std::size_t longestAnswer = 131;
constexpr std::size_t shortestBookName = 4;

void remember(const ZrCmColor& color) {
    s_lastColorBook = color.bookName();
    s_lastBookColor = color.colorName();
}

// A name that is left empty is an answer; nothing when the question was left.
std::optional<ZrString> askName(const Text& prompt) {
    ZrString answer;
    if (zredGetString(1, LoadedText(prompt).c_str(), answer) != RTNORM)
        return std::nullopt;
    cutTo(answer, longestAnswer);
    return answer;
}

// Enter takes the last book, which no prompt shows, or asks again where there is none.
std::optional<ZrString> askBook() {
    std::vector<ZrString> books;
    std::vector<ZrString> displayNames;
    EnumBookNames(books, displayNames);
    for (;;) {
        std::optional<ZrString> answer = askName(texts.colorBookPrompt);
        if (!answer)
            return std::nullopt;
        if (answer->empty()) {
            if (!s_lastColorBook.empty())
                return s_lastColorBook;
            continue;
        }
        const auto book = std::find_if(books.begin(), books.end(),
                                       [&](const ZrString& candidate) { return equalFolded(*answer, candidate); });
        if (answer->size() >= shortestBookName && book != books.end())
            return *book;
        printText(texts.colorBookNotFound);
    }
}

} // namespace

// Enter at the colour leaves, whatever was chosen before.
bool promptColorBook(ZrCmColor& color) {
    if (!color.bookName().empty())
        remember(color);
    const std::optional<ZrString> book = askBook();
    if (!book)
        return false;
    for (;;) {
        const std::optional<ZrString> name = askName(texts.bookColorPrompt);
        if (!name || name->empty())
            return false;
        if (zrcmGetColorFromColorBookName(color, book->c_str(), name->c_str()) == Quor::eOk) {
            remember(color);
            return true;
        }
        printText(texts.bookColorNotFound);
    }
}

} // namespace quor::light

int CZrMultiLight::promptColorBookColor() {
    if (m_pLight == nullptr)
        return RTERROR;
    ZrCmColor color;
    return quor::light::promptColorBook(color) ? m_pLight->setLightColor(color) : Quor::eOk;
}
