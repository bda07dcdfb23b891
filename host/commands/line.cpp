#include "sdk/db/line.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/draw.h"
#include "host/texts/commands.h"
#include "sdk/db/database.h"

#include <vector>

namespace quor::commands {

namespace {

// A run of segments in the making: its points in the UCS, and the line behind each point but the first.
class LineRun {
public:
    explicit LineRun(const ZrGePoint3d& first) : points_{first} {}

    [[nodiscard]] const ZrGePoint3d& last() const { return points_.back(); }
    [[nodiscard]] bool canClose() const { return lines_.size() >= 2; }

    [[nodiscard]] bool add(const ZrGePoint3d& point) {
        const ZrDbObjectId id = post(std::make_unique<ZrDbLine>(zrdbUcs2Wcs(last()), zrdbUcs2Wcs(point)));
        if (id.isNull())
            return false;
        points_.push_back(point);
        lines_.push_back(id);
        return true;
    }

    void undo() {
        if (lines_.empty())
            return say(texts::kNoSegmentToUndo);
        eraseAgain(lines_.back());
        lines_.pop_back();
        points_.pop_back();
    }

    [[nodiscard]] bool close() { return add(points_.front()); }

private:
    std::vector<ZrGePoint3d> points_;
    std::vector<ZrDbObjectId> lines_;
};

int askNext(const LineRun& run, ZrGePoint3d& point) {
    armKeywords(0, run.canClose() ? L"Close Undo" : L"Undo");
    const Text& prompt = run.canClose() ? texts::kAskNextOrClose : texts::kAskNextPoint;
    return zredGetPoint(&run.last(), prompt.get(), point);
}

} // namespace

// Enter and Esc both end the run; what was drawn stays.
int line(Session&) {
    ZrGePoint3d point;
    if (const int result = zredGetPoint(nullptr, texts::kAskFirstPoint.get(), point); result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    LineRun run(point);
    while (true) {
        const int result = askNext(run, point);
        if (result == RTNORM) {
            if (!run.add(point))
                return RTERROR;
            continue;
        }
        if (result != RTKWORD)
            return result == RTNONE ? RTNORM : result;
        ZrString keyword;
        zredGetInput(keyword);
        if (keyword == L"Close")
            return run.close() ? RTNORM : RTERROR;
        run.undo();
    }
}

} // namespace quor::commands
