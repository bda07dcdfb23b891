#include "sdk/ed/selection_sets.h"

#include "tests/host/ed/drawn_lines.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using quor::test::addLine;
using quor::test::erase;
using quor::test::SelectionCounter;
using quor::test::TestSession;

namespace {

class SelectionSets : public testing::Test {
protected:
    static ZdsName nameOf(ZrDbObjectId id) {
        ZdsName name;
        EXPECT_EQ(zrdbGetZdsName(name, id), Quor::eOk);
        return name;
    }
    static ZdsName setOf(std::initializer_list<ZrDbObjectId> ids) {
        ZdsName set;
        EXPECT_EQ(zredSSAdd(nullptr, nullptr, set), RTNORM);
        for (const ZrDbObjectId id : ids) {
            const ZdsName name = nameOf(id);
            EXPECT_EQ(zredSSAdd(&name, &set, set), RTNORM);
        }
        return set;
    }
    static long lengthOf(const ZdsName& set) {
        long length = -1;
        EXPECT_EQ(zredSSLength(set, length), RTNORM);
        return length;
    }
    static ZrDbObjectId member(const ZdsName& set, long index) {
        ZdsName name;
        ZrDbObjectId id;
        EXPECT_EQ(zredSSName(set, index, name), RTNORM);
        EXPECT_EQ(zrdbGetObjectId(id, name), Quor::eOk);
        return id;
    }

    TestSession test_;
    ZrDbObjectId first_ = addLine();
    ZrDbObjectId second_ = addLine();
    ZrDbObjectId third_ = addLine();
};

TEST_F(SelectionSets, NameOfAnObjectLeadsBackToIt) {
    ZrDbObjectId id;
    EXPECT_EQ(zrdbGetObjectId(id, nameOf(second_)), Quor::eOk);
    EXPECT_EQ(id, second_);
}

TEST_F(SelectionSets, NothingAndASetHaveNoObjectBehindTheirNames) {
    ZdsName name;
    ZrDbObjectId id = first_;
    EXPECT_EQ(zrdbGetZdsName(name, ZrDbObjectId()), Quor::eInvalidInput);
    EXPECT_EQ(zrdbGetObjectId(id, ZdsName()), Quor::eInvalidInput);
    EXPECT_EQ(zrdbGetObjectId(id, setOf({second_})), Quor::eInvalidInput);
    EXPECT_EQ(id, first_);
}

TEST_F(SelectionSets, ImpliedSelectionComesInTheOrderOfSelecting) {
    zredSetImpliedSelection({third_, first_});

    ZdsName set;
    ASSERT_EQ(zredSSGet(L"I", set), RTNORM);

    EXPECT_EQ(lengthOf(set), 2);
    EXPECT_EQ(member(set, 0), third_);
    EXPECT_EQ(member(set, 1), first_);
}

TEST_F(SelectionSets, NothingSelectedIsNoSet) {
    ZdsName set = setOf({first_});
    EXPECT_EQ(zredSSGet(L"I", set), RTERROR);
    EXPECT_EQ(set, ZdsName());
}

TEST_F(SelectionSets, UnknownModesAreNoSet) {
    zredSetImpliedSelection({first_});
    ZdsName set;
    EXPECT_EQ(zredSSGet(L"X", set), RTERROR);
    EXPECT_EQ(zredSSGet(L"", set), RTERROR);
    EXPECT_EQ(zredSSGet(nullptr, set), RTERROR);
    EXPECT_EQ(set, ZdsName());
}

TEST_F(SelectionSets, ImpliedSelectionOfNoDrawingIsNoSet) {
    zredSetImpliedSelection({first_});
    test_.session().documents().closeAll();
    ZdsName set;
    EXPECT_EQ(zredSSGet(L"I", set), RTERROR);
}

TEST_F(SelectionSets, ObjectStandsInASetOnce) {
    const ZdsName set = setOf({first_, second_, first_});
    EXPECT_EQ(lengthOf(set), 2);
    EXPECT_EQ(member(set, 1), second_);
}

TEST_F(SelectionSets, ObjectStandsOnceInTheSetOfTheImpliedSelectionToo) {
    zredSetImpliedSelection({first_, second_});
    ZdsName set;
    ASSERT_EQ(zredSSGet(L"I", set), RTNORM);
    const ZdsName again = nameOf(first_);
    const ZdsName other = nameOf(third_);

    EXPECT_EQ(zredSSAdd(&again, &set, set), RTNORM);
    EXPECT_EQ(zredSSAdd(&other, &set, set), RTNORM);

    EXPECT_EQ(lengthOf(set), 3);
    EXPECT_EQ(member(set, 2), third_);
}

TEST_F(SelectionSets, SetOfASingleObjectIsMadeAtOnce) {
    const ZdsName line = nameOf(second_);
    ZdsName set;
    EXPECT_EQ(zredSSAdd(&line, nullptr, set), RTNORM);
    EXPECT_EQ(lengthOf(set), 1);
    EXPECT_EQ(member(set, 0), second_);
}

TEST_F(SelectionSets, WhatIsNoObjectOrNoSetIsNotAdded) {
    ZdsName set = setOf({first_});
    const ZdsName line = nameOf(second_);
    const ZdsName nothing;
    ZdsName result = line;
    EXPECT_EQ(zredSSAdd(&nothing, &set, result), RTERROR);
    EXPECT_EQ(zredSSAdd(&set, &set, result), RTERROR);
    EXPECT_EQ(zredSSAdd(nullptr, &set, result), RTERROR);
    EXPECT_EQ(zredSSAdd(&line, &nothing, result), RTERROR);
    EXPECT_EQ(zredSSAdd(&line, &line, result), RTERROR);
    EXPECT_EQ(result, line);
    EXPECT_EQ(lengthOf(set), 1);
}

TEST_F(SelectionSets, IndexBesideTheMembersNamesNone) {
    const ZdsName set = setOf({first_});
    ZdsName name;
    EXPECT_EQ(zredSSName(set, 1, name), RTERROR);
    EXPECT_EQ(zredSSName(set, -1, name), RTERROR);
    EXPECT_EQ(name, ZdsName());
}

TEST_F(SelectionSets, FreedSetIsOneNoMore) {
    const ZdsName set = setOf({first_});
    EXPECT_EQ(zredSSFree(set), RTNORM);

    long length = 7;
    ZdsName name;
    EXPECT_EQ(zredSSLength(set, length), RTERROR);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(zredSSName(set, 0, name), RTERROR);
    EXPECT_EQ(zredSSSetFirst(&set), RTERROR);
    EXPECT_EQ(zredSSFree(set), RTERROR);
}

TEST_F(SelectionSets, FreeingWhatWasNeverMadeDoesNothing) {
    const ZdsName set = setOf({first_});
    EXPECT_EQ(zredSSFree(ZdsName()), RTERROR);
    EXPECT_EQ(zredSSFree(nameOf(first_)), RTERROR);
    EXPECT_EQ(lengthOf(set), 1);
}

TEST_F(SelectionSets, SetsDoNotKnowOfEachOther) {
    const ZdsName one = setOf({first_});
    const ZdsName other = setOf({second_, third_});
    EXPECT_NE(one, other);
    zredSSFree(one);
    EXPECT_EQ(lengthOf(other), 2);
}

TEST_F(SelectionSets, SetBecomesThePickFirstSelection) {
    SelectionCounter counter;
    zredAddSelectionReactor(&counter);
    const ZdsName set = setOf({third_, first_});

    EXPECT_EQ(zredSSSetFirst(&set), RTNORM);
    EXPECT_EQ(zredSSSetFirst(&set), RTNORM);
    zredRemoveSelectionReactor(&counter);

    EXPECT_EQ(zredImpliedSelection(), (ZrDbObjectIdArray{third_, first_}));
    EXPECT_EQ(counter.changes, 1);
}

TEST_F(SelectionSets, NullAndEmptySetsSelectNothing) {
    const ZdsName empty = setOf({});
    zredSetImpliedSelection({first_});
    EXPECT_EQ(zredSSSetFirst(&empty), RTNORM);
    EXPECT_TRUE(zredImpliedSelection().empty());

    zredSetImpliedSelection({first_});
    EXPECT_EQ(zredSSSetFirst(nullptr), RTNORM);
    EXPECT_TRUE(zredImpliedSelection().empty());
}

TEST_F(SelectionSets, WhatIsNoSetLeavesTheSelectionAlone) {
    zredSetImpliedSelection({first_});
    const ZdsName line = nameOf(second_);
    EXPECT_EQ(zredSSSetFirst(&line), RTERROR);
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{first_});
}

TEST_F(SelectionSets, ErasedObjectsAndThoseOfOtherDrawingsAreNotSelected) {
    const ZrDbObjectIdArray others = [&] {
        test_.session().documents().newDocument();
        return ZrDbObjectIdArray{addLine()};
    }();
    test_.session().documents().setCurrent(test_.session().documents().all().front().get());
    erase(second_);
    const ZdsName set = setOf({others.front(), first_, second_});

    EXPECT_EQ(zredSSSetFirst(&set), RTNORM);

    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{first_});
}

TEST_F(SelectionSets, ObjectsOfAClosedDrawingLeaveTheirSets) {
    quor::DocumentManager& documents = test_.session().documents();
    quor::Document& closed = documents.newDocument();
    const ZrDbObjectId gone = addLine();
    const ZdsName set = setOf({first_, gone, second_});

    documents.close(closed);

    EXPECT_EQ(lengthOf(set), 2);
    EXPECT_EQ(member(set, 1), second_);
    EXPECT_EQ(zredSSSetFirst(&set), RTNORM);
    EXPECT_EQ(zredImpliedSelection(), (ZrDbObjectIdArray{first_, second_}));
}

TEST_F(SelectionSets, ManyObjectsKeepTheirOrder) {
    std::vector<ZrDbObjectId> lines(1000);
    for (ZrDbObjectId& line : lines)
        line = addLine();
    ZdsName set = setOf({});
    for (const ZrDbObjectId line : lines) {
        const ZdsName name = nameOf(line);
        zredSSAdd(&name, &set, set);
    }
    zredSSSetFirst(&set);
    EXPECT_EQ(zredImpliedSelection(), lines);
}

TEST(SelectionSetsOutsideASession, AreNone) {
    ZdsName set;
    long length = 1;
    EXPECT_EQ(zredSSAdd(nullptr, nullptr, set), RTERROR);
    EXPECT_EQ(zredSSGet(L"I", set), RTERROR);
    EXPECT_EQ(zredSSLength(set, length), RTERROR);
    EXPECT_EQ(zredSSSetFirst(nullptr), RTERROR);
}

} // namespace
