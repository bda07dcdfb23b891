// The port through which a program shows and asks things. It is all that the host knows of the program that runs it;
// parsing, checking and asking again are the host's (host/ed).
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/ge/point3d.h"
#include "sdk/sys/string.h"
#include "sdk/ui/geometry.h"

#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <vector>

class CMenu;
class CWnd;
class CZkUiPaletteSet;
class CZrUiTaskDialog;
class ZrDbEntity;

namespace quor {

namespace gs {
class View;
}

// One question on the command line.
struct Question {
    enum class Kind { Command, Text, Keyword, Number, Point, Angle, Distance, Selection };
    Kind kind = Kind::Text;
    std::wstring_view prompt;
    // The words that may be answered, as a person would type them, for completion and clickable keywords.
    std::span<const ZrString> keywords;
    // Where a rubber band starts, in world coordinates.
    std::optional<ZrGePoint3d> base;
    // The base is the first corner of a rectangle, not where a line starts.
    bool baseIsCorner = false;
    // What moves under the cursor during a drag, in the state of the last sample; it may stand in no drawing yet. Lives
    // as long as the question.
    const ZrDbEntity* dragged = nullptr;
    // Blanks belong to the answer.
    bool acceptsBlanks = false;
};

// What came back: typed text, a picked point (world coordinates), entities that were picked (only for a selection),
// Enter alone, Esc, the end of all input, or that the input broke (a read error); nobody is asked any more after that.
struct Answer {
    enum class Kind { Text, Point, Objects, Enter, Cancel, End, Broken };
    Kind kind = Kind::End;
    ZrString text;
    ZrGePoint3d point;
    std::vector<ZrDbObjectId> objects{};
    bool takesAway = false; // the picked entities are to leave the selection
};

// The answer to a task dialog: the id of the command, or nothing when it was cancelled.
struct TaskDialogAnswer {
    std::optional<int> command;
    bool checked = false;
    bool inputEnded = false; // cancelled because there is no more input
};

// What is to become of a drawing that would lose changes.
enum class SaveChoice { Save, Discard, Cancel };

// A file that is to be chosen.
struct FileQuestion {
    struct Filter {
        ZrString name;    // "IES"
        ZrString pattern; // "*.ies"
    };
    ZrString caption;
    std::vector<Filter> filters; // the first one holds until another is chosen
    ZrString initialName;
    bool forSaving = false;
    bool previews = false;       // a pane shows what the file under the cursor holds
    bool offersReadOnly = false; // a box asks whether the file is only to be read
};

// The whole path of the file; empty when it was cancelled.
struct FileAnswer {
    std::optional<ZrString> file;
    bool inputEnded = false; // cancelled because there is no more input
    bool mayReplace = false; // the person was asked whether a file that exists is to be replaced
};

// Protocol of a question: print() its prompt is the front end's business inside ask(); the host prints everything else.
class FrontEnd {
public:
    // What most screens show.
    static constexpr int kUsualColumns = 80;
    // Where there is no screen, as in files and pipes: lines are as long as what they say.
    static constexpr int kAnyColumns = std::numeric_limits<int>::max();

    virtual ~FrontEnd() = default;

    // How many columns a line of text may take, for those who lay out tables; a wide character takes two.
    [[nodiscard]] virtual int columns() const { return kUsualColumns; }
    // Prints a text as it stands. A text that begins with a line break starts on a fresh line.
    virtual void print(std::wstring_view text) = 0;
    // Shows the prompt and waits for an answer.
    virtual Answer ask(const Question& question) = 0;
    // Shows a prompt with its answer that came from a script, a macro or a program, as if it had been typed.
    virtual void echo(const Question& question, std::wstring_view answer) = 0;
    // As ask(), with each point that passes under the cursor (world coordinates) told on the way.
    virtual Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) = 0;
    virtual TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) = 0;
    virtual FileAnswer chooseFile(const FileQuestion& question) = 0;
    // Whether files are chosen in a dialog: commands ask there first, unless FILEDIA is 0.
    [[nodiscard]] virtual bool hasDialogs() const { return false; }
    // What is to become of the changes of a drawing that is about to be closed; nothing: ask on the command line.
    virtual std::optional<SaveChoice> askToSave(std::wstring_view /*drawing*/) { return std::nullopt; }
    // What a person asked for cannot be done, in their words; it stands on the command line already.
    virtual void showProblem(std::wstring_view /*message*/) {}
    // A window at the top was made: a program with a screen attaches its peers here.
    virtual void realise(CWnd& /*window*/) {}
    // A palette was brought to view by the command that has just ended, or in between: what it shows is up to date.
    virtual void paletteShown(const CZkUiPaletteSet& /*palette*/) {}
    // Shows a menu at a point of the screen and waits: the command that was chosen, or 0.
    virtual unsigned trackMenu(const CMenu& /*menu*/, CPoint /*screen*/) { return 0; }
    // A macro waits for the next command prompt. A question that is open is answered with Esc where it is the command
    // prompt or the macro cancels what runs.
    virtual void macroQueued(bool /*cancelsFirst*/) {}
    // Shows the properties of what is selected in a window of its own; false where there is no such window.
    virtual bool showProperties() { return false; }
    // The same of the layers.
    virtual bool showLayers() { return false; }
    // Shows or hides the window with all that the command line has said; false where there is none.
    virtual bool showTextWindow(bool /*show*/) { return false; }
    // The picture of the current drawing, which ZOOM and the like change; null where no drawing is seen.
    virtual gs::View* view() { return nullptr; }
    // Whether the desktop around the program is dark; without one it counts as dark.
    [[nodiscard]] virtual bool desktopIsDark() const { return true; }
    // Something that is shown has changed.
    virtual void redraw() {}
    // How far something long has come, 0 to 1; 1 takes the display away.
    virtual void progress(std::wstring_view /*what*/, double /*fraction*/) {}
};

} // namespace quor
