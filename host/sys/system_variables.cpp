#include "host/sys/system_variables.h"

#include "host/db/current_units.h"
#include "host/db/units_format.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/settings_store.h"
#include "host/sys/text_width.h"
#include "host/sys/variable_text.h"
#include "host/texts/variables.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace quor::sys {
namespace {

// Names of variables differ in length or at their ends; few do not.
struct NameHash {
    std::size_t operator()(std::wstring_view name) const {
        if (name.empty())
            return 0;
        const auto first = static_cast<std::size_t>(foldChar(name.front()));
        const auto last = static_cast<std::size_t>(foldChar(name.back()));
        return name.size() + 31 * first + 1009 * last;
    }
};

using RowIndex = std::unordered_map<std::wstring_view, const VariableRow*, NameHash, FoldedEqual>;

const RowIndex& rowIndex() {
    static const RowIndex index = [] {
        RowIndex made;
        for (const VariableRow& row : variableRows())
            made.emplace(row.name, &row);
        return made;
    }();
    return index;
}

// Names of variables are plain letters and digits.
ZrString upperCase(std::wstring_view name) {
    ZrString upper(name);
    for (wchar_t& c : upper)
        if (c >= L'a' && c <= L'z')
            c = static_cast<wchar_t>(c - L'a' + L'A');
    return upper;
}

bool livesInDrawing(VariableHome home) { return home != VariableHome::User && home != VariableHome::Process; }

ZrString headerName(const VariableRow& row) { return ZrString(L"$") + row.name; }

VariableValue fromHeader(const VariableRow& row, const std::optional<db::HeaderValue>& header) {
    if (!header)
        return row.initial;
    if (const auto* whole = std::get_if<long long>(&*header); whole != nullptr && row.type == VariableType::Short)
        return *whole == static_cast<short>(*whole) ? VariableValue(static_cast<short>(*whole)) : row.initial;
    if (const auto* real = std::get_if<double>(&*header); real != nullptr && row.type == VariableType::Real)
        return *real;
    if (const auto* text = std::get_if<ZrString>(&*header); text != nullptr && row.type == VariableType::Text)
        return *text;
    if (const auto* point = std::get_if<ZrGePoint3d>(&*header); point != nullptr && row.type == VariableType::Point)
        return *point;
    return row.initial;
}

db::HeaderValue toHeader(const VariableValue& value) {
    struct Converter {
        db::HeaderValue operator()(short whole) const { return static_cast<long long>(whole); }
        db::HeaderValue operator()(double real) const { return real; }
        db::HeaderValue operator()(const ZrString& text) const { return text; }
        db::HeaderValue operator()(const ZrGePoint3d& point) const { return point; }
    };
    return std::visit(Converter(), value);
}

bool isFinite(const VariableValue& value) {
    if (const auto* real = std::get_if<double>(&value))
        return std::isfinite(*real);
    if (const auto* point = std::get_if<ZrGePoint3d>(&value))
        return std::isfinite(point->x) && std::isfinite(point->y) && std::isfinite(point->z);
    return true;
}

bool isWithinBounds(const VariableRow& row, const VariableValue& value) {
    if (!row.hasBounds())
        return true;
    const auto* whole = std::get_if<short>(&value);
    const auto* real = std::get_if<double>(&value);
    const double number = whole != nullptr ? *whole : real != nullptr ? *real : row.low;
    return number >= row.low && number <= row.high;
}

// The choice that is meant, spelled as the row has it; nothing when there is no such choice.
std::optional<VariableValue> chosen(const VariableRow& row, const VariableValue& value) {
    const auto* text = std::get_if<ZrString>(&value);
    if (row.choices == nullptr || text == nullptr)
        return value;
    for (std::wstring_view rest = row.choices; !rest.empty();) {
        const std::wstring_view choice = rest.substr(0, rest.find(L'/'));
        if (equalFolded(choice, *text))
            return ZrString(choice);
        rest.remove_prefix(std::min(choice.size() + 1, rest.size()));
    }
    return std::nullopt;
}

SetResult check(const VariableRow& row, const VariableValue& value) {
    if (value.index() != static_cast<std::size_t>(row.type))
        return SetResult::WrongType;
    return isFinite(value) && isWithinBounds(row, value) ? SetResult::Ok : SetResult::OutOfRange;
}

} // namespace

SystemVariables::SystemVariables(Session& session) : session_(session) {}

const VariableRow* SystemVariables::row(std::wstring_view name) const {
    const RowIndex& index = rowIndex();
    const auto at = index.find(name);
    return at == index.end() ? nullptr : at->second;
}

bool SystemVariables::has(std::wstring_view name) const {
    return row(name) != nullptr || registered_.contains(upperCase(name));
}

std::optional<VariableValue> SystemVariables::get(std::wstring_view name) const {
    const VariableRow* row = this->row(name);
    if (row == nullptr) {
        const auto at = registered_.find(upperCase(name));
        return at == registered_.end() ? std::nullopt : std::optional<VariableValue>(at->second());
    }
    const Document* document = session_.documents().current();
    if (livesInDrawing(row->home) && document == nullptr)
        return std::nullopt;
    if (row->read != nullptr)
        return row->read(session_);
    if (row->home == VariableHome::Header)
        return fromHeader(*row, document->drawing().header(headerName(*row)));
    if (row->home == VariableHome::User)
        return fromUser(*row);
    const auto at = process_.find(row->name);
    return at == process_.end() ? row->initial : at->second;
}

SetResult SystemVariables::set(std::wstring_view name, const VariableValue& given) {
    const VariableRow* row = this->row(name);
    if (row == nullptr)
        return has(name) ? SetResult::ReadOnly : SetResult::Unknown;
    const SetResult result = assign(*row, given);
    if (result == SetResult::Ok || result == SetResult::NotSaved)
        announce(row->name);
    return result;
}

SetResult SystemVariables::assign(const VariableRow& row, const VariableValue& given) {
    if (row.readOnly)
        return SetResult::ReadOnly;
    const Document* document = session_.documents().current();
    if (livesInDrawing(row.home) && document == nullptr)
        return SetResult::NoDrawing;
    if (const auto* whole = std::get_if<short>(&given); whole != nullptr && row.type == VariableType::Real)
        return assign(row, static_cast<double>(*whole));
    if (const SetResult checked = check(row, given); checked != SetResult::Ok)
        return checked;
    const std::optional<VariableValue> value = chosen(row, given);
    return value ? write(row, *value) : SetResult::NotInList;
}

bool SystemVariables::touchRegistered(std::wstring_view name) {
    const auto at = registered_.find(upperCase(name));
    if (at == registered_.end())
        return false;
    announce(ZrString(at->first));
    return true;
}

int SystemVariables::addListener(Listener listener) {
    listeners_.emplace(++lastListener_, std::move(listener));
    return lastListener_;
}

// Listeners may come and go while they are told.
void SystemVariables::announce(const ZrString& name) const {
    const std::map<int, Listener> told = listeners_;
    for (const auto& [number, listener] : told)
        if (listeners_.contains(number))
            listener(name);
}

SetResult SystemVariables::write(const VariableRow& row, const VariableValue& value) {
    if (row.write != nullptr)
        return row.write(session_, value);
    const Document* document = session_.documents().current();
    if (row.home == VariableHome::Header)
        document->drawing().setHeader(headerName(row), row.headerCode, toHeader(value));
    else if (row.home == VariableHome::Dictionary)
        document->drawing().setDictionaryVariable(row.name, toText(value));
    else if (row.home == VariableHome::User)
        return toUser(row, value);
    else
        process_[row.name] = value;
    return SetResult::Ok;
}

VariableValue SystemVariables::fromUser(const VariableRow& row) const {
    SettingsStore& settings = session_.settings();
    if (row.type == VariableType::Text)
        return settings.get(kUserVariables, row.name).value_or(std::get<ZrString>(row.initial));
    const auto number = settings.getInt(kUserVariables, row.name);
    const bool usable = number && *number >= row.low && *number <= row.high;
    return usable ? VariableValue(static_cast<short>(*number)) : row.initial;
}

SetResult SystemVariables::toUser(const VariableRow& row, const VariableValue& value) {
    const auto error = session_.settings().set(kUserVariables, row.name, toText(value));
    return error ? SetResult::NotSaved : SetResult::Ok;
}

bool SystemVariables::isReadOnly(std::wstring_view name) const {
    const VariableRow* const row = this->row(name);
    return row == nullptr || row->readOnly;
}

SetResult SystemVariables::setFromText(std::wstring_view name, std::wstring_view text) {
    const VariableRow* row = this->row(name);
    if (row == nullptr || row->readOnly)
        return row == nullptr && !has(name) ? SetResult::Unknown : SetResult::ReadOnly;
    const Document* document = session_.documents().current();
    const auto parsed = parseVariable(*row, text, document != nullptr ? document->lastPoint : ZrGePoint3d());
    return parsed ? set(name, parsed.value()) : parsed.error();
}

ZrString SystemVariables::toText(const VariableValue& value) const { return formatVariable(value); }

std::optional<ZrString> SystemVariables::text(std::wstring_view name) const {
    const auto value = get(name);
    if (!value)
        return std::nullopt;
    const VariableRow* row = this->row(name);
    return row != nullptr && row->angle ? formatAngleVariable(std::get<double>(*value)) : toText(*value);
}

ZrString SystemVariables::refusal(std::wstring_view name, SetResult result) const {
    const VariableRow* row = this->row(name);
    return variableRefusal(row != nullptr ? ZrString(row->name) : shortened(upperCase(name)), row, result);
}

std::vector<ZrString> SystemVariables::names() const {
    std::vector<ZrString> all;
    for (const VariableRow& row : variableRows())
        all.emplace_back(row.name);
    for (const auto& [name, read] : registered_)
        all.push_back(name);
    std::sort(all.begin(), all.end());
    return all;
}

bool SystemVariables::registerVariable(const wchar_t* name, std::function<short()> read) {
    if (name == nullptr || *name == L'\0' || !read || has(name))
        return false;
    return registered_.emplace(upperCase(name), std::move(read)).second;
}

bool SystemVariables::unregisterVariable(const wchar_t* name) {
    return name != nullptr && registered_.erase(upperCase(name)) > 0;
}

short SystemVariables::number(std::wstring_view name, short fallback) const {
    const auto value = get(name);
    const auto* whole = value ? std::get_if<short>(&*value) : nullptr;
    return whole != nullptr ? *whole : fallback;
}

} // namespace quor::sys
