// The file navigation dialog: a person goes through folders and chooses a file.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

// What DoModal answers.
inline constexpr int kNavDialogOk = 1;
inline constexpr int kNavDialogCancelled = 2; // Cancel, Esc, or there is no more input

class CZrUiNavDialog {
public:
    struct Filter {
        ZrString description; // "IES"
        ZrString pattern;     // "*.ies"
    };

    // Whether a file is to be made (saved) instead of opened.
    void SetCreateFile(bool creates) { createsFile_ = creates; }
    // The box that asks for a file only to read it: whether it is hidden, and whether such an answer is allowed.
    void SetReadOnlyHidden(bool hidden) { readOnlyHidden_ = hidden; }
    void SetReadOnlyAllowed(bool allowed) { readOnlyAllowed_ = allowed; }
    // The file name that stands there at first.
    void SetFileName(const ZrString& name) { fileName_ = name; }
    void SetCaption(const ZrString& caption) { caption_ = caption; }
    // The pane that shows what a file holds: whether the dialog has one, and whether it is shown at first.
    void SetPreviewPane(bool present, bool visible) {
        previewPresent_ = present;
        previewVisible_ = visible;
    }
    // The first filter holds until the person takes another.
    void AddFilter(const ZrString& description, const ZrString& pattern) { filters_.push_back({description, pattern}); }

    // Shows the dialog over the active window and waits: kNavDialogOk, or kNavDialogCancelled.
    int DoModal();
    // The whole paths of the chosen files; none before DoModal and when it was cancelled.
    [[nodiscard]] const std::vector<ZrString>& GetResults() const { return results_; }

private:
    ZrString caption_;
    ZrString fileName_;
    std::vector<Filter> filters_;
    std::vector<ZrString> results_;
    bool createsFile_ = false;
    bool readOnlyHidden_ = false;
    bool readOnlyAllowed_ = true;
    bool previewPresent_ = false;
    bool previewVisible_ = false;
};
