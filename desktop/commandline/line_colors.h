// The colours of the command line, from the theme in use.
#pragma once

#include <QColor>

class QAbstractScrollArea;

namespace quor::desktop {

struct LineColors {
    QColor ground;     // behind the history and the input line
    QColor text;       // what the host says
    QColor dim;        // prompts
    QColor bright;     // answers
    QColor link;       // options that can be clicked
    QColor linkGround; // behind the one under the cursor
    QColor selection;
    QColor selectedText;
    QColor edge; // around the input line

    // Those of the running session.
    [[nodiscard]] static LineColors current();
};

// Gives a list or a text these colours.
void giveColors(QAbstractScrollArea& area, const LineColors& colors);

} // namespace quor::desktop
