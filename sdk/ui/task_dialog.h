// A task dialog: a question with command links, an optional check box and a Cancel button.
#pragma once

#include "sdk/sys/string.h"
#include "sdk/ui/dpi.h"

#include <vector>

// Option bits of SetOptions and bits of SetCommonButtons.
inline constexpr int kTaskDialogEnableHyperlinks = 1;
inline constexpr int kTaskDialogAllowCancellation = 8;
inline constexpr int kTaskDialogUseCommandLinks = 16;
inline constexpr int kTaskDialogCancelButton = 8;
// What DoModal answers for Cancel and Esc.
inline constexpr int kTaskDialogCancelled = 2;

class CZrUiTaskDialog {
public:
    struct Command {
        int id;
        ZrString text;
        ZrString explanation;
    };

    void SetDialogWidth(int pixels) { width_ = pixels; }
    void SetWindowTitle(const ZrString& title) { title_ = title; }
    void SetMainInstruction(const ZrString& instruction) { instruction_ = instruction; }
    void AddCommandControl(int id, const ZrString& text) { commands_.push_back({id, text, {}}); }
    // The explanation that stands under a command link.
    void SetCommandControlExtend(int id, const ZrString& explanation);
    void SetVerificationCheckboxText(const ZrString& text) { checkbox_ = text; }
    void SetOptions(int options) { options_ = options; }
    void SetCommonButtons(int buttons) { buttons_ = buttons; }
    // The command that is marked as the recommended one.
    void SetEnableBtn(int id) { recommended_ = id; }

    // Shows the dialog over the active window and waits: the id of the chosen command, or kTaskDialogCancelled. Where
    // it cannot be cancelled, only the end of all input answers that.
    int DoModal();
    [[nodiscard]] bool GetVerificationCheckboxState() const { return checked_; }

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] const ZrString& title() const { return title_; }
    [[nodiscard]] const ZrString& instruction() const { return instruction_; }
    [[nodiscard]] const std::vector<Command>& commands() const { return commands_; }
    [[nodiscard]] const ZrString& checkbox() const { return checkbox_; }
    [[nodiscard]] int options() const { return options_; }
    [[nodiscard]] int buttons() const { return buttons_; }
    // Whether Esc is an answer: the option allows it, or there is a Cancel button.
    [[nodiscard]] bool isCancellable() const {
        return (options_ & kTaskDialogAllowCancellation) != 0 || (buttons_ & kTaskDialogCancelButton) != 0;
    }
    [[nodiscard]] int recommended() const { return recommended_; }

private:
    ZrString title_;
    ZrString instruction_;
    ZrString checkbox_;
    std::vector<Command> commands_;
    int width_ = 0;
    int options_ = 0;
    int buttons_ = 0;
    int recommended_ = 0;
    bool checked_ = false;
};
