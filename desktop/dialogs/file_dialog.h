// Chooses a file: a list of folders and files with places at its left and, where wished, a preview at its right.
#pragma once

#include "desktop/dialogs/file_places.h"
#include "host/texts/text.h"

#include <QFileDialog>

class QCheckBox;
class QLabel;

namespace quor::desktop {

class PreviewPane;

class FileDialog final : public QFileDialog {
    Q_OBJECT

public:
    FileDialog(const FileQuestion& question, const QString& folder, std::vector<FilePlace> places, QWidget* parent);
    ~FileDialog() override;

    // The whole path; empty unless the dialog was accepted.
    [[nodiscard]] QString chosenFile() const;
    [[nodiscard]] bool isReadOnly() const;
    // Null where no preview was wished.
    [[nodiscard]] PreviewPane* preview() const { return preview_; }
    // What is said about a name that cannot be taken; empty otherwise.
    [[nodiscard]] QString complaint() const;

    // Whether the person has said that a file which exists is to be replaced.
    [[nodiscard]] bool mayReplace() const { return mayReplace_; }

    // A name that cannot be taken is complained about in the dialog, not in another one on top. Another file than the
    // one that is named at the start is replaced only after a question.
    void accept() override;

private:
    void setFilters(const FileQuestion& question);
    void setWords(bool forSaving);
    void setPlaces(std::vector<FilePlace> places);
    void setColumnWidths();
    void addPreview();
    void addComplaint();
    void addReadOnlyBox();
    void complain(const Text& about, const QString& name);
    void acceptToOpen(const QString& name);
    void acceptToSave();
    [[nodiscard]] bool isToBeReplaced(const QString& file);
    [[nodiscard]] QString typedName() const;
    // The file that the name means: with the filter's ending where it has none and only so there is one.
    [[nodiscard]] QString meantFile(const QString& name) const;

    QList<QUrl> usualPlaces_;
    PreviewPane* preview_ = nullptr;
    QLabel* complaint_ = nullptr;
    QCheckBox* readOnly_ = nullptr;
    QString ownFile_; // whole path; saving into it needs no question
    bool forSaving_;
    bool mayReplace_ = false;
};

} // namespace quor::desktop
