// The selection sets of a session: what the numbers in names of selection sets stand for.
#pragma once

#include "host/ed/id_set.h"
#include "sdk/ed/documents.h"
#include "sdk/ed/selection.h"

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace quor::ed {

// Objects in the order in which they were put in, each once.
class SelectionSet {
public:
    SelectionSet() = default;
    // Of objects that differ.
    explicit SelectionSet(ZrDbObjectIdArray ids) : ids_(std::move(ids)) {}

    void add(ZrDbObjectId id);
    // Leaves out the objects of a drawing.
    void removeAllOf(const ZrDbDatabase& drawing);
    [[nodiscard]] const ZrDbObjectIdArray& ids() const { return ids_; }

private:
    ZrDbObjectIdArray ids_;
    IdSet members_; // the same ids once something was added; until then it may lack some
};

// An id lives as long as its drawing: the objects of a drawing that is closed leave their sets.
class SelectionSets final : public ZrApDocumentReactor {
public:
    explicit SelectionSets(ZrApDocManager& documents);
    ~SelectionSets() override;
    SelectionSets(const SelectionSets&) = delete;
    SelectionSets& operator=(const SelectionSets&) = delete;

    // The number of a new set; a number is never given out twice.
    std::uint32_t make(SelectionSet set = {});
    // Null for what is no set.
    [[nodiscard]] SelectionSet* find(std::uint32_t number);
    // False for what is no set.
    bool free(std::uint32_t number) { return sets_.erase(number) > 0; }

    void documentToBeDestroyed(ZrApDocument& document) override;

private:
    ZrApDocManager& documents_;
    std::unordered_map<std::uint32_t, SelectionSet> sets_;
    std::uint32_t last_ = 0;
};

} // namespace quor::ed
