// The root of all objects of a drawing, and how they are opened and closed.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/rx/error_status.h"
#include "sdk/rx/object.h"

#include <memory>

namespace ZrDb {
enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };
enum Visibility { kInvisible = 1, kVisible = 0 };
} // namespace ZrDb

// The values of an object apart from its place in the drawing: what undo keeps and gives back.
struct ZrDbObjectData {
    virtual ~ZrDbObjectData() = default;
    [[nodiscard]] virtual std::unique_ptr<ZrDbObjectData> clone() const = 0;

protected:
    ZrDbObjectData() = default;
    ZrDbObjectData(const ZrDbObjectData&) = default;
    ZrDbObjectData& operator=(const ZrDbObjectData&) = default;
};

// An object lives outside a drawing (made by its constructor, owned by its maker) until it is appended to one; from
// then on it belongs to the drawing and is reached by opening its id, by many readers or by one writer at a time.
class ZrDbObject : public ZrRxObject {
public:
    ~ZrDbObject() override;
    ZrDbObject(const ZrDbObject&) = delete;
    ZrDbObject& operator=(const ZrDbObject&) = delete;

    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    [[nodiscard]] ZrDbObjectId objectId() const { return id_; }
    [[nodiscard]] ZrDbHandle handle() const { return id_.handle(); }
    [[nodiscard]] ZrDbDatabase* database() const { return id_.database(); }
    // The id of the owner: a block record, a table, a dictionary; null outside a drawing.
    [[nodiscard]] ZrDbObjectId ownerId() const;

    // Ends this opening. Listeners are told of a change now. eOk also for an object outside a drawing.
    Quor::ErrorStatus close();
    // Erases or unerases; needs the object open for write (eNotOpenForWrite) and in a drawing (eNotInDatabase).
    // eNotAllowed for what is neither an entity nor a layer, for layer 0 and the current layer.
    virtual Quor::ErrorStatus erase(bool erasing = true);
    [[nodiscard]] bool isErased() const { return id_.isErased(); }
    [[nodiscard]] bool isWriteEnabled() const;
    // Whether its values differ from what the file that the drawing came from holds: true of an object that was made or
    // changed since, false of one as it was read, and of one whose changes were all undone.
    [[nodiscard]] bool isModified() const;

    // For the host: the values as they are, exchanged by undo.
    [[nodiscard]] std::unique_ptr<ZrDbObjectData>& hostData() { return data_; }
    [[nodiscard]] const ZrDbObjectData* hostData() const { return data_.get(); }
    void hostSetId(ZrDbObjectId id) { id_ = id; }

protected:
    explicit ZrDbObject(std::unique_ptr<ZrDbObjectData> data);
    // Every setter calls this first: outside a drawing eOk; in one, eNotOpenForWrite unless open for write. Keeps the
    // values for undo before the first change of the opening.
    Quor::ErrorStatus aboutToModify();

    std::unique_ptr<ZrDbObjectData> data_;

private:
    ZrDbObjectId id_;
};

// Opens an object. eNullObjectId, eWasErased (unless `openErased`), eWasOpenForWrite, eWasOpenForRead (a writer while
// there are readers), eAtMaxReaders, eNotThatKindOfClass (the typed form). On refusal `object` becomes null.
Quor::ErrorStatus zrdbOpenObject(ZrDbObject*& object, ZrDbObjectId id, ZrDb::OpenMode mode, bool openErased = false);

template <class T>
Quor::ErrorStatus zrdbOpenObject(T*& object, ZrDbObjectId id, ZrDb::OpenMode mode, bool openErased = false) {
    object = nullptr;
    ZrDbObject* any = nullptr;
    if (const Quor::ErrorStatus status = zrdbOpenObject(any, id, mode, openErased); status != Quor::eOk)
        return status;
    object = zrrxCast<T>(any);
    if (object == nullptr) {
        any->close();
        return Quor::eNotThatKindOfClass;
    }
    return Quor::eOk;
}

// An opened object that closes itself: the way to look at an object for the length of a block.
template <class T>
class ZrDbObjectPointer {
public:
    ZrDbObjectPointer(ZrDbObjectId id, ZrDb::OpenMode mode, bool openErased = false)
        : status_(zrdbOpenObject(object_, id, mode, openErased)) {}
    ~ZrDbObjectPointer() {
        if (object_ != nullptr)
            object_->close();
    }
    ZrDbObjectPointer(const ZrDbObjectPointer&) = delete;
    ZrDbObjectPointer& operator=(const ZrDbObjectPointer&) = delete;

    [[nodiscard]] Quor::ErrorStatus openStatus() const { return status_; }
    explicit operator bool() const { return object_ != nullptr; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    [[nodiscard]] T* object() const { return object_; }

private:
    T* object_ = nullptr;
    Quor::ErrorStatus status_;
};
