// The options of the photometric web: the menu and the rotation of the web. The file has a source of its own.
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"
#include "sdk/sys/case_fold.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {

using Component = double ZrGeVector3d::*;

// The component of the rotation that a keyword names; null for another keyword.
Component componentOf(const ZrString& keyword) {
    struct Axis {
        const wchar_t* keyword;
        Component component;
    };
    static constexpr Axis axes[] = {{L"X", &ZrGeVector3d::x}, {L"Y", &ZrGeVector3d::y}, {L"Z", &ZrGeVector3d::z}};
    const Axis* const found =
        quor::light::findRow(axes, [&](const Axis& axis) { return quor::equalFolded(keyword, axis.keyword); });
    return found != nullptr ? found->component : nullptr;
}

} // namespace

// Exit answers as Esc does, and so does Esc in a question of the menu; only Enter answers RTNONE.
int CZrMultiLight::promptWeb() {
    const LoadedText prompt(texts.webMenuPrompt);
    const LoadedText keywords(texts.webMenuKeywords);
    for (;;) {
        zredInitGet(0, keywords.c_str());
        ZrString keyword;
        const int result = quor::light::askKeyword(prompt.c_str(), keyword);
        if (result == RTCAN || result == RTNONE)
            return result;
        if (result != RTNORM)
            continue;
        if (m_pLight == nullptr)
            return RTNORM;
        if (quor::equalFolded(keyword, L"Exit"))
            return RTCAN;
        if (quor::equalFolded(keyword, L"File")) {
            if (promptWebFile() == RTCAN)
                return RTCAN;
            continue;
        }
        const Component component = componentOf(keyword);
        ZrGeVector3d rotation;
        if (component == nullptr || m_pLight->webRotation(rotation) != Quor::eOk)
            continue;
        const int answered = promptWebRotation(keyword.c_str(), rotation.*component);
        if (answered == RTCAN)
            return RTCAN;
        if (answered == RTNORM)
            m_pLight->setWebRotation(rotation);
    }
}

// The number is kept as it is typed, without a conversion of angles; Enter keeps the one that is shown.
int CZrMultiLight::promptWebRotation(const wchar_t* axis, double& value) {
    const ZrString prompt =
        zrFormat(LoadedText(texts.webRotationPrompt).c_str(), {axis, quor::light::shownNumber(value)});
    zredInitGet(RSG_NONEG, nullptr);
    return zredGetReal(prompt.c_str(), value);
}
