#include "desktop/dialogs/file_dialog_words.h"

#include "desktop/dialogs/facts_html.h"
#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileSystemModel>
#include <QLabel>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quor::desktop {

namespace {

// The columns of QFileSystemModel.
enum Column { Name, Size, Kind, Date };

constexpr const Text* kHeads[] = {&texts::kFileColumnName, &texts::kFileColumnSize, &texts::kFileColumnType,
                                  &texts::kFileColumnDate};

// Where the places keep their folders.
constexpr int kUrlRole = Qt::UserRole + 1;

struct ToolWords {
    const char* name;
    const Text* words;
};

constexpr ToolWords kButtons[] = {{"backButton", &texts::kFileBack},       {"forwardButton", &texts::kFileForward},
                                  {"toParentButton", &texts::kFileParent}, {"newFolderButton", &texts::kFileNewFolder},
                                  {"listModeButton", &texts::kFileList},   {"detailModeButton", &texts::kFileDetails}};
constexpr ToolWords kActions[] = {{"qt_rename_action", &texts::kFileRename},
                                  {"qt_delete_action", &texts::kFileDelete},
                                  {"qt_show_hidden_action", &texts::kFileHidden},
                                  {"qt_new_folder_action", &texts::kFileNewFolder}};

constexpr std::pair<const char*, const char*> kLabels[] = {{"lookInLabel", "lookInCombo"},
                                                           {"fileTypeLabel", "fileTypeCombo"}};

QFileInfo infoOf(const QModelIndex& source) {
    const auto* const files = qobject_cast<const QFileSystemModel*>(source.model());
    return files == nullptr ? QFileInfo() : files->fileInfo(source);
}

QString kindOf(const QFileInfo& file) {
    if (file.isDir())
        return toQt(texts::kFileKindFolder);
    const QString suffix = file.suffix();
    return suffix.isEmpty() ? toQt(texts::kFileKindPlain) : toQt(fill(texts::kFileKindOf, fromQt(suffix.toUpper())));
}

QString sizeOf(const QFileInfo& file) { return file.isDir() ? QString() : fileSizeText(file.size()); }

} // namespace

FileColumns::FileColumns(QObject* parent) : QSortFilterProxyModel(parent) {
    collator_.setCaseSensitivity(Qt::CaseInsensitive);
    collator_.setNumericMode(true);
}

QVariant FileColumns::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= Name && section <= Date)
        return toQt(*kHeads[section]);
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

QVariant FileColumns::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole && index.column() == Kind)
        return kindOf(infoOf(mapToSource(index)));
    if (role == Qt::DisplayRole && index.column() == Size)
        return sizeOf(infoOf(mapToSource(index)));
    if (role == Qt::DisplayRole && index.column() == Date)
        return infoOf(mapToSource(index)).lastModified().toString("yyyy-MM-dd HH:mm");
    return QSortFilterProxyModel::data(index, role);
}

bool FileColumns::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const QFileInfo a = infoOf(left);
    const QFileInfo b = infoOf(right);
    if (a.isDir() != b.isDir())
        return a.isDir() == (sortOrder() == Qt::AscendingOrder);
    if (left.column() == Size && a.size() != b.size())
        return a.size() < b.size();
    if (left.column() == Date && a.lastModified() != b.lastModified())
        return a.lastModified() < b.lastModified();
    if (left.column() == Kind && a.suffix() != b.suffix())
        return a.suffix() < b.suffix();
    return collator_.compare(a.fileName(), b.fileName()) < 0;
}

PlaceNames::PlaceNames(std::vector<FilePlace> places, QObject* parent)
    : QStyledItemDelegate(parent), places_(std::move(places)) {}

void PlaceNames::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString folder = index.data(kUrlRole).toUrl().toLocalFile();
    const auto place = std::ranges::find_if(places_, [&](const FilePlace& known) { return known.folder == folder; });
    if (place != places_.end())
        option->text = place->name;
}

void putWordsOnTools(QFileDialog& dialog) {
    for (const ToolWords& tool : kButtons)
        if (auto* const button = dialog.findChild<QAbstractButton*>(tool.name)) {
            button->setToolTip(toQt(*tool.words));
            button->setAccessibleName(toQt(*tool.words));
            button->setFocusPolicy(Qt::TabFocus);
        }
    for (const ToolWords& tool : kActions)
        if (auto* const action = dialog.findChild<QAction*>(tool.name))
            action->setText(toQt(*tool.words));
    for (const auto& [label, box] : kLabels)
        if (auto* const words = dialog.findChild<QLabel*>(label))
            words->setBuddy(dialog.findChild<QWidget*>(box));
}

} // namespace quor::desktop
