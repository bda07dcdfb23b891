// The rows of the Properties palette below the headings of their groups, each changed in its place. Knows what is shown
// and what is typed; what becomes of it, the panel knows.
#pragma once

#include "desktop/properties/value_editor.h"
#include "host/props/row.h"

#include <QPointer>
#include <QTreeWidget>

#include <functional>
#include <set>
#include <vector>

namespace quor {
class Session;
}

namespace quor::desktop {

class Hint;

class RowTree final : public QTreeWidget {
    Q_OBJECT

public:
    // Takes a value for the row of that id; the refusal, or an empty text.
    using Take = std::function<QString(std::string_view id, const QString& typed)>;

    RowTree(Session& session, Take take, QWidget* parent);

    // `showing`: another number when the rows are about other objects, whose values an open editor does not have.
    void showRows(const std::vector<props::Row>& rows, bool isWorld, std::size_t showing);
    // While it is false, rows can be read only; an open editor is given up.
    void setEditable(bool editable);

    // Opens the editor of a row; nothing happens for one that cannot be changed.
    void beginEdit(QTreeWidgetItem* item, bool byMouse);
    [[nodiscard]] ValueEditor* editor() const { return editor_; }
    // Of a row; null where there is none.
    [[nodiscard]] QTreeWidgetItem* itemOf(std::string_view id) const;
    void giveUp();
    // Takes what an open editor holds, as when the keyboard leaves it; what cannot be taken is given up.
    void finish();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] bool isSameShape(const std::vector<props::Row>& rows) const;
    void rebuild(bool isWorld);
    void updateTexts(bool isWorld);
    void fill(QTreeWidgetItem& item, const props::Row& row) const;
    [[nodiscard]] const props::Row* rowOf(const QTreeWidgetItem* item) const;
    [[nodiscard]] QTreeWidgetItem* groupOf(props::Group group) const;
    // The next row that can be changed, before or behind one.
    [[nodiscard]] QTreeWidgetItem* nextEditable(QTreeWidgetItem* from, int step) const;
    void takeInput(const QString& typed, int step);
    void endEdit();
    // Opens the editor of the current row for another value.
    void editEmptied(QKeyEvent& key);
    void rememberFolded(const QTreeWidgetItem& group, bool folded);

    Session& session_;
    Take take_;
    std::vector<props::Row> rows_;
    std::size_t showing_ = 0;
    bool isEditable_ = true;
    bool isTaking_ = false;
    bool isFilling_ = false;
    bool isResizing_ = false;
    double labelShare_ = 0.46; // of the width; a person may move the border
    std::set<int> folded_;     // groups that a person has closed
    QPointer<ValueEditor> editor_;
    QTreeWidgetItem* edited_ = nullptr;
    Hint* hint_;
};

} // namespace quor::desktop
