#include "tests/host/db/ref_editing.h"

namespace quor::db {
namespace {

using namespace drawings;

TEST_F(RefEditing, SaysWhyAReferenceIsNotEdited) {
    EXPECT_EQ(editing().whyNot(entry(0x69)), RefEditProblem::NoReference);
    EXPECT_EQ(editing().whyNot(entry(0x65)), RefEditProblem::Array);
    EXPECT_EQ(editing().whyNot(entry(0x66)), RefEditProblem::ExternalBlock);
    EXPECT_EQ(editing().whyNot(entry(0x67)), RefEditProblem::EmptyBlock);
    EXPECT_EQ(editing().whyNot(entry(kPlain)), std::nullopt);
}

TEST_F(RefEditing, AnErasedContentIsNone) {
    begin(0x68);
    discard();
    erase(id(0x59));

    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::EmptyBlock);
}

TEST_F(RefEditing, OneAtATime) {
    begin(kPlain);

    EXPECT_EQ(editing().begin(entry(kTurned)).error(), RefEditProblem::AlreadyEditing);
}

TEST_F(RefEditing, NeedsABlockOfThatName) {
    database = with(original, "  2\nPLAIN\n 10", "  2\nNOWHERE\n 10");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::NoBlock);
}

TEST_F(RefEditing, RefusesTheModel) {
    database = with(original, "  2\nPLAIN\n 10", "  2\n*Model_Space\n 10");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::SpaceBlock);
}

TEST_F(RefEditing, RefusesAScaleOfZero) {
    database = with(original, " 43\n0.5\n", " 43\n0\n");
    EXPECT_EQ(editing().whyNot(entry(kStretched)), RefEditProblem::ZeroScale);
}

TEST_F(RefEditing, RefusesABlockWithoutAnEnd) {
    database = with(original, "  0\nENDBLK\n  5\n58\n", "  0\nTRASH\n  5\n58\n");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::BrokenBlock);
}

TEST_F(RefEditing, RefusesAReferenceThatIsOpen) {
    const ZrDbObjectPointer<ZrDbEntity> reader(id(kPlain), ZrDb::kForRead);

    EXPECT_EQ(editing().begin(entry(kPlain)).error(), RefEditProblem::InUse);
}

TEST_F(RefEditing, ChangesNothingWhileAnObjectIsOpen) {
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });
    const ZrDbObjectPointer<ZrDbLight> reader(id(0x46), ZrDb::kForRead);
    const ZrDbObjectPointer<ZrDbLight> copyReader(pendant(), ZrDb::kForRead);

    EXPECT_EQ(editing().save().error().problem, RefEditProblem::InUse);
    EXPECT_EQ(editing().discard().error(), RefEditProblem::InUse);

    EXPECT_EQ(workset().size(), 4U);
    EXPECT_EQ(reader->intensity(), 0.8);
}

TEST_F(RefEditing, KeepsAPointThatHasNoPlaceInTheBlock) {
    database = with(original, " 43\n0.5\n", " 43\n1e-9\n");
    begin(kStretched);
    change(spot(), [](ZrDbLight& light) { light.setPosition({0, 0, 1e300}); });

    const RefEditObstacle obstacle = editing().save().error();

    EXPECT_EQ(obstacle.problem, RefEditProblem::TooFar);
    EXPECT_EQ(obstacle.object, spot().entry());
    EXPECT_TRUE(editing().isActive());
    EXPECT_EQ(workset().size(), 4U);
}

TEST_F(RefEditing, NamesWhatWasDrawnTooFarAway) {
    database = with(original, " 43\n0.5\n", " 43\n1e-9\n");
    begin(kStretched);
    const ZrDbObjectId made = addLight(*database);
    change(made, [](ZrDbLight& light) { light.setPosition({0, 0, 1e300}); });

    EXPECT_EQ(editing().save().error().object, made.entry());
}

TEST_F(RefEditing, LeavesWhatWouldLieBeyondAllNumbersInTheBlock) {
    database = with(original, " 43\n0.5\n", " 43\n1e308\n");

    const RefEditStart start = begin(kStretched);

    EXPECT_EQ(start.inWorkset, 2U); // the line and the face lie lower
    EXPECT_EQ(start.left, 3U);
}

TEST_F(RefEditing, TheDrawingIsNotSavedMeanwhile) {
    begin(kPlain);

    EXPECT_FALSE(database->toBytes().ok());
    EXPECT_NE(database->toBytes().error().message.find(L"LAMP"), ZrString::npos);
}

} // namespace
} // namespace quor::db
