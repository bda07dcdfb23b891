// The words of Qt's file dialog in the language of the host.
#pragma once

#include "desktop/dialogs/file_places.h"

#include <QCollator>
#include <QFileDialog>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

namespace quor::desktop {

// The heads of the columns and the kinds of files; folders stand before files, names in the order of people.
class FileColumns final : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit FileColumns(QObject* parent);

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QCollator collator_;
};

// Places by what they are, not by the names of their folders.
class PlaceNames final : public QStyledItemDelegate {
    Q_OBJECT

public:
    PlaceNames(std::vector<FilePlace> places, QObject* parent);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    std::vector<FilePlace> places_;
};

// Tool tips, menus, and what the letters of the labels lead to.
void putWordsOnTools(QFileDialog& dialog);

} // namespace quor::desktop
