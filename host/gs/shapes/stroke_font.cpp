#include "host/gs/shapes/stroke_font.h"

#include <algorithm>
#include <array>

namespace quor::gs {

namespace {

constexpr char32_t kFirst = U'!';
constexpr char32_t kLast = U'~';
constexpr char32_t kFirstWide = 0x1100; // from here on most characters are as wide as high
constexpr int kGap = 2;
constexpr int kBlank = 4;

constexpr Strokes kBox = "0208383202";
constexpr Strokes kWideBox = "0208686202";
constexpr Strokes kDegreeSign = "0716271807";
constexpr Strokes kPlusMinus = "2428 0646 0343";
constexpr Strokes kDiameter = "120307183847433212 0248";

constexpr std::array<Strokes, kLast - kFirst + 1> kLetters{
    "0804 0302",                        // !
    "0806 2826",                        // "
    "1218 3238 0444 0646",              // #
    "031232434435150607183847 2129",    // $
    "0248 0708181707 3233434232",       // %
    "4207081827260403123244",           // &
    "0806",                             // '
    "18070312",                         // (
    "08171302",                         // )
    "2327 0644 0446",                   // *
    "2327 0545",                        // +
    "1201",                             // ,
    "0545",                             // -
    "0203",                             // .
    "0248",                             // /
    "120307183847433212",               // 0
    "072822 1232",                      // 1
    "07183847460242",                   // 2
    "07183847463525 354443321203",      // 3
    "32380444",                         // 4
    "480805354443321203",               // 5
    "4738180703123243443505",           // 6
    "084812",                           // 7
    "15060718384746351504031232434435", // 8
    "0312324347381807061545",           // 9
    "0506 0203",                        // :
    "1516 1201",                        // ;
    "470543",                           // <
    "0646 0444",                        // =
    "074503",                           // >
    "07183847462524 2322",              // ?
    "34361614344447381807031242",       // @
    "022842 1434",                      // A
    "02083847463505 3544433202",        // B
    "4738180703123243",                 // C
    "02082846442202",                   // D
    "48080242 0535",                    // E
    "480802 0535",                      // F
    "47381807031232434525",             // G
    "0208 4248 0545",                   // H
    "1218 0222 0828",                   // I
    "4843321203",                       // J
    "0208 480542",                      // K
    "080242",                           // L
    "0208254842",                       // M
    "02084248",                         // N
    "120307183847433212",               // O
    "02083847463505",                   // P
    "120307183847433212 2442",          // Q
    "02083847463505 2542",              // R
    "031232434435150607183847",         // S
    "0848 2228",                        // T
    "080312324348",                     // U
    "082248",                           // V
    "0812253248",                       // W
    "0248 0842",                        // X
    "082548 2522",                      // Y
    "08480242",                         // Z
    "18080212",                         // [
    "0842",                             // the stroke that falls
    "08181202",                         // ]
    "062846",                           // ^
    "0141",                             // _
    "0817",                             // `
    "3526160503122233 3632",            // a
    "0802 0516263533221203",            // b
    "3526160503122233",                 // c
    "3832 3526160503122233",            // d
    "04343526160503122233",             // e
    "281712 0626",                      // f
    "3631201001 3526160503122233",      // g
    "0802 0516263532",                  // h
    "0602 0807",                        // i
    "161100 1817",                      // j
    "0802 360432",                      // k
    "0802",                             // l
    "0602 05162522 25364542",           // m
    "0602 0516263532",                  // n
    "160503122233352616",               // o
    "0600 0516263533221203",            // p
    "3630 3526160503122233",            // q
    "0602 051626",                      // r
    "3526160533221203",                 // s
    "181322 0626",                      // t
    "0603122233 3632",                  // u
    "062246",                           // v
    "0612253246",                       // w
    "0632 3602",                        // x
    "0622 4610",                        // y
    "06360232",                         // z
    "28171605141322",                   // {
    "0800",                             // |
    "08171625141302",                   // }
    "05163445",                         // ~
};

} // namespace

Strokes strokesOf(char32_t character) {
    if (character >= kFirst && character <= kLast)
        return kLetters[character - kFirst];
    switch (character) {
    case U' ':
    case U'\t':
    case U'\u00A0':
        return {};
    case U'\u00B0':
        return kDegreeSign;
    case U'\u00B1':
        return kPlusMinus;
    case U'\u00D8':
    case U'\u2205':
        return kDiameter;
    default:
        return character < kFirstWide ? kBox : kWideBox;
    }
}

bool isBox(Strokes strokes) { return strokes.data() == kBox.data() || strokes.data() == kWideBox.data(); }

int advanceOf(Strokes strokes) {
    if (strokes.empty())
        return kBlank;
    int right = 0;
    for (std::size_t i = 0; i + 1 < strokes.size(); i += strokes[i] == ' ' ? 1 : 2)
        if (strokes[i] != ' ')
            right = std::max(right, strokes[i] - '0');
    return right + kGap;
}

} // namespace quor::gs
