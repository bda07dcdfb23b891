#include "desktop/commandline/command_line.h"

#include "desktop/commandline/completer.h"
#include "desktop/commandline/line_font.h"
#include "desktop/commandline/prompt_view.h"
#include "desktop/commandline/text_window.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "host/texts/command_line.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quor::desktop {

namespace {

namespace words = texts::line;

// A command that works shorter than this is over before anybody could read that it does.
constexpr int kWorkMilliseconds = 150;
// The least room for typing beside a prompt, in characters; with less the prompt stands above.
constexpr int kLeastInput = 24;
constexpr int kSideMargin = 6;
constexpr int kGap = 4;
constexpr int kUsualLines = 5;
constexpr int kFewestSteps = -4;
constexpr int kMostSteps = 16;

constexpr const wchar_t* kSection = L"Desktop";
constexpr const wchar_t* kZoomKey = L"CommandLineZoom";
constexpr const wchar_t* kThemeVariable = L"COLORTHEME";

} // namespace

CommandLine::CommandLine(Session& session, DesktopFrontEnd& front, QWidget* parent)
    : QWidget(parent), session_(session), front_(front), lines_(ed::History::defaultFile()), recall_(lines_.load()),
      recent_(ed::History(ed::RecentCommands::defaultFile())) {
    setObjectName("commandLine");
    fontSteps_ = std::clamp(session.settings().getInt(kSection, kZoomKey).value_or(0), kFewestSteps, kMostSteps);
    buildParts();
    connectFront();
    connectParts();
    applyFont();
    applyColors();
    showQuestion();
    listener_ = session.variables().addListener([this](const ZrString& name) {
        if (name == kThemeVariable)
            colorTimer_.start();
    });
}

// The session may have gone before its widgets.
CommandLine::~CommandLine() {
    if (Session::exists())
        Session::current().variables().removeListener(listener_);
}

void CommandLine::buildParts() {
    history_ = new TranscriptView(transcript_, this);
    history_->setAccessibleName(toQt(words::kHistoryName));
    bar_ = new QWidget(this);
    prompt_ = new PromptView(bar_);
    prompt_->setAccessibleName(toQt(words::kPromptName));
    input_ = new InputLine(bar_);
    input_->setAccessibleName(toQt(words::kInputName));
    completer_ = new Completer(session_, front_, *input_);
    textWindow_ = new TextWindow(transcript_, this);
    textWindowAction_ = new QAction(toQt(words::kShowTextWindow), this);
    textWindowAction_->setCheckable(true);
    textWindowAction_->setShortcut(Qt::Key_F2);
    textWindow_->addAction(textWindowAction_);

    barLayout_ = new QGridLayout(bar_);
    barLayout_->setContentsMargins(kSideMargin, 2, kSideMargin, 3);
    barLayout_->setHorizontalSpacing(kGap);
    barLayout_->setVerticalSpacing(0);
    barLayout_->addWidget(prompt_, 0, 0);
    barLayout_->addWidget(input_, 0, 1);
    barLayout_->setColumnStretch(1, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->addWidget(history_, 1);
    layout->addWidget(bar_);
    setFocusProxy(input_);
    setTabOrder(input_, prompt_);
    setTabOrder(prompt_, history_);
}

void CommandLine::connectFront() {
    connect(&front_, &DesktopFrontEnd::printed, &transcript_, &Transcript::print);
    connect(&front_, &DesktopFrontEnd::questionAnswered, this, [this](const QString& prompt, const QString& answer) {
        transcript_.answer(prompt, answer);
        if (front_.question() == nullptr)
            workTimer_.start();
    });
    connect(&front_, &DesktopFrontEnd::questionOpened, this, [this] {
        showQuestion();
        answerNext();
    });
    connect(&front_, &DesktopFrontEnd::brokenOff, this, [this] { ahead_.clear(); });
    connect(&front_, &DesktopFrontEnd::commandGiven, this, &CommandLine::noteCommand);
    connect(&front_, &DesktopFrontEnd::progressed, this, [this](const QString& what, double fraction) {
        const int percent = static_cast<int>(std::floor(fraction * 100));
        working_ = fraction < 1 ? toQt(fill(words::kProgress, fromQt(what), percent)) : QString();
        if (front_.question() == nullptr && !working_.isEmpty())
            showThatItWorks();
    });
    colorTimer_.setSingleShot(true);
    colorTimer_.setInterval(0);
    connect(&colorTimer_, &QTimer::timeout, this, &CommandLine::applyColors);
    workTimer_.setSingleShot(true);
    workTimer_.setInterval(kWorkMilliseconds);
    connect(&workTimer_, &QTimer::timeout, this, &CommandLine::showThatItWorks);
}

void CommandLine::connectParts() {
    connect(prompt_, &PromptView::chosen, this, &CommandLine::choose);
    connect(prompt_, &PromptView::keyTyped, this, &CommandLine::takeKey);
    connect(input_, &InputLine::acted, this, &CommandLine::act);
    connect(input_, &InputLine::textEdited, completer_, &Completer::offerFitting);
    connect(input_, &InputLine::textEdited, this, [this] { recall_.leave(); });
    connect(input_, &InputLine::left, completer_, &Completer::dismiss);
    connect(input_, &InputLine::menuWanted, this, &CommandLine::openMenu);
    connect(input_, &InputLine::zoomWanted, this, &CommandLine::zoom);
    connect(completer_, &Completer::picked, this, &CommandLine::answerWith);
    connectView(*history_);
    connectView(textWindow_->view());
    connect(textWindowAction_, &QAction::triggered, this, &CommandLine::showTextWindow);
    connect(textWindow_, &TextWindow::shownChanged, textWindowAction_, &QAction::setChecked);
}

void CommandLine::connectView(TranscriptView& view) {
    connect(&view, &TranscriptView::keyTyped, this, &CommandLine::takeKey);
    connect(&view, &TranscriptView::menuWanted, this, &CommandLine::openMenu);
    connect(&view, &TranscriptView::zoomWanted, this, &CommandLine::zoom);
}

void CommandLine::showQuestion() {
    workTimer_.stop();
    const Question* const question = front_.question();
    if (question == nullptr)
        return showThatItWorks();
    completer_->dismiss();
    working_.clear();
    input_->setBlankAnswers(!question->acceptsBlanks);
    std::wstring_view prompt = question->prompt;
    while (prompt.starts_with(L'\n'))
        prompt.remove_prefix(1);
    prompt_->showParts(ed::promptParts(prompt, question->keywords));
    const bool atPrompt = question->kind == Question::Kind::Command;
    input_->setPlaceholderText(atPrompt ? toQt(words::kTypeHere) : QString());
    arrange();
}

void CommandLine::showThatItWorks() {
    completer_->dismiss();
    const std::vector<ZrString> running = session_.processor().running();
    const QString command = running.empty() ? toQt(words::kWorking) : toQt(fill(words::kWorkingOn, running.back()));
    prompt_->showText(working_.isEmpty() ? command : working_);
    input_->setPlaceholderText({});
    arrange();
}

// What has no repetition (QUIT) is nothing to come back to, nor is what is no command.
void CommandLine::noteCommand(const QString& line) {
    const ZrString typed = fromQt(line.section(' ', 0, 0, QString::SectionSkipEmpty));
    const ed::Command* const command = session_.commands().find(ed::parseCommandWord(typed));
    if (command != nullptr && (command->flags & ed::kNoRepeat) == 0)
        recent_.add(command->globalName);
}

void CommandLine::act(InputLine::Act act) {
    switch (act) {
    case InputLine::Act::Answer:
        return answer();
    case InputLine::Act::Complete:
        return completer_->complete();
    case InputLine::Act::Older:
        return recallLine(-1);
    case InputLine::Act::Newer:
        return recallLine(1);
    case InputLine::Act::List:
        return completer_->offerAll(recent_.names());
    case InputLine::Act::Cancel:
        return cancel();
    case InputLine::Act::CopyOrCancel:
        return copyOrCancel();
    case InputLine::Act::Paste:
        return paste(QApplication::clipboard()->text());
    }
}

void CommandLine::answer() {
    const std::optional<QString> chosen = completer_->takeChosen();
    answerWith(chosen ? *chosen : input_->text());
}

void CommandLine::answerWith(const QString& typed) {
    completer_->dismiss();
    input_->empty();
    ahead_.push_back(typed);
    answerNext();
}

void CommandLine::choose(const ed::PromptPart& part) {
    completer_->dismiss();
    input_->setFocus();
    front_.giveText(part.answer);
}

void CommandLine::cancel() {
    completer_->dismiss();
    ahead_.clear();
    recall_.leave();
    if (input_->text().isEmpty()) {
        Q_EMIT escaped();
        front_.escape();
    } else {
        input_->empty();
    }
}

void CommandLine::copyOrCancel() {
    if (input_->hasSelectedText())
        input_->copy();
    else if (history_->textCursor().hasSelection())
        history_->copy();
    else
        cancel();
}

void CommandLine::recallLine(int direction) {
    if (completer_->move(direction))
        return;
    const ZrString* const line = direction < 0 ? recall_.older(fromQt(input_->text())) : recall_.newer();
    if (line != nullptr)
        input_->setText(toQt(*line));
}

void CommandLine::paste(const QString& text) {
    QStringList lines = QString(text).remove('\r').split('\n');
    const QString last = lines.takeLast();
    if (lines.isEmpty()) {
        input_->insertText(last);
        completer_->offerFitting();
        return;
    }
    lines.first() = input_->text() + lines.first();
    input_->setText(last);
    ahead_.insert(ahead_.end(), lines.begin(), lines.end());
    answerNext();
}

// Keys may come faster than questions: what was typed while a command worked waits as pasted lines do.
void CommandLine::answerNext() {
    if (ahead_.empty() || front_.question() == nullptr)
        return;
    const QString line = std::move(ahead_.front());
    ahead_.pop_front();
    if (recall_.add(fromQt(line)))
        lines_.add(fromQt(line));
    front_.giveText(fromQt(line));
}

// Only what is typed takes the keyboard along; Esc and Enter work from wherever it is.
void CommandLine::takeKey(QKeyEvent* event) {
    const QString text = event->text();
    const bool isCharacter = !text.isEmpty() && text.front().isPrint() && text != " ";
    const bool pastes = event->matches(QKeySequence::Paste);
    if (isCharacter || pastes) {
        if (!isVisible())
            Q_EMIT neededWhileHidden();
        window()->activateWindow();
        input_->setFocus();
    }
    QKeyEvent forwarded(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat());
    QApplication::sendEvent(input_, &forwarded);
    event->accept();
}

void CommandLine::showTextWindow(bool show) {
    textWindow_->setVisible(show);
    if (show) {
        textWindow_->raise();
        textWindow_->activateWindow();
    }
}

bool CommandLine::isTextWindowShown() const { return textWindow_->isVisible(); }

void CommandLine::zoom(int steps) {
    const int wanted = std::clamp(fontSteps_ + steps, kFewestSteps, kMostSteps);
    if (wanted == fontSteps_)
        return;
    fontSteps_ = wanted;
    session_.settings().setInt(kSection, kZoomKey, fontSteps_);
    applyFont();
}

void CommandLine::applyFont() {
    const QFont font = lineFont(fontSteps_);
    for (QWidget* const widget : {static_cast<QWidget*>(history_), static_cast<QWidget*>(prompt_),
                                  static_cast<QWidget*>(input_), static_cast<QWidget*>(&textWindow_->view())})
        widget->setFont(font);
    completer_->list().setFont(font);
    arrange();
}

void CommandLine::applyColors() {
    const LineColors colors = LineColors::current();
    history_->applyColors(colors);
    textWindow_->view().applyColors(colors);
    prompt_->applyColors(colors);
    completer_->list().applyColors(colors);
    QPalette palette = input_->palette();
    palette.setColor(QPalette::Base, colors.ground);
    palette.setColor(QPalette::Text, colors.bright);
    palette.setColor(QPalette::PlaceholderText, colors.dim);
    palette.setColor(QPalette::Highlight, colors.selection);
    palette.setColor(QPalette::HighlightedText, colors.selectedText);
    input_->setPalette(palette);
    QPalette bar = bar_->palette();
    bar.setColor(QPalette::Window, colors.ground);
    bar_->setPalette(bar);
    bar_->setAutoFillBackground(true);
    update();
}

// A long prompt stands above the line, where it has the whole width.
void CommandLine::arrange() {
    const int typing = input_->fontMetrics().averageCharWidth() * kLeastInput;
    const bool stacked = prompt_->naturalWidth() + kGap + typing > bar_->width() - 2 * kSideMargin;
    if (stacked == isStacked_)
        return;
    isStacked_ = stacked;
    barLayout_->removeWidget(prompt_);
    barLayout_->removeWidget(input_);
    if (stacked) {
        barLayout_->addWidget(prompt_, 0, 0, 1, 2);
        barLayout_->addWidget(input_, 1, 0, 1, 2);
    } else {
        barLayout_->addWidget(prompt_, 0, 0);
        barLayout_->addWidget(input_, 0, 1);
    }
}

QSize CommandLine::sizeHint() const {
    const int line = history_->fontMetrics().lineSpacing();
    return {line * 40, line * (kUsualLines + 2)};
}

void CommandLine::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!wasShown_)
        input_->setFocus();
    wasShown_ = true;
}

void CommandLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    completer_->dismiss();
    arrange();
}

void CommandLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        colorTimer_.start();
}

// The line between history and prompt.
void CommandLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), LineColors::current().edge);
}

} // namespace quor::desktop
