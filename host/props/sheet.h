// The Properties palette without its pixels: what is selected in the current drawing, by kind, as rows that can be
// changed. With nothing selected they are the drawing's settings.
#pragma once

#include "host/props/reading.h"
#include "host/props/watch.h"

namespace quor {
class Document;
class Session;
} // namespace quor

namespace quor::props {

// A choice of the objects that are shown.
struct Kind {
    ZrString name; // without the number; empty: all of them
    ZrString text; // "Light (3)"
    std::size_t count = 0;
};

class Sheet {
public:
    explicit Sheet(Session& session);

    // Told once when what the rows show has changed, and again after they were read anew.
    void whenStale(std::function<void()> told) { told_ = std::move(told); }

    // All of them first where there are several kinds; one entry in any case.
    [[nodiscard]] const std::vector<Kind>& kinds();
    [[nodiscard]] std::size_t chosenKind();
    // Which of them the rows are about; holds for the same kind of the next selection.
    void chooseKind(std::size_t kind);

    [[nodiscard]] const std::vector<Row>& rows();
    // Another number each time that other objects are shown, so that an editor knows whose value it has.
    [[nodiscard]] std::size_t showing();
    // Whether coordinates are those of the world: the current UCS is the same.
    [[nodiscard]] bool isWorld();
    // Whether anything can be changed now: a drawing is open and no command runs.
    [[nodiscard]] bool isEditable();

    // Changes a property of all objects that are shown, in one step of undo; or answers why not, and nothing changed.
    // What was selected meanwhile is not touched.
    [[nodiscard]] Refusal set(std::string_view id, const ZrString& typed);

private:
    struct Objects {
        Kind kind;
        ZrDbObjectIdArray ids;
    };

    void becomeStale();
    void refresh();
    void sortByKind();
    void readRows();
    [[nodiscard]] Refusal setShown(const Common& common, const ZrString& typed);
    [[nodiscard]] const ZrDbObjectIdArray& shown() const { return objects_[chosen_].ids; }

    Session& session_;
    Watch watch_;
    std::function<void()> told_;
    bool isStale_ = true;
    std::size_t showing_ = 0;
    const Document* document_ = nullptr; // whose objects are shown; to be compared only
    ZrDbObjectIdArray selected_;
    std::vector<Objects> objects_; // by kind
    std::vector<Kind> kinds_;
    std::size_t chosen_ = 0;
    ZrString chosenName_;
    Context context_;
    std::vector<Common> common_;
    std::vector<Row> rows_;
};

} // namespace quor::props
