// Bringing the palette into the host, out of it, into view and out of view.
#pragma once

class CControlBar;

namespace quor::light {

// Makes the palette and hands it, and LIGHTLISTSTATE, to the host.
void addLightList();
// Takes both back.
void releaseLightList();

// Has the main frame show or hide a bar and arrange itself anew. What is thrown on the way comes through.
void showInFrame(CControlBar& bar, bool show);
// The same for the palette; one that throws is taken for gone. The palette must be there.
void showLightList(bool show);

} // namespace quor::light
