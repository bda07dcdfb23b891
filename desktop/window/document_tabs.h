// The tabs of the open drawings.
#pragma once

#include <QTabBar>

namespace quor {
class Document;
class DocumentManager;
} // namespace quor

namespace quor::desktop {

class DocumentTabs final : public QTabBar {
    Q_OBJECT

public:
    explicit DocumentTabs(DocumentManager& documents, QWidget* parent = nullptr);
    // As many tabs as drawings, with their names and marks, the current one in front.
    void refresh();
    // Chooses the drawing that stands so many places on; behind the last one comes the first.
    void step(int places);

Q_SIGNALS:
    // A person wants that drawing; its place among the open ones.
    void chosen(int index);
    void closeWanted(int index);

protected:
    // Names stay readable, however many there are: the bar is scrolled.
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void addDrawing();
    [[nodiscard]] int tabWith(const QWidget* button) const;

    DocumentManager& documents_;
};

} // namespace quor::desktop
