// Dialogs: windows laid out from a template of the resources.
#pragma once

#include "sdk/ui/window.h"

class CDialog : public CWnd {
public:
    ~CDialog() override;

    // Makes the window with the controls of a template of the resources in use, without waiting for it (modeless), and
    // calls OnInitDialog(). Hidden until it is shown. False when there is no such template or no parent window.
    bool Create(unsigned templateId, CWnd& parent);
    // An object takes over a control of the template, which had one of the host's. False when there is none of that
    // number, or it is taken over already.
    bool SubclassDlgItem(unsigned id, CWnd& control);

protected:
    virtual void OnInitDialog() {}
    // Enter and Esc, wherever the keyboard is in the dialog.
    virtual void OnOK() {}
    virtual void OnCancel() {}
    bool PreTranslateMessage(const InputMessage& message) override;

private:
    std::vector<std::unique_ptr<CWnd>> templateControls_;
};

// A dialog in the host's look: its background is the theme's.
class CZkUiBaseDialog : public CDialog {
protected:
    bool OnEraseBkgnd(CDC& dc) override;
};

// A dialog that stays beside the drawing: Enter and Esc do not close it.
class CZkUiDialog : public CZkUiBaseDialog {
protected:
    void OnOK() override {}
    void OnCancel() override {}
};

// A dialog inside a palette of a module.
class CZrUiDialog : public CZkUiDialog {};
