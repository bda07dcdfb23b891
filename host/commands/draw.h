// What the commands that draw have in common.
#pragma once

#include "sdk/db/entity.h"

#include <memory>

namespace quor::commands {

// Appends the entity to the current space, on the current layer. Says so when the drawing refuses it, and answers null.
ZrDbObjectId post(std::unique_ptr<ZrDbEntity> entity);
void eraseAgain(ZrDbObjectId id);

} // namespace quor::commands
