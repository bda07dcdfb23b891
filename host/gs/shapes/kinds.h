// How each kind of entity is drawn, by the name of its type in drawing files.
#pragma once

#include "host/gs/shapes/pen.h"
#include "host/gs/shapes/source.h"

#include <string_view>

namespace quor::gs {

using Show = void (*)(const Source& source, Pen& pen);

// Null for a kind that shows nothing of its own.
[[nodiscard]] Show showOf(std::string_view type);

// Each reads the entity whole before it draws; where its record makes no sense, nothing is drawn.
void showLine(const Source& source, Pen& pen);
void showPoint(const Source& source, Pen& pen);
void showCircle(const Source& source, Pen& pen);
void showArc(const Source& source, Pen& pen);
void showEllipse(const Source& source, Pen& pen);
void showLightPolyline(const Source& source, Pen& pen); // LWPOLYLINE
void showPolyline(const Source& source, Pen& pen);
void showFace(const Source& source, Pen& pen);
void showSolid(const Source& source, Pen& pen);
void showSpline(const Source& source, Pen& pen);
void showRay(const Source& source, Pen& pen);
void showConstructionLine(const Source& source, Pen& pen); // XLINE
void showLeader(const Source& source, Pen& pen);
void showMultiline(const Source& source, Pen& pen);       // MLINE
void showSubdivisionMesh(const Source& source, Pen& pen); // MESH
void showHatch(const Source& source, Pen& pen);
void showImage(const Source& source, Pen& pen);
void showSolidModel(const Source& source, Pen& pen); // 3DSOLID, REGION, BODY and the surfaces
void showText(const Source& source, Pen& pen);
void showAttribute(const Source& source, Pen& pen); // ATTRIB, a part of a reference
void showParagraph(const Source& source, Pen& pen); // MTEXT
void showViewport(const Source& source, Pen& pen);

} // namespace quor::gs
