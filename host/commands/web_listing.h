// What LIST and IESINFO say about a photometric web.
#pragma once

#include "host/commands/listing.h"
#include "host/ies/reader.h"

class ZrDbLight;

namespace quor::commands {

// The rows of IESINFO.
void listWebFile(const ies::WebFile& file, Listing& listing);
// The rows of LIST for a light that has a web, or might have one.
void listLightWeb(const ZrDbLight& light, Listing& listing);

} // namespace quor::commands
