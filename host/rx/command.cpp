#include "sdk/rx/command.h"

#include "host/db/database.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "sdk/db/block_table.h"
#include "sdk/db/database.h"
#include "sdk/db/entity.h"
#include "sdk/sys/ads.h"

#include <utility>

namespace {

// A space by the name of its block ("*Model_Space") or of its layout; null when there is none.
ZrDbObjectId spaceNamed(ZrDbDatabase& database, const ZrString& name) {
    for (const quor::db::LayoutInfo& layout : database.host().layouts())
        if (quor::equalFolded(layout.name, name))
            return layout.blockId;
    ZrDbBlockTable* table = nullptr;
    if (database.getBlockTable(table, ZrDb::kForRead) != Quor::eOk)
        return {};
    ZrDbObjectId id;
    const Quor::ErrorStatus status = table->getIdAt(name, id);
    table->close();
    return status == Quor::eOk ? id : ZrDbObjectId();
}

// The memory of a command that is gone. Without it every command would take a large block from the heap and give it
// back, which has the heap put its small blocks in order each time.
class SpareMemory {
public:
    ~SpareMemory() { ::operator delete(memory_); }

    // Null when it is not large enough.
    [[nodiscard]] void* take(std::size_t size) {
        return size <= size_ ? (size_ = 0, std::exchange(memory_, nullptr)) : nullptr;
    }
    void keep(void* memory, std::size_t size) {
        if (size > size_) {
            std::swap(memory, memory_);
            size_ = size;
        }
        ::operator delete(memory);
    }

private:
    void* memory_ = nullptr;
    std::size_t size_ = 0;
};

SpareMemory& spareMemory() {
    static SpareMemory spare;
    return spare;
}

} // namespace

void* RxCommand::operator new(std::size_t size) {
    void* const spare = spareMemory().take(size);
    return spare != nullptr ? spare : ::operator new(size);
}

void* RxCommand::operator new(std::size_t size, const std::nothrow_t& tag) noexcept {
    void* const spare = spareMemory().take(size);
    return spare != nullptr ? spare : ::operator new(size, tag);
}

void RxCommand::operator delete(void* memory, std::size_t size) noexcept { spareMemory().keep(memory, size); }

// The constructor threw.
void RxCommand::operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { ::operator delete(memory); }

ZrDbObjectId RxCommand::postToDb(ZrDbEntity& entity, const wchar_t* spaceName, ZrDbDatabase* database, bool close) {
    ZrDbDatabase* target = database != nullptr ? database : zrdbWorkingDatabase();
    if (target == nullptr)
        return {};
    const ZrDbObjectId spaceId = spaceName == nullptr ? target->currentSpaceId() : spaceNamed(*target, spaceName);
    ZrDbObjectPointer<ZrDbBlockTableRecord> space(spaceId, ZrDb::kForWrite);
    ZrDbObjectId id;
    if (!space || space->appendZrDbEntity(id, &entity) != Quor::eOk)
        return {};
    if (close)
        entity.close();
    return id;
}

bool RxCommand::getVar(const wchar_t* name, short& value) { return zwutads::getVar(name, value); }

bool RxCommand::isCalledByCommand() { return zwutads::isCalledLispOrArx(); }
