// Light commands for transcripts of prompts that need a light of another kind than those of the module's commands.
#pragma once

namespace quor {
class Session;
}

namespace quor::test {

// Adds TRIALDISTANT and TRIALWEB. Each places its light at the origin and then asks for options as the point light
// does.
void addTrialLights(Session& session);

} // namespace quor::test
