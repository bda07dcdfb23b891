// The base of every command that creates one light. Protocol of execute(): 1 refuse where lights cannot be made,
// 2 ask for the viewport lighting mode, 3 create the light and let the command place it, 4 hand over to the command's
// option loop, 5 keep the light when the loop ended with RTNORM, else erase it.
#pragma once

#include "light/lightcmd/option_loop.h"
#include "sdk/db/light.h"
#include "sdk/rx/command.h"
#include "sdk/sys/string.h"

#include <cstdint>
#include <memory>

class ZrGlobalVarManager;

class CZrMultiLight : public RxCommand {
public:
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    [[nodiscard]] bool filtersPoints() const override { return false; }

    [[nodiscard]] const wchar_t* typeName() const override = 0;
    [[nodiscard]] bool canExecute() override { return finishLight(); }
    int execute() override;
    // Whether the units allow a light of this kind; says why when they do not.
    [[nodiscard]] virtual bool finishLight() { return true; }

    // The viewport-lighting-mode question: with the default lights on, the user's lights do not show. False when it was
    // cancelled; else `value` is what DEFAULTLIGHTING is to become once the light is kept.
    [[nodiscard]] static bool askDefaultLighting(short& value);
    // Whether LIGHTINGUNITS, read into `value`, allows lights; prints why when it does not.
    [[nodiscard]] static bool checkLightingUnits(short& value);

    // Shared by all light commands of the process. The first tells whether the last check of the lighting mode ran in a
    // command that a program had started; the second has the next check ask nothing.
    static bool s_calledFromScript;
    static bool s_skipLightingDialogOnce;

protected:
    explicit CZrMultiLight(const wchar_t* kindWord);

    // The questions after the placement. RTNORM keeps the light.
    virtual int optionLoop();
    virtual int promptPhotometricIntensity();
    // The word that the number of a default name follows; sets and answers `out`.
    virtual ZrString& defaultNamePrefix(ZrString& out);
    // Sets the light type and asks where the light is to be; false when the user gave that up.
    virtual bool placeLight();
    // Gives the light the name that was typed, or the default one.
    virtual bool applyName();

    // The options that lights have in common: name, intensity, status, photometry, shadows, attenuation and colour. A
    // command whose keyword list leaves one out does not have it.
    [[nodiscard]] static std::span<const quor::light::LightOption> usualOptions();
    // The whole option loop from a command's description of it.
    int runOptionLoop(const quor::light::OptionLoop& loop);

    // The prompts behind the options, a source for each group. Each changes the open light as its answers come; what
    // they answer is for their callers here, the option loops ignore it. Without a light they change nothing; those
    // that could not show what it has answer RTERROR without a question.

    // Name, intensity factor, status.
    void promptName();
    void promptIntensity();
    void promptStatus();

    // Photometric intensity and lamp colour. The menu answers how it was left.
    int promptPhotometry();
    int promptLampColor();
    int promptFlux();        // 1 when a value was entered, else -1
    int promptIlluminance(); // a result code
    // 0, or why not: -1 for a name that is no preset (which is said), else the light's status.
    int setLampColorPresetByName(const wchar_t* name);
    // The light's intensity in the unit of a method: 0 candela, 1 lumen, 2 illuminance at the light's distance.
    [[nodiscard]] double convertPhotometricIntensity(int target) const;

    // Shadows. The first answers the result code of its own question.
    int promptShadow();
    int promptShadowMapSize(); // 1 when a size was set or kept, 0 when the question was left
    bool promptShadowSoftness();
    bool promptShadowSampledOptions();
    bool promptShadowShape();
    int promptShadowSamples(); // 1 when the count was set
    bool promptShadowVisibility();
    int promptShadowLength(); // 0 when it was cancelled, else 1; the radius too
    bool promptShadowWidth();
    int promptShadowRadius();

    // Attenuation. The sub-prompts answer 1 when the record was written, 0 when the question was left.
    int promptAttenuation();
    int promptAttenuationType();
    int promptAttenuationLimits();

    // The light's colour. They answer the status of the light's setter, or the result code with which they were left.
    int promptColor();
    int promptIndexColor();
    int promptHslColor();
    int promptColorBookColor();

    // The photometric web: its file and its rotation. They answer result codes.
    int promptWeb();
    int promptWebFile();
    int promptWebRotation(const wchar_t* axis, double& value);
    int chooseWebFile(const ZrString& reply);

    // Makes the light, has it placed and posts it to the current space; then m_pLight is open for write.
    [[nodiscard]] bool createLight();
    // The next number whose default name no other light of the current space has.
    void nextDefaultNumber(short& number);
    // Whether a light of the current space has this name, without regard to case.
    [[nodiscard]] static bool lightNameExists(const ZrString& name);
    // The hidden layer of all lights, made when it is missing; null when the layer table is not to be had.
    [[nodiscard]] static ZrDbObjectId systemLightsLayerId();

    static constexpr std::size_t kKindWordSize = 260;

    ZrDbLight* m_pLight = nullptr; // open for write during the option loop
    ZrString m_name;               // as typed at the Name option, or the default that it showed
    ZrString m_webFile;            // the photometric web file as it was typed or chosen
    ZrString m_prevName;           // the default name last offered
    bool m_nameEntered = false;    // the Name option was used
    std::int16_t m_defaultLighting = 1;
    double m_intensity = 0; // what the prompts show as defaults; copied from the light at the start
    double m_physicalIntensity = 0;
    double m_fluxDefault = 0;
    double m_illuminanceDefault = 0;
    double m_lampColorTemp = 0;
    double m_illuminanceDistance = 0;
    double m_startLimit = 0;
    double m_endLimit = 0;
    std::int32_t m_shadowSamples = 0;
    std::int16_t m_lightNumber = 0; // of the default name
    wchar_t m_kindWord[kKindWordSize] = {};
    bool m_lightOn = false; // what the light is to be when the command ends; off while it runs

private:
    [[nodiscard]] bool postLight(std::unique_ptr<ZrDbLight> light);
    void takeSnapshot();
    void resetSpotShadows();
    int keepOrErase(int result, ZrGlobalVarManager& globals);
    void eraseLight();
    void closeLight();
    [[nodiscard]] ZrString defaultName();
    void offerDefaultName();
};
