#include "host/commands/web_listing.h"

#include "host/sys/utf8.h"
#include "host/texts/ies_info.h"
#include "host/texts/list.h"
#include "sdk/db/light.h"
#include "sdk/ed/find_file.h"

#include <algorithm>
#include <cmath>

namespace quor::commands {

namespace {

// To a tenth: what a web tells is no more exact.
ZrString fluxText(double lumen) { return numberText(std::round(lumen * 10) / 10) + L" lm"; }

ZrString editionText(ies::Edition edition) { return L"LM-63-" + std::to_wstring(static_cast<int>(edition)); }

ZrString photometryText(ies::Photometry photometry) {
    return texts::kWebPhotometries[static_cast<std::size_t>(photometry) - 1].get();
}

ZrString tiltText(const std::optional<ies::Tilt>& tilt) {
    return tilt ? fill(texts::kWebTiltFactors, tilt->geometry, tilt->angles.size()) : ZrString(texts::kNone.get());
}

ZrString lampsText(const ies::PhotometricWeb& web) {
    if (web.lumensPerLamp < 0)
        return fill(texts::kWebLampsAbsolute, numberText(web.lamps));
    return fill(texts::kWebLampsRelative, numberText(web.lamps), numberText(web.lumensPerLamp));
}

ZrString anglesText(const std::vector<double>& angles) {
    return fill(texts::kWebAngleRange, numberText(angles.front()), numberText(angles.back()), angles.size());
}

ZrString symmetryText(ies::Symmetry symmetry) {
    return texts::kWebSymmetries[static_cast<std::size_t>(symmetry)].get();
}

ZrString openingText(const ies::PhotometricWeb& web) {
    return fill(texts::kWebOpeningSizes, numberText(web.width), numberText(web.length), numberText(web.height),
                web.inFeet ? L"ft" : L"m");
}

void listKeyword(const ies::Keyword& keyword, Listing& listing) {
    if (keyword.text.empty())
        return;
    ZrString text = keyword.text;
    std::replace(text.begin(), text.end(), L'\n', L' ');
    listing.row(keyword.name.empty() ? ZrString(texts::kWebText.get()) : fill(texts::kWebKeyword, keyword.name), text);
}

ZrString warningText(const ies::Warning& warning) {
    return fill(texts::kWebWarnings[static_cast<std::size_t>(warning.kind)], warning.line);
}

ZrString rotationText(const ZrDbLight& light) {
    ZrGeVector3d rotation;
    light.webRotation(rotation);
    return L"X=" + numberText(rotation.x) + L"  Y=" + numberText(rotation.y) + L"  Z=" + numberText(rotation.z);
}

// The web of a light. A drawing that came from somewhere else names a folder that is not here: then the file is looked
// for by its name alone.
Result<std::shared_ptr<const ies::WebFile>, ies::Error> webOf(const ZrDbLight& light) {
    auto web = ies::loadWeb(toUtf8(light.webFile()));
    const ZrString name = light.webFile().substr(light.webFile().find_last_of(L"/\\") + 1);
    ZrString found;
    if (web.ok() || web.error().kind != ies::Error::Kind::NotFound || zredFindFile(name.c_str(), found) != RTNORM)
        return web;
    return ies::loadWeb(toUtf8(found));
}

void listFacts(const ZrDbLight& light, Listing& listing) {
    const auto file = webOf(light);
    if (!file.ok())
        return listing.row(texts::kLightWebUnread, ies::describe(file.error(), light.webFile()));
    const ies::PhotometricWeb& web = (*file)->web;
    listing.row(texts::kLightWebSymmetry, symmetryText(web.symmetry));
    listing.row(texts::kLightWebAngles,
                fill(texts::kLightWebAngleRanges, numberText(web.vertical.front()), numberText(web.vertical.back()),
                     numberText(web.horizontal.front()), numberText(web.horizontal.back())));
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
    listing.row(texts::kWebFlux, fluxText(file.flux));
    listing.row(texts::kWebLargest, numberText(ies::maxIntensity(web)) + L" cd");
    listing.row(texts::kWebVertical, anglesText(web.vertical));
    listing.row(texts::kWebHorizontal, anglesText(web.horizontal));
    listing.row(texts::kWebSymmetry, symmetryText(web.symmetry));
    listing.row(texts::kWebOpening, openingText(web));
    listing.row(texts::kWebWatts, numberText(web.watts) + L" W");
    for (const ies::Warning& warning : web.warnings)
        listing.row(texts::kWebNotice, warningText(warning));
}

void listLightWeb(const ZrDbLight& light, Listing& listing) {
    const bool hasFile = !light.webFile().empty();
    listing.row(texts::kLightWebFile, hasFile ? light.webFile() : ZrString(texts::kNone.get()));
    if (hasFile) {
        listing.row(texts::kLightWebFlux, fluxText(light.webFlux()));
        listFacts(light, listing);
    }
    listing.row(texts::kLightWebRotation, rotationText(light));
}

} // namespace quor::commands
