// The lights of a scene: what each one shows and sends out.
#pragma once

#include "host/gs/layer_looks.h"
#include "host/gs/light_distribution.h"
#include "host/gs/scene.h"
#include "sdk/gi/photometric_intensity.h"

struct ZrDbLightData;

namespace quor::gs {

// What all lights of a drawing depend on.
struct LightSettings {
    PhotometricUnits units;
    bool showsGlyphs = true; // LIGHTGLYPHDISPLAY
};
[[nodiscard]] LightSettings lightSettings(const db::Database& drawing);

[[nodiscard]] bool isLight(const db::Database& drawing, const db::ObjectEntry& entity);

class LightMarks {
public:
    // Without lights, for a drawing with these settings.
    void start(const LightSettings& settings);
    // A light is there, new or changed; or, when it is erased, not any more. Nothing happens for what is no light.
    void put(std::uint32_t number, db::Database& drawing, db::ObjectEntry& entity, LayerLooks& looks);
    // To be called after the last put of some.
    void settle();

    [[nodiscard]] const LightSettings& settings() const { return settings_; }
    void showGlyphs(bool shows) { settings_.showsGlyphs = shows; }
    // Finds out again which glyphs are shown.
    void refreshGlyphs(const LayerLooks& looks);

    [[nodiscard]] std::span<const LightMark> marks() const { return marks_; }
    // Of the glyphs that are shown.
    [[nodiscard]] Box extents() const;

private:
    // What decides whether the glyph is shown.
    struct Source {
        std::uint32_t layer = 0;
        GlyphDisplay glyph = GlyphDisplay::kAutomatic;
        bool visible = true;
    };
    struct Light {
        LightMark mark;
        Source source;
    };

    [[nodiscard]] Light make(std::uint32_t number, const db::ObjectEntry& entity, const ZrDbLightData& data,
                             LayerLooks& looks);
    void takeWeb(LightMark& mark, const ZrDbLightData& data);
    [[nodiscard]] bool isGlyphShown(const LightMark& mark, const Source& source, const LayerLooks& looks) const;

    LightSettings settings_;
    LightDistributions distributions_;
    std::vector<LightMark> marks_; // in drawing order
    std::vector<Source> sources_;  // of the marks
    std::vector<Light> waiting_;   // new ones, to be put among the others
    bool anyErased_ = false;       // marks without an id are to be taken out
};

} // namespace quor::gs
