#include "host/commands/web_listing.h"

#include "host/ed/support_files.h"
#include "host/ies/opening.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/path_text.h"
#include "host/sys/text_width.h"
#include "host/texts/ies_info.h"
#include "host/texts/list.h"
#include "sdk/db/light.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <fmt/format.h>

namespace quor::commands {

namespace {

// What a web shines is not known more exactly; what its file says is shown as it stands there.
constexpr int kDigitsOfLight = 5;
constexpr int kDigitsOfSizes = 8;

// In columns, so that a damaged label does not fill the screen.
constexpr std::size_t kMostOfName = 24;
constexpr std::size_t kMostOfText = 200;

// So many significant digits, and the whole part in full: "0.00001", "12.724", "123457".
ZrString plainNumber(double value, int digits) {
    constexpr double kLeast = 1e-9;
    constexpr double kMost = 1e15;
    const double size = std::abs(value);
    if (size == 0)
        return L"0";
    std::string text;
    if (size >= kLeast && size < kMost) {
        const int places = std::max(0, digits - 1 - static_cast<int>(std::floor(std::log10(size))));
        text = fmt::format("{:.{}f}", value, places);
        if (text.find('.') != std::string::npos)
            text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    } else {
        text = fmt::format("{:.{}g}", value, digits);
    }
    return {text.begin(), text.end()};
}

ZrString lightText(double value) { return plainNumber(value, kDigitsOfLight); }
ZrString sizeText(double value) { return plainNumber(value, kDigitsOfSizes); }

// In one line of at most so many columns, and of as many characters, some of which have no width.
ZrString cut(const ZrString& text, std::size_t most) {
    ZrString line = text.substr(0, most + 1);
    std::replace(line.begin(), line.end(), L'\n', L' ');
    line = visibleText(line);
    std::size_t length = 0;
    std::size_t columns = 0;
    while (length < line.size() && length < most && columns < most)
        columns += static_cast<std::size_t>(columnsOf(line[length++]));
    return length == line.size() ? line : line.substr(0, length) + L"…";
}

ZrString editionText(ies::Edition edition) { return L"LM-63-" + std::to_wstring(static_cast<int>(edition)); }

ZrString photometryText(ies::Photometry photometry) {
    return texts::kWebPhotometries[static_cast<std::size_t>(photometry) - 1].get();
}

ZrString tiltText(const std::optional<ies::Tilt>& tilt) {
    return tilt ? fill(texts::kWebTiltFactors, tilt->geometry, tilt->angles.size()) : ZrString(texts::kNone.get());
}

ZrString lampsText(const ies::PhotometricWeb& web) {
    if (web.lumensPerLamp < 0)
        return fill(texts::kWebLampsAbsolute, sizeText(web.lamps));
    return fill(texts::kWebLampsRelative, sizeText(web.lamps), sizeText(web.lumensPerLamp));
}

ZrString anglesText(const std::vector<double>& angles, const Text& one, const Text& many) {
    if (angles.size() == 1)
        return fill(one, sizeText(angles.front()));
    return fill(many, sizeText(angles.front()), sizeText(angles.back()), angles.size());
}

ZrString symmetryText(ies::Symmetry symmetry) {
    return texts::kWebSymmetries[static_cast<std::size_t>(symmetry)].get();
}

ZrString openingText(const ies::PhotometricWeb& web) {
    const ies::Opening opening = ies::openingOf(web);
    const Text& words = texts::kWebOpenings[static_cast<std::size_t>(opening.shape)];
    const auto size = [&](std::size_t i) { return i < opening.sizes.size() ? sizeText(opening.sizes[i]) : ZrString(); };
    const ZrString text = fill(words, size(0), size(1), size(2));
    return opening.sizes.empty() ? text : text + (web.inFeet ? L" ft" : L" m");
}

void listKeyword(const ies::Keyword& keyword, Listing& listing) {
    if (keyword.text.empty())
        return;
    const ZrString name = keyword.name.empty() ? ZrString(texts::kWebText.get())
                                               : fill(texts::kWebKeyword, cut(keyword.name, kMostOfName));
    listing.row(name, cut(keyword.text, kMostOfText));
}

// The keywords of a summary under names that people read; null for any other.
const Text* summaryName(const std::wstring& keyword) {
    if (equalFolded(keyword, L"MANUFAC"))
        return &texts::kWebManufacturer;
    if (equalFolded(keyword, L"LUMINAIRE"))
        return &texts::kWebLuminaire;
    return nullptr;
}

void listWarnings(const ies::PhotometricWeb& web, Listing& listing) {
    for (const ies::Warning& warning : web.warnings)
        listing.row(texts::kWebNotice,
                    fill(texts::kWebWarnings[static_cast<std::size_t>(warning.kind)], warning.line, warning.number));
}

ZrString rotationText(const ZrDbLight& light) {
    ZrGeVector3d rotation;
    light.webRotation(rotation);
    return fill(texts::kLightWebRotationAsGiven, sizeText(rotation.x), sizeText(rotation.y), sizeText(rotation.z));
}

ZrString rangeText(const std::vector<double>& angles) {
    return anglesText(angles, texts::kLightWebOneAngle, texts::kLightWebRange);
}

// The flux of the file, and that of the day when the light got its web where it was another one.
ZrString fluxText(double now, double kept) {
    constexpr double kSame = 0.001;
    if (std::abs(now - kept) <= kSame * std::max(now, std::abs(kept)))
        return lightText(now) + L" lm";
    return fill(texts::kLightWebFluxes, lightText(now), lightText(kept));
}

void listFacts(const ies::WebFile& file, const ZrDbLight& light, Listing& listing) {
    const ies::PhotometricWeb& web = file.web;
    listing.row(texts::kLightWebFlux, fluxText(file.flux, light.webFlux()));
    listing.row(texts::kLightWebSymmetry, symmetryText(web.symmetry));
    listing.row(texts::kLightWebAngles,
                fill(texts::kLightWebAngleRanges, rangeText(web.vertical), rangeText(web.horizontal)));
    listWarnings(web, listing);
}

void listFile(const ZrDbLight& light, Listing& listing) {
    const ZrString& kept = light.webFile();
    const auto found = ed::findKeptFile(Session::current(), kept);
    const ZrString used = found ? textOf(*found) : kept;
    if (used != kept)
        listing.row(texts::kLightWebUsed, used);
    const ies::LoadedWeb file = ies::loadWeb(found.value_or(std::filesystem::path()));
    if (file.ok())
        return listFacts(**file, light, listing);
    listing.row(texts::kLightWebFlux, fill(texts::kLightWebFluxKept, lightText(light.webFlux())));
    listing.row(texts::kLightWebUnread, ies::describe(file.error(), used));
}

} // namespace

void listWebFile(const ies::WebFile& file, Listing& listing) {
    const ies::PhotometricWeb& web = file.web;
    listing.row(texts::kWebEdition, editionText(web.edition));
    for (const ies::Keyword& keyword : web.keywords)
        listKeyword(keyword, listing);
    listing.row(texts::kWebPhotometry, photometryText(web.photometry));
    listing.row(texts::kWebTilt, tiltText(web.tilt));
    listing.row(texts::kWebLamps, lampsText(web));
    listing.row(texts::kWebFlux, lightText(file.flux) + L" lm");
    listing.row(texts::kWebLargest, lightText(ies::maxIntensity(web)) + L" cd");
    listing.row(texts::kWebVertical, anglesText(web.vertical, texts::kWebOneAngle, texts::kWebAngles));
    listing.row(texts::kWebHorizontal, anglesText(web.horizontal, texts::kWebOnePlane, texts::kWebPlanes));
    listing.row(texts::kWebSymmetry, symmetryText(web.symmetry));
    listing.row(texts::kWebOpening, openingText(web));
    listing.row(texts::kWebWatts, sizeText(web.watts) + L" W");
    listWarnings(web, listing);
}

void listWebSummary(const ies::WebFile& file, Listing& listing) {
    const ies::PhotometricWeb& web = file.web;
    for (const ies::Keyword& keyword : web.keywords)
        if (const Text* const name = summaryName(keyword.name); name != nullptr && !keyword.text.empty())
            listing.row(*name, cut(keyword.text, kMostOfText));
    listing.row(texts::kWebFlux, lightText(file.flux) + L" lm");
    listing.row(texts::kWebLargest, lightText(ies::maxIntensity(web)) + L" cd");
    listing.row(texts::kWebPhotometry, photometryText(web.photometry));
    listing.row(texts::kWebSymmetry, symmetryText(web.symmetry));
    listing.row(texts::kWebOpening, openingText(web));
    listing.row(texts::kWebWatts, sizeText(web.watts) + L" W");
    listWarnings(web, listing);
}

void listLightWeb(const ZrDbLight& light, Listing& listing) {
    const bool hasFile = !light.webFile().empty();
    listing.row(texts::kLightWebFile, hasFile ? light.webFile() : ZrString(texts::kNone.get()));
    if (hasFile)
        listFile(light, listing);
    listing.row(texts::kLightWebRotation, rotationText(light));
}

} // namespace quor::commands
