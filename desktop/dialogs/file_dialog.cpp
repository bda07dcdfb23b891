#include "desktop/dialogs/file_dialog.h"

#include "desktop/dialogs/file_dialog_words.h"
#include "desktop/dialogs/preview_pane.h"
#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QUrl>

namespace quor::desktop {

namespace {
// Qt's name for the line in which a name is typed.
constexpr const char* kNameEdit = "fileNameEdit";

constexpr QSize kSize{760, 460};
constexpr QSize kSizeWithPreview{1080, 600};
} // namespace

FileDialog::FileDialog(const FileQuestion& question, const QString& folder, std::vector<FilePlace> places,
                       QWidget* parent)
    : QFileDialog(parent, toQt(question.caption), folder), forSaving_(question.forSaving) {
    setObjectName("file");
    setModal(true);
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite); // asked in the program's own words
    setOption(DontUseCustomDirectoryIcons);
    setAcceptMode(question.forSaving ? AcceptSave : AcceptOpen);
    setFileMode(question.forSaving ? AnyFile : ExistingFile);
    setViewMode(Detail);
    setProxyModel(new FileColumns(this));
    setFilters(question);
    setWords(question.forSaving);
    setPlaces(std::move(places));
    setColumnWidths();
    if (question.previews)
        addPreview();
    addComplaint();
    if (question.offersReadOnly && !question.forSaving)
        addReadOnlyBox();
    const QString initial = toQt(question.initialName);
    if (!initial.isEmpty())
        selectFile(initial);
    if (QDir::isAbsolutePath(initial))
        ownFile_ = QDir::cleanPath(initial);
    if (preview_ != nullptr && !initial.isEmpty())
        preview_->showFile(directory().absoluteFilePath(initial));
    resize(question.previews ? kSizeWithPreview : kSize);
}

// Qt keeps the places for the dialogs of all programs of the user: it gets back those that it had.
FileDialog::~FileDialog() { setSidebarUrls(usualPlaces_); }

void FileDialog::setFilters(const FileQuestion& question) {
    QStringList filters;
    for (const FileQuestion::Filter& filter : question.filters) {
        const QString pattern = toQt(filter.pattern);
        filters << toQt(filter.name) + " (" + QString(pattern).replace(';', ' ') + ")";
    }
    if (filters.isEmpty())
        return;
    setNameFilters(filters);
    if (forSaving_)
        setDefaultSuffix(toQt(question.filters.front().pattern).section('.', 1, 1).section(';', 0, 0));
}

void FileDialog::setWords(bool forSaving) {
    setLabelText(LookIn, toQt(forSaving ? texts::kFileSaveIn : texts::kFileLookIn));
    setLabelText(FileName, toQt(texts::kFileName));
    setLabelText(FileType, toQt(texts::kFileType));
    setLabelText(Accept, toQt(forSaving ? texts::kFileSave : texts::kFileOpen));
    setLabelText(Reject, toQt(texts::kButtonCancel));
    putWordsOnTools(*this);
}

void FileDialog::setPlaces(std::vector<FilePlace> places) {
    usualPlaces_ = sidebarUrls();
    QList<QUrl> urls;
    for (const FilePlace& place : places)
        urls << QUrl::fromLocalFile(place.folder);
    setSidebarUrls(urls);
    auto* const list = findChild<QListView*>("sidebar");
    if (list == nullptr)
        return;
    list->setAccessibleName(toQt(texts::kFilePlaces));
    list->setItemDelegate(new PlaceNames(std::move(places), list));
}

void FileDialog::setColumnWidths() {
    const auto* const view = findChild<QTreeView*>("treeView");
    if (view == nullptr)
        return;
    const QFontMetrics metrics(font());
    const char* const widest[] = {"a_usual_name_of_a_file.ies", "1000.0 MB", "IES 文件 file", "2026-12-31 23:59 "};
    for (int column = 0; column < 4; ++column)
        view->header()->resizeSection(column, metrics.horizontalAdvance(widest[column]) + 2 * metrics.height());
}

void FileDialog::addPreview() {
    auto* const splitter = findChild<QSplitter*>("splitter");
    if (splitter == nullptr)
        return;
    preview_ = new PreviewPane(this);
    splitter->addWidget(preview_);
    splitter->setSizes({150, 570, 330});
    connect(this, &QFileDialog::currentChanged, preview_, &PreviewPane::showFile);
}

void FileDialog::addComplaint() {
    complaint_ = new QLabel(this);
    complaint_->setObjectName("complaint");
    complaint_->setTextFormat(Qt::PlainText); // names of files are in it
    complaint_->setWordWrap(true);
    complaint_->hide();
    if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
        grid->addWidget(complaint_, grid->rowCount(), 0, 1, grid->columnCount());
    if (const auto* const edit = findChild<QLineEdit*>(kNameEdit))
        connect(edit, &QLineEdit::textEdited, complaint_, &QLabel::hide);
}

void FileDialog::addReadOnlyBox() {
    readOnly_ = new QCheckBox(toQt(texts::kFileReadOnly), this);
    readOnly_->setObjectName("readonly");
    if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
        grid->addWidget(readOnly_, grid->rowCount(), 0, 1, grid->columnCount());
}

bool FileDialog::isReadOnly() const { return readOnly_ != nullptr && readOnly_->isChecked(); }

QString FileDialog::complaint() const { return complaint_->isVisibleTo(this) ? complaint_->text() : QString(); }

QString FileDialog::typedName() const {
    const auto* const edit = findChild<QLineEdit*>(kNameEdit);
    return edit == nullptr ? QString() : edit->text().trimmed();
}

QString FileDialog::meantFile(const QString& name) const {
    const QString home = name.startsWith("~/") ? QDir::homePath() + name.mid(1) : name;
    const QString whole = QDir::cleanPath(directory().absoluteFilePath(home));
    if (forSaving_ || QFileInfo::exists(whole))
        return whole;
    const QString pattern = selectedNameFilter().section('(', -1).section(')', 0, 0).section(' ', 0, 0);
    const QString ending = pattern.startsWith("*.") ? pattern.mid(1) : QString();
    return QFileInfo(whole + ending).isFile() ? whole + ending : whole;
}

QString FileDialog::chosenFile() const {
    const QStringList files = result() == Accepted ? selectedFiles() : QStringList();
    return files.isEmpty() ? QString() : files.front();
}

void FileDialog::complain(const Text& about, const QString& name) {
    complaint_->setText(toQt(fill(about, fromQt(name))));
    complaint_->show();
}

void FileDialog::accept() {
    const QString name = typedName();
    complaint_->hide();
    if (forSaving_)
        acceptToSave();
    else if (name.isEmpty())
        QFileDialog::accept();
    else
        acceptToOpen(name);
}

void FileDialog::acceptToOpen(const QString& name) {
    const QString file = meantFile(name);
    if (!QFileInfo::exists(file))
        return complain(texts::kFileNotThere, name);
    if (auto* const edit = findChild<QLineEdit*>(kNameEdit))
        edit->setText(file);
    QFileDialog::accept();
}

// A folder is only gone into.
void FileDialog::acceptToSave() {
    const QStringList files = selectedFiles();
    if (files.isEmpty() || QFileInfo(files.front()).isDir())
        return QFileDialog::accept();
    const QFileInfo file(files.front());
    if (!file.absoluteDir().exists())
        return complain(texts::kFileFolderNotThere, file.absolutePath());
    const bool replaces = file.exists() && file.absoluteFilePath() != ownFile_;
    if (replaces && !isToBeReplaced(file.absoluteFilePath()))
        return;
    mayReplace_ = replaces;
    QFileDialog::accept();
}

bool FileDialog::isToBeReplaced(const QString& file) {
    QMessageBox box(this);
    box.setObjectName("replace");
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(windowTitle());
    box.setText(toQt(fill(texts::kReplaceQuestion, fromQt(QFileInfo(file).fileName()))));
    box.setInformativeText(toQt(texts::kReplaceConsequence));
    const QPushButton* const replace = box.addButton(toQt(texts::kReplaceButton), QMessageBox::DestructiveRole);
    QPushButton* const cancel = box.addButton(toQt(texts::kButtonCancel), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == replace;
}

} // namespace quor::desktop
