#include "host/ed/completion_source.h"

#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/sys/folder_names.h"
#include "host/sys/system_variables.h"

namespace quor::ed {

namespace {

// As commands and variables are shown.
ZrString inCapitals(ZrString name) {
    for (wchar_t& c : name)
        if (c >= L'a' && c <= L'z')
            c = static_cast<wchar_t>(c - L'a' + L'A');
    return name;
}

} // namespace

CompletionSource completionSource(Session& session, const Question& question) {
    CompletionSource source;
    source.atCommandPrompt = question.kind == Question::Kind::Command;
    source.acceptsBlanks = question.acceptsBlanks;
    source.acceptsText = question.kind == Question::Kind::Text;
    source.keywords = question.keywords;
    source.files = folderNames;
    source.otherNames = session.variables().names();
    for (const Command* command : session.commands().all()) {
        source.commands.push_back({command->globalName, command->localName});
        for (ZrString& alias : session.commands().aliasesOf(command->globalName))
            source.otherNames.push_back(inCapitals(std::move(alias)));
    }
    return source;
}

} // namespace quor::ed
