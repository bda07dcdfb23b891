#include "sdk/rx/class.h"
#include "sdk/rx/object.h"

#include <gtest/gtest.h>

namespace {

class Lamp : public ZrRxObject {
public:
    static ZrRxClass* desc() {
        static ZrRxClass description(L"Lamp", ZrRxObject::desc());
        return &description;
    }
    ZrRxClass* isA() const override { return desc(); }
};

class Shade : public ZrRxObject {
public:
    static ZrRxClass* desc() {
        static ZrRxClass description(L"Shade", ZrRxObject::desc());
        return &description;
    }
};

} // namespace

TEST(ClassRegistry, RegisteredClassIsFoundByItsExactName) {
    ASSERT_EQ(newZrRxClass(Lamp::desc()), Quor::eOk);
    EXPECT_EQ(findZrRxClass(L"Lamp"), Lamp::desc());
    EXPECT_EQ(findZrRxClass(L"lamp"), nullptr);
    EXPECT_EQ(deleteZrRxClass(Lamp::desc()), Quor::eOk);
    EXPECT_EQ(findZrRxClass(L"Lamp"), nullptr);
}

TEST(ClassRegistry, NameOfAnotherClassIsRefused) {
    ZrRxClass other(L"Lamp", ZrRxObject::desc());
    ASSERT_EQ(newZrRxClass(Lamp::desc()), Quor::eOk);
    EXPECT_EQ(newZrRxClass(&other), Quor::eDuplicateKey);
    EXPECT_EQ(deleteZrRxClass(&other), Quor::eKeyNotFound);
    EXPECT_EQ(findZrRxClass(L"Lamp"), Lamp::desc());
    EXPECT_EQ(deleteZrRxClass(Lamp::desc()), Quor::eOk);
}

TEST(ClassRegistry, ClassesOutsideTheTreeAreTakenOutWhenItIsBuilt) {
    ZrRxClass orphan(L"Orphan", nullptr);
    ASSERT_EQ(newZrRxClass(&orphan), Quor::eOk);
    ASSERT_EQ(newZrRxClass(Lamp::desc()), Quor::eOk);

    zrrxBuildClassHierarchy();

    EXPECT_EQ(findZrRxClass(L"Orphan"), nullptr);
    EXPECT_EQ(findZrRxClass(L"Lamp"), Lamp::desc());
    EXPECT_EQ(deleteZrRxClass(Lamp::desc()), Quor::eOk);
}

TEST(ClassRegistry, NullIsRefused) {
    EXPECT_EQ(newZrRxClass(nullptr), Quor::eInvalidInput);
    EXPECT_EQ(deleteZrRxClass(nullptr), Quor::eInvalidInput);
}

TEST(RxObject, IsAKindOfItsOwnClassAndItsParents) {
    const Lamp lamp;
    EXPECT_TRUE(lamp.isKindOf(Lamp::desc()));
    EXPECT_TRUE(lamp.isKindOf(ZrRxObject::desc()));
    EXPECT_FALSE(lamp.isKindOf(Shade::desc()));
}

TEST(RxObject, CastGivesNullForAnotherKind) {
    Lamp lamp;
    ZrRxObject* object = &lamp;
    ZrRxObject* none = nullptr;
    EXPECT_EQ(zrrxCast<Lamp>(object), &lamp);
    EXPECT_EQ(zrrxCast<Shade>(object), nullptr);
    EXPECT_EQ(zrrxCast<Lamp>(none), nullptr);
}
