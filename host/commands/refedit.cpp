#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/db/block_reference.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/session.h"
#include "host/texts/ref_edit.h"

#include <algorithm>

namespace quor::commands {

namespace {

using Problem = db::RefEditProblem;

// What is said of a block that cannot be edited.
struct Row {
    Problem problem;
    const Text& message;
};
const Row kRefusals[] = {
    {Problem::AlreadyEditing, texts::kRefEditGoesOn}, {Problem::NoBlock, texts::kRefEditNoBlock},
    {Problem::SpaceBlock, texts::kRefEditSpaceBlock}, {Problem::ExternalBlock, texts::kRefEditExternal},
    {Problem::Array, texts::kRefEditArray},           {Problem::ZeroScale, texts::kRefEditZeroScale},
    {Problem::EmptyBlock, texts::kRefEditEmpty},      {Problem::BrokenBlock, texts::kRefEditBroken},
    {Problem::InUse, texts::kRefEditInUse},
};

int refuse(Problem problem, const ZrString& block) {
    return failWith(std::ranges::find(kRefusals, problem, &Row::problem)->message, block);
}

int refuseReference(db::Database& drawing, ZrDbObjectId id, Problem problem) {
    if (problem == Problem::NoReference)
        return failWith(texts::kRefEditNoReference, zrFormat(L"%X", {id.handle().value()}), drawing.typeName(id));
    return refuse(problem, db::readBlockReference(drawing, *id.entry())->name);
}

void sayStarted(const ZrString& block, const db::RefEditStart& start) {
    if (start.inWorkset == 0)
        return sayShown(texts::kRefEditStartedEmpty, block);
    sayShown(start.inWorkset == 1 ? texts::kRefEditStartedOne : texts::kRefEditStarted, block, start.inWorkset);
    if (start.left > 0)
        say(start.left == 1 ? texts::kRefEditOneLeft : texts::kRefEditLeft, start.left);
}

// One reference is edited; what is none is passed over.
int editOnly(db::Database& drawing, const ZrDbObjectIdArray& selected) {
    ZrDbObjectIdArray references = selected;
    const std::size_t others =
        std::erase_if(references, [&](ZrDbObjectId id) { return !db::readBlockReference(drawing, *id.entry()); });
    if (references.empty() && others == 1)
        return refuseReference(drawing, selected.front(), Problem::NoReference);
    if (references.empty())
        return failWith(texts::kRefEditNoReferences, others);
    if (references.size() > 1)
        return failWith(texts::kRefEditOne, references.size());
    const auto started = drawing.refEdit().begin(*references.front().entry());
    if (!started)
        return refuseReference(drawing, references.front(), started.error());
    if (others > 0)
        say(others == 1 ? texts::kRefEditOneOther : texts::kRefEditOthers, others);
    sayStarted(drawing.refEdit().blockName(), *started);
    return RTNORM;
}

int refuseToSave(const db::RefEditObstacle& obstacle, const ZrString& block) {
    if (obstacle.object == nullptr)
        return refuse(obstacle.problem, block);
    return failWith(texts::kRefEditTooFar, zrFormat(L"%X", {obstacle.object->handle}), block);
}

int saveBlock(db::RefEdit& editing) {
    const ZrString block = editing.blockName();
    const auto saved = editing.save();
    if (!saved)
        return refuseToSave(saved.error(), block);
    if (saved->changed + saved->added + saved->erased == 0)
        sayShown(texts::kRefEditUnchanged, block);
    else
        sayShown(texts::kRefEditSaved, block, saved->changed, saved->added, saved->erased);
    return RTNORM;
}

int discardChanges(db::RefEdit& editing) {
    const ZrString block = editing.blockName();
    if (const auto discarded = editing.discard(); !discarded)
        return refuse(discarded.error(), block);
    sayShown(texts::kRefEditDiscarded, block);
    return RTNORM;
}

} // namespace

int refEdit(Session& session) {
    db::Database& drawing = session.documents().current()->drawing();
    db::RefEdit& editing = drawing.refEdit();
    if (editing.isActive())
        return refuse(Problem::AlreadyEditing, editing.blockName());
    ZrDbObjectIdArray ids;
    const int result = zredSelect(texts::kSelectReference.get(), ids);
    // What follows in a script is meant for the working set alone.
    if (result == RTNONE)
        return failWith(texts::kRefEditNothing);
    return result == RTNORM ? editOnly(drawing, ids) : result;
}

int refClose(Session& session) {
    db::RefEdit& editing = session.documents().current()->drawing().refEdit();
    if (!editing.isActive())
        return failWith(texts::kNotRefEditing);
    armKeywords(0, L"Save Discard");
    ZrString keyword;
    const int result = zredGetKword(texts::kAskRefClose.get(), keyword);
    if (result != RTNORM && result != RTNONE)
        return result;
    return result == RTNORM && keyword == L"Discard" ? discardChanges(editing) : saveBlock(editing);
}

} // namespace quor::commands
