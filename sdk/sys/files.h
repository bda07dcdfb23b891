// The file system, as far as modules look at it.
#pragma once

// Whether a file or folder of that path exists; false for null and for an empty path.
[[nodiscard]] bool PathFileExistsW(const wchar_t* path);
