#include "host/ui/acting.h"

#include "sdk/ui/window.h"

namespace quor::ui {

namespace {
WindowRef acting;
} // namespace

const CWnd* actingWindow() { return acting.get(); }

ActingScope::ActingScope(CWnd& window) : before_(acting) { acting = WindowRef(window.GetTopLevelParent()); }

ActingScope::~ActingScope() { acting = before_; }

} // namespace quor::ui
