// What the command line has said: the last lines of it, as they stand on the screen, for any number of views.
#pragma once

#include "host/ed/screen_text.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <deque>

namespace quor::desktop {

class Transcript final : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t kMostLines = 10'000;

    enum class Voice { Host, Prompt, Answer };
    // A line, or a part of one: only its last character may be a line break.
    struct Piece {
        QString text;
        Voice voice;
    };

    using QObject::QObject;

    // A text of the host, with its line breaks by the rule of the command-line screen.
    void print(const QString& text);
    // A prompt and its answer on one line.
    void answer(const QString& prompt, const QString& answer);
    void clear();

    // Pieces are numbered from 0 on; those up to first() are forgotten, end() is the number of the next one.
    [[nodiscard]] std::uint64_t first() const { return first_; }
    [[nodiscard]] std::uint64_t end() const { return first_ + pieces_.size(); }
    [[nodiscard]] const Piece& piece(std::uint64_t number) const { return pieces_[number - first_]; }
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    // There are more pieces. Views that draw wait for a pause.
    void changed();
    // There are none any more.
    void cleared();

private:
    void put(std::wstring_view text, Voice voice);
    void append(const QString& text, Voice voice);
    void forgetOldLines();

    ScreenText screen_;
    std::deque<Piece> pieces_;
    std::uint64_t first_ = 0;
    std::size_t lines_ = 0;
};

} // namespace quor::desktop
