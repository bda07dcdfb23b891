// The host's own commands. Each answers a result code: RTNORM, RTCAN when the person pressed Esc, RTERROR after a
// message that said what could not be done.
#pragma once

namespace quor {
class Session;
}

namespace quor::commands {

// Drawings and their files.
int newDrawing(Session& session);
int openDrawing(Session& session);
int recoverDrawing(Session& session);
int saveDrawing(Session& session);
int saveDrawingAs(Session& session);
int closeDrawing(Session& session);
int listDocuments(Session& session);
int quit(Session& session);

// Undo.
int undoOne(Session& session);
int undoSeveral(Session& session);
int redo(Session& session);

// Objects.
int select(Session& session);
int erase(Session& session);
int list(Session& session);
int properties(Session& session);
int changeProperty(Session& session);
int lightTable(Session& session);
int lightTableAsFile(Session& session);
int line(Session& session);
int face(Session& session);
int refEdit(Session& session);
int refClose(Session& session);

// Photometric web files, colour books.
int iesInfo(Session& session);
int colorBooks(Session& session);

// Spaces, layers, settings.
int ucs(Session& session);
int layout(Session& session);
int model(Session& session);
int paper(Session& session);
int modelInLayout(Session& session);
int paperInLayout(Session& session);
int layer(Session& session);
int layers(Session& session);
int setVariable(Session& session);
int textScreen(Session& session);
int graphicsScreen(Session& session);

// How the drawing is seen.
int zoom(Session& session);
int view(Session& session);
int visualStyle(Session& session);
int projection(Session& session);
int plan(Session& session);
int regen(Session& session);
int objectSnaps(Session& session);

// Programs.
int script(Session& session);
int loadModule(Session& session);
int help(Session& session);

} // namespace quor::commands
