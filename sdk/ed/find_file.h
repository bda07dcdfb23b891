// The search for support files: photometric webs and whatever else a command names without its folder.
#pragma once

#include "sdk/rx/result_codes.h"
#include "sdk/sys/string.h"

// Finds the file of that name and answers RTNORM with its full path, or RTERROR and leaves `found` as it was. Looked at
// in this order: the folder of the current drawing, the working folder, the folders of SUPPORTPATH (separated by ";"),
// the web files that come with the host. A name with folders in it is looked for below each of them. An absolute path
// is answered as it is, whether or not it exists.
int zredFindFile(const wchar_t* name, ZrString& found);
