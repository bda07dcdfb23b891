// What LIST, IESINFO and previews say about a photometric web.
#pragma once

#include "host/commands/listing.h"
#include "host/ies/reader.h"

class ZrDbLight;

namespace quor::commands {

// The rows of IESINFO.
void listWebFile(const ies::WebFile& file, Listing& listing);
// Those that tell webs apart at a glance: who makes it and which luminaire it is, where the file says so; flux, largest
// intensity, symmetry, opening, power.
void listWebSummary(const ies::WebFile& file, Listing& listing);
// The rows of LIST for a light that has a web, or might have one.
void listLightWeb(const ZrDbLight& light, Listing& listing);

} // namespace quor::commands
