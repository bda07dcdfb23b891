// What a photometric web file holds, at a glance: its polar curve and what tells webs apart; or why it is none.
#pragma once

#include "host/ies/reader.h"

#include <QString>
#include <QWidget>

#include <memory>

class QLabel;

namespace quor::desktop {

class PolarView;

class WebPreview final : public QWidget {
    Q_OBJECT

public:
    explicit WebPreview(QWidget* parent = nullptr);

    // Reads the file; a large one beside what the person does, and it is shown when it has come.
    void showFile(const QString& path);

    [[nodiscard]] const PolarView& polar() const { return *polar_; }
    // The facts or the error, as HTML.
    [[nodiscard]] QString text() const;

private:
    void readBeside(const QString& path);
    void showWeb(const ies::WebFile& file);
    void showError(const ies::Error& error, const QString& path);
    void showText(const QString& html);

    PolarView* polar_;
    QLabel* facts_;
    unsigned asked_ = 0; // counts the files, so that one that comes late is not shown in place of another
};

} // namespace quor::desktop
