#include "desktop/window/layout.h"

#include "desktop/palettes/palette_host.h"
#include "desktop/qt_text.h"
#include "host/sys/settings_store.h"

#include <QMainWindow>

namespace quor::desktop {

namespace {

constexpr const wchar_t* kSection = L"Desktop";
constexpr const wchar_t* kGeometryKey = L"Geometry";
constexpr const wchar_t* kStateKey = L"Layout";
constexpr const wchar_t* kPalettesKey = L"Palettes";
// Raised when docks or tool bars are added, so that an older layout is not half applied.
constexpr int kVersion = 1;

} // namespace

QByteArray Layout::kept(const wchar_t* key) const {
    const std::optional<std::wstring> text = settings_.get(kSection, key);
    return text ? QByteArray::fromBase64(toQt(*text).toLatin1()) : QByteArray();
}

// A layout that cannot be written is no reason to keep a person from leaving.
void Layout::keep(const wchar_t* key, const QByteArray& bytes) {
    (void)settings_.set(kSection, key, fromQt(QString::fromLatin1(bytes.toBase64())));
}

void Layout::restore() {
    window_.restoreGeometry(kept(kGeometryKey));
    window_.restoreState(kept(kStateKey), kVersion);
}

void Layout::restorePalettes() {
    if (const std::optional<std::wstring> shown = settings_.get(kSection, kPalettesKey))
        palettes_.showPalettes(toQt(*shown).split(' ', Qt::SkipEmptyParts));
}

void Layout::save() {
    keep(kGeometryKey, window_.saveGeometry());
    keep(kStateKey, window_.saveState(kVersion));
    (void)settings_.set(kSection, kPalettesKey, fromQt(palettes_.shownPalettes().join(' ')));
}

} // namespace quor::desktop
