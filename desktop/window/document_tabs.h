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

Q_SIGNALS:
    // A person wants that drawing; its place among the open ones.
    void chosen(int index);
    void closeWanted(int index);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    DocumentManager& documents_;
    bool isRefreshing_ = false;
};

} // namespace quor::desktop
