// After whatever was done to a drawing, its scene says the same as one that is made anew.
#include "tests/host/gs/scene_testing.h"

#include "sdk/db/face.h"

#include <random>

namespace quor::gs {
namespace {

using db::drawings::append;

// Does one thing after the other, by chance.
class Chance {
public:
    Chance(db::Database& drawing, unsigned seed) : drawing_(drawing), random_(seed) {}

    void act() {
        static constexpr std::array kActs{
            &Chance::addLine,     &Chance::addFace,     &Chance::addLight,   &Chance::moveLine,
            &Chance::moveLight,   &Chance::erase,       &Chance::unerase,    &Chance::undo,
            &Chance::redo,        &Chance::redo,        &Chance::addLine,    &Chance::paintLayer,
            &Chance::paintEntity, &Chance::moveToLayer, &Chance::hideEntity, &Chance::toggleGlyphs};
        const auto chosen = kActs[below(kActs.size())];
        const bool alone = chosen == &Chance::undo || chosen == &Chance::redo;
        if (!alone)
            drawing_.journal().begin(L"ACT");
        (this->*chosen)();
        if (!alone)
            drawing_.journal().end();
    }

private:
    std::size_t below(std::size_t count) { return random_() % count; }
    double number() { return static_cast<double>(below(1000)); }
    ZrGePoint3d point() { return {number(), number(), number()}; }
    ZrDbObjectId space() { return drawing_.interface().modelSpaceId(); }
    ZrDbObjectId any() { return ids_.empty() ? drawing_.interface().layerZeroId() : ids_[below(ids_.size())]; }

    void addLine() { ids_.push_back(append(space(), std::make_unique<ZrDbLine>(point(), point()))); }
    void addFace() { ids_.push_back(append(space(), std::make_unique<ZrDbFace>(point(), point(), point(), point()))); }
    void addLight() {
        auto light = std::make_unique<ZrDbLight>();
        light->setPosition(point());
        ids_.push_back(append(space(), std::move(light)));
    }
    void moveLine() {
        if (const ZrDbObjectPointer<ZrDbLine> line(any(), ZrDb::kForWrite); line)
            line->setStartPoint(point());
    }
    void moveLight() {
        if (const ZrDbObjectPointer<ZrDbLight> light(any(), ZrDb::kForWrite); light) {
            light->setPosition(point());
            light->setOn(below(2) == 0);
            light->setIntensity(number());
        }
    }
    void erase() {
        if (const ZrDbObjectPointer<ZrDbEntity> entity(any(), ZrDb::kForWrite); entity)
            entity->erase();
    }
    void unerase() {
        if (const ZrDbObjectPointer<ZrDbEntity> entity(any(), ZrDb::kForWrite, true); entity)
            entity->erase(false);
    }
    void hideEntity() {
        if (const ZrDbObjectPointer<ZrDbEntity> entity(any(), ZrDb::kForWrite); entity)
            entity->setVisibility(below(2) == 0 ? ZrDb::kVisible : ZrDb::kInvisible);
    }
    void paintLayer() {
        const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(drawing_.interface().layerZeroId(), ZrDb::kForWrite);
        layer->setColor(ZrCmColor::fromIndex(1 + static_cast<int>(below(250))));
    }
    void paintEntity() {
        if (const ZrDbObjectPointer<ZrDbEntity> entity(any(), ZrDb::kForWrite); entity)
            entity->setColor(ZrCmColor::fromIndex(1 + static_cast<int>(below(256))));
    }
    void moveToLayer() {
        const ZrDbObjectId layer = drawing_.makeLayer(below(2) == 0 ? L"0" : L"Walls");
        if (const ZrDbObjectPointer<ZrDbEntity> entity(any(), ZrDb::kForWrite); entity)
            entity->setLayer(layer);
    }
    void toggleGlyphs() { drawing_.setHeader(L"$LIGHTGLYPHDISPLAY", 280, static_cast<long long>(below(2))); }
    void undo() { drawing_.journal().undo(); }
    void redo() { drawing_.journal().redo(); }

    db::Database& drawing_;
    std::mt19937 random_;
    std::vector<ZrDbObjectId> ids_;
};

struct SceneByChance : SceneTest, testing::WithParamInterface<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Seeds, SceneByChance, testing::Range(1U, 9U));

TEST_P(SceneByChance, EqualsOneThatIsMadeAnew) {
    Chance chance(*database, GetParam());
    for (int round = 0; round < 40; ++round) {
        for (int i = 0; i < 25; ++i)
            chance.act();
        expectFresh();
        if (HasFailure())
            FAIL() << "in round " << round;
    }
}

} // namespace
} // namespace quor::gs
