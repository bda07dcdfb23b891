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
    {Problem::InUse, texts::kRefEditInUse},           {Problem::TooFar, texts::kRefEditTooFar},
};

int refuse(Problem problem, const ZrString& block) {
    return failWith(std::ranges::find(kRefusals, problem, &Row::problem)->message, block);
}

int refuseReference(db::Database& drawing, ZrDbObjectId id, Problem problem) {
    if (problem == Problem::NoReference)
        return failWith(texts::kRefEditNoReference, zrFormat(L"%X", {id.handle().value()}), drawing.typeName(id));
    return refuse(problem, db::readBlockReference(drawing, *id.entry())->name);
}

int saveBlock(db::RefEdit& editing) {
    const ZrString block = editing.blockName();
    const auto saved = editing.save();
    if (!saved)
        return refuse(saved.error(), block);
    if (saved->changed + saved->added + saved->erased == 0)
        sayShown(texts::kRefEditUnchanged, block);
    else
        sayShown(texts::kRefEditSaved, block, saved->changed, saved->added, saved->erased);
    return RTNORM;
}

int discardChanges(db::RefEdit& editing) {
    const ZrString block = editing.blockName();
    const auto erased = editing.discard();
    if (!erased)
        return refuse(erased.error(), block);
    sayShown(texts::kRefEditDiscarded, block, *erased);
    return RTNORM;
}

} // namespace

int refEdit(Session& session) {
    db::Database& drawing = session.documents().current()->drawing();
    db::RefEdit& editing = drawing.refEdit();
    if (editing.isActive())
        return refuse(Problem::AlreadyEditing, editing.blockName());
    ZrDbObjectIdArray ids;
    if (const int result = zredSelect(texts::kSelectReference.get(), ids); result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    if (ids.size() != 1)
        return failWith(texts::kRefEditOne, ids.size());
    const auto started = editing.begin(*ids.front().entry());
    if (!started)
        return refuseReference(drawing, ids.front(), started.error());
    sayShown(texts::kRefEditStarted, editing.blockName(), started->inWorkset);
    if (started->left > 0)
        sayShown(texts::kRefEditLeft, started->left);
    return RTNORM;
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
