#include "host/ui/dpi.h"

#include "sdk/ui/dpi.h"

#include <cmath>

namespace quor::ui {

namespace {
int screenDpi = kReferenceDpi;
} // namespace

void setScreenDpi(int dpi) {
    if (dpi >= 1)
        screenDpi = dpi;
}

} // namespace quor::ui

int ZkUiGetCtrlDPISize(int size) {
    return static_cast<int>(std::lround(static_cast<double>(size) * quor::ui::screenDpi / quor::ui::kReferenceDpi));
}

double ZkUiGetDisplayScale() { return static_cast<double>(quor::ui::screenDpi) / quor::ui::kReferenceDpi; }
