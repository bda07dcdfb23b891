#include "sdk/ui/nav_dialog.h"

#include "host/session.h"
#include "host/ui/file_dialog.h"

int CZrUiNavDialog::DoModal() {
    results_.clear();
    if (!quor::Session::exists())
        return kNavDialogCancelled;
    quor::FileQuestion question;
    question.caption = caption_;
    for (const Filter& filter : filters_)
        question.filters.push_back({filter.description, filter.pattern});
    question.initialName = fileName_;
    question.forSaving = createsFile_;
    question.previews = previewPresent_ && previewVisible_;
    question.offersReadOnly = readOnlyAllowed_ && !readOnlyHidden_;
    const std::optional<ZrString> file = quor::ui::chooseFile(quor::Session::current(), question);
    if (!file)
        return kNavDialogCancelled;
    results_.push_back(*file);
    return kNavDialogOk;
}
