#include "host/db/variable_dictionary.h"

#include "host/db/extension_dictionary.h"
#include "host/sys/utf8.h"

namespace quor::db {

ObjectEntry* dictionaryEntry(const DrawingFile& file, const ObjectTable& objects, const dxf::Record& dictionary,
                             std::string_view name) {
    static constexpr dxf::CodeSet kWanted{3, 350, 360};
    dxf::TagReader reader = file.tags(dictionary);
    dxf::Tag tag;
    bool found = false;
    while (reader.next(tag, kWanted)) {
        if (tag.code == 3)
            found = tag.asTrimmed() == name;
        else if (found && isOwnedHandle(tag.code))
            return objects.findObject(tag.asHandle().value_or(0));
    }
    return nullptr;
}

const ObjectEntry* VariableDictionary::dictionary() const {
    const ObjectEntry* root = structure_.rootDictionary();
    if (root == nullptr)
        return nullptr;
    const ObjectEntry* found = dictionaryEntry(file_, objects_, file_.record(root->record), kName);
    return found != nullptr && found->isInFile() ? found : nullptr;
}

const dxf::Record* VariableDictionary::recordOf(std::wstring_view name) const {
    const ObjectEntry* variables = dictionary();
    if (variables == nullptr)
        return nullptr;
    const ObjectEntry* found = dictionaryEntry(file_, objects_, file_.record(variables->record), toUtf8(name));
    return found != nullptr && found->isInFile() ? &file_.record(found->record) : nullptr;
}

std::optional<ZrString> VariableDictionary::get(std::wstring_view name) const {
    if (const auto found = set_.find(name); found != set_.end())
        return found->second.value;
    if (const auto read = read_.find(name); read != read_.end())
        return read->second;
    std::optional<ZrString>& read = read_[ZrString(name)];
    dxf::Tag tag;
    if (const dxf::Record* record = recordOf(name); record != nullptr && file_.findTag(*record, 1, tag))
        read = file_.text(tag);
    return read;
}

std::optional<ZrString> VariableDictionary::set(const ZrString& name, std::optional<ZrString> value) {
    std::optional<ZrString> before;
    if (const auto found = set_.find(name); found != set_.end()) {
        before = std::move(found->second.value);
        set_.erase(found);
    }
    if (value)
        set_.emplace(name, Set{std::move(*value), handleFor(name)});
    return before;
}

std::uint64_t VariableDictionary::handleFor(const ZrString& name) {
    std::uint64_t& handle = handles_[name];
    if (handle == 0)
        handle = objects_.takeHandles(1);
    if (newDictionaryHandle_ == 0 && dictionary() == nullptr)
        newDictionaryHandle_ = objects_.takeHandles(1);
    reserveRoot();
    return handle;
}

void VariableDictionary::reserveRoot() {
    if (newRootHandle_ == 0 && structure_.rootDictionary() == nullptr)
        newRootHandle_ = objects_.takeHandles(1);
}

} // namespace quor::db
