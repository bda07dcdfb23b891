#include "desktop/properties/text_editors.h"

#include "desktop/qt_text.h"
#include "host/session.h"
#include "host/texts/properties.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

namespace quor::desktop {

namespace {

constexpr int kFrame = 1;
constexpr int kGap = 4;

} // namespace

LineEditor::LineEditor(const props::Row& row, QWidget* parent) : ValueEditor(parent), line_(new QLineEdit(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
    layout->setSpacing(kGap);
    line_->setFrame(false);
    line_->setText(toQt(row.input));
    if (row.varies)
        line_->setPlaceholderText(toQt(row.text));
    layout->addWidget(line_);
    if (!row.unit.empty()) {
        auto* const unit = new QLabel(toQt(row.unit), this);
        unit->setContentsMargins(0, 0, kGap, 0);
        unit->setForegroundRole(QPalette::PlaceholderText);
        layout->addWidget(unit);
    }
    setInput(line_);
    connect(line_, &QLineEdit::textEdited, this, [this] { setWrong(false); });
}

QString LineEditor::text() const { return line_->text(); }

void LineEditor::begin(bool) {
    line_->setFocus();
    line_->selectAll();
}

FileEditor::FileEditor(const props::Row& row, Session& session, QWidget* parent)
    : LineEditor(row, parent), session_(session), button_(new QToolButton(this)) {
    button_->setObjectName("browse");
    button_->setText(QString(QChar(0x2026))); // an ellipsis
    button_->setToolTip(toQt(texts::kBrowse));
    button_->setAccessibleName(toQt(texts::kBrowse));
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->installEventFilter(this);
    layout()->addWidget(button_);
    connect(button_, &QToolButton::clicked, this, [this] { browse(); });
}

bool FileEditor::useKey(QKeyEvent& key) {
    const bool opens = key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && key.modifiers() == Qt::AltModifier);
    if (opens)
        browse();
    return opens;
}

bool FileEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool isOnButton = watched == button_;
        if (!isOnButton && key == Qt::Key_Tab) {
            button_->setFocus(Qt::TabFocusReason);
            return true;
        }
        if (isOnButton && key == Qt::Key_Backtab) {
            line().setFocus(Qt::BacktabFocusReason);
            return true;
        }
        if (isOnButton && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            browse();
            return true;
        }
    }
    return LineEditor::eventFilter(watched, event);
}

// The row may be gone when the person has chosen.
void FileEditor::browse() {
    const QPointer<FileEditor> self = this;
    setAsking(true);
    const FileAnswer answer = session_.front().chooseFile({.caption = texts::kChooseWebFile.get(),
                                                           .filters = {{L"IES", L"*.ies"}},
                                                           .initialName = fromQt(text()),
                                                           .previews = true});
    if (self == nullptr)
        return;
    setAsking(false);
    line().setFocus();
    if (!answer.file || answer.file->empty())
        return;
    line().setText(toQt(*answer.file));
    apply();
}

} // namespace quor::desktop
