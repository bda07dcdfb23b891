// LIST: what it says about each kind of object, behind what it says about all.
#pragma once

#include "host/commands/listing.h"

class ZrDbLight;
class ZrDbLine;
class ZrDbFace;

namespace quor::commands {

void listLight(const ZrDbLight& light, Listing& listing);
void listLine(const ZrDbLine& line, Listing& listing);
void listFace(const ZrDbFace& face, Listing& listing);

} // namespace quor::commands
