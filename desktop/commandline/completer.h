// Offers what may be typed at the question that waits, in a list beside the input line.
#pragma once

#include "desktop/commandline/candidate_list.h"
#include "host/ed/completion.h"

namespace quor {
class Session;
}

namespace quor::desktop {

class DesktopFrontEnd;
class InputLine;

class Completer final : public QObject {
    Q_OBJECT

public:
    // The list stands beside the line and is owned by it.
    Completer(Session& session, DesktopFrontEnd& front, InputLine& line);

    // What fits what was typed, while it is typed.
    void offerFitting();
    // The options of the question; at the command prompt these commands. The first one is chosen already.
    void offerAll(const std::vector<ZrString>& commands);
    // Tab: what all that fits has in common; else the next one of the list.
    void complete();
    // Up and Down in the list; false when it is closed.
    bool move(int direction);
    // The line with the chosen row in it; nothing when none is chosen. The list closes.
    [[nodiscard]] std::optional<QString> takeChosen();
    void dismiss() { list_->dismiss(); }
    [[nodiscard]] CandidateList& list() { return *list_; }

Q_SIGNALS:
    // A row was clicked: the line with it.
    void picked(const QString& line);

private:
    [[nodiscard]] ed::Completion fitting() const;
    [[nodiscard]] std::vector<CandidateList::Row> rowsOf(const ed::Completion& completion) const;
    [[nodiscard]] QString detailOf(const ZrString& candidate) const;
    [[nodiscard]] QString lineWith(const QString& word) const;
    void show(std::vector<CandidateList::Row> rows);

    Session& session_;
    DesktopFrontEnd& front_;
    InputLine& line_;
    CandidateList* list_;
    qsizetype from_ = 0; // where the word begins for which the list stands
};

} // namespace quor::desktop
