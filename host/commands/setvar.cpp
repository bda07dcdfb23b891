#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/listing.h"
#include "host/commands/upper_case.h"
#include "host/commands/wildcard.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/sys/text_width.h"
#include "host/texts/commands.h"

#include <algorithm>

namespace quor::commands {

namespace {

using sys::SetResult;
using sys::SystemVariables;
using sys::VariableRow;
using sys::VariableType;

// A variable without a row was registered by a module, and those are read only.
bool isReadOnly(const VariableRow* row) { return row == nullptr || row->readOnly; }

int listVariables(const SystemVariables& variables) {
    const std::optional<ZrString> answer = askWord(texts::kAskVariablePattern.get());
    if (!answer)
        return RTCAN;
    const ZrString pattern = answer->empty() ? L"*" : *answer;
    std::vector<ZrString> names = variables.names();
    std::erase_if(names, [&](const ZrString& name) {
        return !matchesPattern(name, pattern) || !variables.get(name).has_value();
    });
    if (names.empty())
        return failWith(texts::kNoVariableMatches, pattern);
    int width = 0;
    for (const ZrString& name : names)
        width = std::max(width, columnsOf(name));
    for (const ZrString& name : names) {
        const ZrString mark = isReadOnly(variables.row(name)) ? ZrString(L"  ") + texts::kReadOnlyMark.get() : L"";
        printText(L"\n" + padRight(name, width) + L"  " + variables.toText(*variables.get(name)) + mark + L"\n");
    }
    return RTNORM;
}

void sayRefused(SetResult result, const VariableRow& row, const ZrString& name) {
    if (result == SetResult::OutOfRange)
        return say(texts::kVariableOutOfRange, name, numberText(row.low), numberText(row.high));
    if (result != SetResult::WrongType)
        return say(texts::kVariableRefused, name);
    switch (row.type) {
    case VariableType::Short:
        return say(texts::kVariableNeedsInteger, name);
    case VariableType::Real:
        return say(texts::kVariableNeedsNumber, name);
    case VariableType::Point:
        return say(texts::kVariableNeedsPoint, name);
    case VariableType::Text:
        return say(texts::kVariableRefused, name);
    }
}

// A value may hold for less, or from later on, than people expect.
void sayWhenItCounts(const SystemVariables& variables, const VariableRow& row, SetResult result) {
    if (result == SetResult::NotSaved)
        printText(L"\n" + variables.refusal(row.name, result) + L"\n");
    else if (row.fromNextStart)
        say(texts::kVariableFromNextStart, row.name);
}

// Asks until the variable takes the answer; Enter keeps the value.
int askValue(SystemVariables& variables, const VariableRow& row, const ZrString& name) {
    const bool isText = row.type == VariableType::Text;
    while (true) {
        const ZrString now = variables.toText(*variables.get(name));
        const ZrString prompt = fill(isText ? texts::kAskVariableText : texts::kAskVariableValue, name, now);
        const std::optional<ZrString> answer = isText ? askLine(prompt) : askWord(prompt);
        if (!answer)
            return RTCAN;
        if (answer->empty())
            return RTNORM;
        const SetResult result = variables.setFromText(name, isText && *answer == L"." ? L"" : *answer);
        if (result == SetResult::Ok || result == SetResult::NotSaved) {
            sayWhenItCounts(variables, row, result);
            return RTNORM;
        }
        sayRefused(result, row, name);
    }
}

} // namespace

int setVariable(Session& session) {
    SystemVariables& variables = session.variables();
    const std::optional<ZrString> answer = askWord(texts::kAskVariable.get());
    if (!answer)
        return RTCAN;
    if (answer->empty())
        return RTNORM;
    if (*answer == L"?")
        return listVariables(variables);
    const ZrString name = upperCase(*answer);
    if (!variables.has(name))
        return failWith(texts::kNoSuchVariable, shortened(*answer));
    const auto value = variables.get(name);
    if (!value)
        return failWith(texts::kVariableNeedsDrawing, name);
    const VariableRow* row = variables.row(name);
    if (!isReadOnly(row))
        return askValue(variables, *row, name);
    say(texts::kVariableReadOnly, name, variables.toText(*value));
    return RTNORM;
}

} // namespace quor::commands
