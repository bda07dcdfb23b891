// The pane beside a list of files: shows what the file under the cursor holds, once the cursor rests on it.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QStackedLayout;

namespace quor::desktop {

class WebPreview;

class PreviewPane final : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);

    // A folder, and what is neither web nor drawing, shows nothing.
    void showFile(const QString& path);
    // Without waiting for the cursor to rest.
    void showNow();

    [[nodiscard]] const WebPreview& web() const { return *web_; }
    [[nodiscard]] QString text() const;

private:
    QStackedLayout* pages_;
    QLabel* words_;
    WebPreview* web_;
    QTimer rest_;
    QString path_;
};

} // namespace quor::desktop
