// The file of the photometric web: typed, found by its name, or chosen in a dialog.
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/ed/find_file.h"
#include "sdk/ed/print.h"
#include "sdk/sys/case_fold.h"
#include "sdk/sys/files.h"
#include "sdk/sys/format.h"
#include "sdk/ui/nav_dialog.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {

constexpr const wchar_t* dialogReply = L"~"; // opens the file dialog
// What a path must hold, anywhere and in small letters.
constexpr const wchar_t* fileNamePart = L".ies";

void say(const quor::light::Text& text, const ZrString& path) { zrutPrintf(LoadedText(text).c_str(), path); }

// False when nothing was chosen.
bool chooseInDialog(ZrString& path) {
    CZrUiNavDialog dialog;
    dialog.SetCreateFile(false);
    dialog.SetReadOnlyHidden(true);
    dialog.SetReadOnlyAllowed(false);
    dialog.SetFileName(L"");
    dialog.SetCaption(LoadedText(texts.webFileDialogCaption).str());
    dialog.SetPreviewPane(true, true);
    dialog.AddFilter(L"IES", L"*.ies");
    const bool isChosen = dialog.DoModal() == kNavDialogOk || dialog.GetResults().size() == 1;
    if (isChosen && !dialog.GetResults().empty())
        path = dialog.GetResults().front();
    return isChosen;
}

} // namespace

// Enter keeps the file; it answers RTNORM, as a file does that was set.
int CZrMultiLight::promptWebFile() {
    const ZrString prompt = zrFormat(LoadedText(texts.webFilePrompt).c_str(), {m_webFile});
    for (;;) {
        zredInitGet(0, nullptr);
        ZrString reply;
        int result = quor::light::askLine(prompt.c_str(), reply);
        if (result == RTCAN)
            return RTCAN;
        if (result != RTNORM)
            continue;
        if (m_pLight == nullptr || reply.empty())
            return RTNORM;
        if (quor::equalFolded(reply, L"eXit"))
            return RTCAN;
        result = chooseWebFile(reply);
        if (result == RTCAN || result == RTNORM)
            return result;
    }
}

// RTERROR: the question comes again, without a word where the light refuses the file. A name that is no web file's is
// refused with a message, and yet answers RTNORM as a file does that was set.
int CZrMultiLight::chooseWebFile(const ZrString& reply) {
    ZrString path;
    const int found = zredFindFile(reply.c_str(), path);
    if (found == RTCAN)
        return RTCAN;
    if (found != RTNORM) {
        if (reply != dialogReply) {
            say(texts.fileNotFound, reply);
            return RTERROR;
        }
        if (!chooseInDialog(path))
            return RTNORM;
    }
    if (!path.empty() && !PathFileExistsW(path.c_str())) {
        say(texts.fileNotFound, path);
        return RTERROR;
    }
    if (path.find(fileNamePart) == ZrString::npos) {
        say(texts.fileNameInvalid, path);
        return RTNORM;
    }
    if (m_pLight == nullptr || m_pLight->setWebFile(path) != Quor::eOk)
        return RTERROR;
    m_webFile = path;
    return RTNORM;
}
