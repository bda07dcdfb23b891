// Where the window, its docks, tool bars and palettes stand: kept across runs in the user's settings.
#pragma once

#include "sdk/sys/string.h"

#include <QByteArray>

class QMainWindow;

namespace quor {
class SettingsStore;
}

namespace quor::desktop {

class PaletteHost;

class Layout {
public:
    Layout(QMainWindow& window, PaletteHost& palettes, SettingsStore& settings)
        : window_(window), palettes_(palettes), settings_(settings) {}

    // As the person left it; what cannot be read stays as it is.
    void restore();
    // The palettes of modules that were shown then; once modules are loaded and drawings open.
    void restorePalettes();
    void save();

private:
    [[nodiscard]] QByteArray kept(const wchar_t* key) const;
    void keep(const wchar_t* key, const QByteArray& bytes);

    QMainWindow& window_;
    PaletteHost& palettes_;
    SettingsStore& settings_;
};

} // namespace quor::desktop
