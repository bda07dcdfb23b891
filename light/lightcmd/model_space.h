// Where lights can be made: in model space, through a layout's viewport too, but not on its paper.
#pragma once

namespace quor::light {

// Whether the current space is a model space; prints that only there the command is valid when it is not.
[[nodiscard]] bool checkModelSpace();

} // namespace quor::light
