// What the palette looks like: its pixels are drawn by the module in the colours of the theme.
#include "desktop/palettes/painter_device.h"
#include "host/ui/theme.h"
#include "sdk/ed/selection.h"
#include "sdk/sys/ads.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QDir>

namespace quor::desktop::test {
namespace {

class ThePicture : public ShownPalette {
protected:
    ThePicture() {
        addLight(L"Hall");
        addLight(L"Sun", DrawableType::kDistantLight);
        addLight(L"Stage", DrawableType::kSpotLight);
        addLight(L"Window", DrawableType::kWebLight);
        show();
        settle();
    }
    // Of what is inside the dock, at a point of a window in it.
    QColor pixel(QWidget& widget, QPoint at) {
        const QImage picture = widget.grab().toImage();
        return picture.pixelColor(at * picture.devicePixelRatio());
    }
    // Beside the name of a row, within its column.
    QColor besideName(int row) {
        const CRect label = list().GetSubItemRect(row, 1, LVIR_LABEL);
        return pixel(view(), QPoint(label.right - 4, label.top + 4));
    }
    static QColor themed(int element) { return toQt(ui::Theme().color(element)); }
    void keep(const QString& name) {
        const QDir folder(QString(QUOR_BUILD_DIR) + "/pictures");
        folder.mkpath(".");
        dock().grab().save(folder.filePath(name + ".png"));
    }
};

TEST_F(ThePicture, HasTheGroundOfTheListBehindItsRows) {
    EXPECT_EQ(besideName(1), themed(kThemeListBackground));
    EXPECT_EQ(pixel(headings(), QPoint(40, 3)), themed(kThemeHeaderBackground));
    EXPECT_EQ(pixel(dock().area(), QPoint(3, 100)), themed(kThemeDialogBackground));
    EXPECT_EQ(pixel(*widgetOf(tips()), QPoint(100, 95)), themed(kThemePanelBackground));
}

TEST_F(ThePicture, HasTheColoursOfTheOtherThemeAtOnce) {
    zwutads::setVar(L"COLORTHEME", 0);
    keep("palette_dark");
    const QColor dark = besideName(1);

    zwutads::setVar(L"COLORTHEME", 1);

    EXPECT_NE(besideName(1), dark);
    EXPECT_EQ(besideName(1), themed(kThemeListBackground));
    EXPECT_EQ(pixel(headings(), QPoint(40, 3)), themed(kThemeHeaderBackground));
    keep("palette_light");
}

TEST_F(ThePicture, ShowsASelectedRowInTheColourOfTheSystemWhileTheListHasTheKeyboard) {
    click(1);

    EXPECT_EQ(besideName(1), toQt(GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_EQ(besideName(2), themed(kThemeListBackground));
    keep("palette_selected");
}

TEST_F(ThePicture, ShowsASelectedRowFainterWithoutTheKeyboard) {
    click(1);
    focusDrawing();

    EXPECT_EQ(besideName(1), themed(kThemeUnfocusedSelection));
}

TEST_F(ThePicture, ShowsWhatIsSelectedInTheDrawing) {
    focusDrawing();

    zredSetImpliedSelection({lights_[0], lights_[2]});

    EXPECT_EQ(besideName(1), themed(kThemeUnfocusedSelection));
    EXPECT_EQ(besideName(0), themed(kThemeListBackground)); // the first of several shows nothing
}

TEST_F(ThePicture, HasAPictureForEachKindOfLight) {
    const CRect icon = list().GetItemRect(0, LVIR_ICON);
    const QImage shown = view().grab().toImage();
    int inked = 0;
    for (int y = icon.top; y < icon.bottom - 1; ++y)
        for (int x = icon.left; x < icon.right; ++x)
            inked += shown.pixelColor(QPoint(x, y) * shown.devicePixelRatio()) != themed(kThemeListBackground) ? 1 : 0;
    EXPECT_GT(inked, 40);
}

class ThePictureInEnglish : public ShownPalette {
protected:
    ThePictureInEnglish() : ShownPalette(L"en") {}
};

TEST_F(ThePictureInEnglish, IsKept) {
    zwutads::setVar(L"COLORTHEME", 1);
    addLight(L"A long name of a light that does not fit into its column");
    for (int i = 1; i < 40; ++i)
        addLight(L"Light" + std::to_wstring(i));
    show();
    settle();
    click(3);
    EXPECT_TRUE(dock().grab().save(QString(QUOR_BUILD_DIR) + "/pictures/palette_english.png"));
}

} // namespace
} // namespace quor::desktop::test
