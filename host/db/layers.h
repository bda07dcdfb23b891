// The layers of a drawing: found by either spelling of a hidden one, named in the file as its version wants it.
#pragma once

#include "host/db/structure.h"
#include "host/db/versions.h"
#include "sdk/sys/string.h"

namespace quor::db {

class Layers {
public:
    Layers(SymbolTable& table, const DrawingFile& file) : table_(table), file_(file) {}

    // By plain name, or with the asterisk of a hidden layer; null when there is none or it is erased.
    [[nodiscard]] ObjectEntry* find(std::wstring_view name) const;
    // The name seen from outside: with an asterisk when hidden.
    [[nodiscard]] ZrString outsideName(const ObjectEntry& layer) const;
    // The name for group 8 and for the record: files up to AC1018 keep hidden layers without the asterisk.
    [[nodiscard]] ZrString nameInFile(const ObjectEntry& layer) const;
    [[nodiscard]] SymbolTable& table() const { return table_; }
    // A layer that was erased is there again: its name finds it, unless another layer took the name meanwhile. Other
    // objects are left alone.
    void cameBack(ObjectEntry& entry);

private:
    SymbolTable& table_;
    const DrawingFile& file_;
};

// Whether files of this version mark a hidden layer by an asterisk (AC1021 on), or by being frozen and locked.
[[nodiscard]] constexpr bool marksHiddenLayers(int version) { return version >= versions::kFirstWithHiddenLayers; }

} // namespace quor::db
