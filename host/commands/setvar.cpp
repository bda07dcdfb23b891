#include "host/commands/ask.h"
#include "host/commands/commands.h"
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

ZrString shownValue(const ZrString& value) { return value.empty() ? texts::kEmptyValue.get() : visibleText(value); }

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
        const ZrString mark = variables.isReadOnly(name) ? ZrString(L"  ") + texts::kReadOnlyMark.get() : L"";
        printText(L"\n" + padRight(name, width) + L"  " + shownValue(variables.text(name).value_or(ZrString())) + mark +
                  L"\n");
    }
    return RTNORM;
}

// A text that is neither one of a list nor the name of something may be empty; "." stands for that.
bool maySetEmpty(const VariableRow& row) {
    return row.type == VariableType::Text && row.choices == nullptr && row.write == nullptr;
}

void sayRefusal(const SystemVariables& variables, const ZrString& name, SetResult result) {
    printText(L"\n" + visibleText(variables.refusal(name, result)) + L"\n");
}

// A value may hold for less, or from later on, than people expect.
void sayWhenItCounts(const SystemVariables& variables, const VariableRow& row, SetResult result) {
    if (result == SetResult::NotSaved)
        sayRefusal(variables, row.name, result);
    else if (row.fromNextStart)
        say(texts::kVariableFromNextStart, row.name);
}

// Asks until the variable takes the answer; Enter keeps the value.
int askValue(SystemVariables& variables, const VariableRow& row, const ZrString& name) {
    const bool isText = row.type == VariableType::Text;
    const bool mayBeEmpty = maySetEmpty(row);
    while (true) {
        const ZrString now = variables.text(name).value_or(ZrString());
        const ZrString prompt = fillShown(mayBeEmpty ? texts::kAskVariableText : texts::kAskVariableValue, name, now);
        const std::optional<ZrString> answer = isText ? askLine(prompt) : askWord(prompt);
        if (!answer)
            return RTCAN;
        if (answer->empty())
            return RTNORM;
        const SetResult result = variables.setFromText(name, mayBeEmpty && *answer == L"." ? L"" : *answer);
        if (result == SetResult::Ok || result == SetResult::NotSaved) {
            sayWhenItCounts(variables, row, result);
            return RTNORM;
        }
        sayRefusal(variables, name, result);
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
    const std::optional<ZrString> value = variables.text(name);
    if (!value)
        return failWith(texts::kVariableNeedsDrawing, name);
    if (!variables.isReadOnly(name))
        return askValue(variables, *variables.row(name), name);
    say(texts::kVariableReadOnly, name, shownValue(*value));
    return RTNORM;
}

} // namespace quor::commands
