// Pictures of the program at work, as the documents show them: the gallery under its twelve lights.
#include "desktop/palettes/palette_dock.h"
#include "desktop/viewport/viewport.h"
#include "host/document.h"
#include "sdk/db/light.h"
#include "sdk/db/object_class.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace quor::desktop::test {
namespace {

const QString kWebs = QUOR_BUILD_DIR "/share/quor/webs";
const QString kWeb = "wall_washer.ies";
// Folders are read, and drawings become fine, while the person waits.
constexpr int kUntilFilesAreListed = 400;
// A spot on the plinth.
constexpr std::size_t kShownLight = 7;
constexpr int kUntilFine = 600;

class ReadmePicturesTest : public testing::Test {
protected:
    ReadmePicturesTest() {
        const QString file = folder_.filePath("gallery.dxf");
        QFile::copy(QUOR_SAMPLE_DRAWINGS "/gallery.dxf", file);
        options_ = usualOptions();
        options_.session.language = L"en";
        options_.drawings = {file.toStdString()};
    }
    static PaletteDock& paletteOf(AtTheWindow& at) {
        return *at.person().sees([&] { return at.window().findChild<PaletteDock*>(); });
    }
    static void selectsLight(AtTheWindow& at, std::size_t index) {
        at.person().does([&, index] {
            ZrDbObjectIdArray lights;
            const Document& document = *at.person().program().session().documents().current();
            for (const ZrDbObjectId id : document.drawing().entities(document.database()->modelSpaceId()))
                if (zrdbObjectClass(id) == ZrDbLight::desc())
                    lights.push_back(id);
            zredSetImpliedSelection({lights.at(index)});
        });
    }
    // A picture of nothing has few colours.
    static bool isPlain(QWidget& widget) {
        const QImage seen = widget.grab().toImage();
        QSet<QRgb> colors;
        for (int x = 0; x < seen.width(); x += 3)
            for (int y = 0; y < seen.height(); y += 3)
                colors.insert(seen.pixel(x, y));
        return colors.size() < 40;
    }

    QTemporaryDir folder_;
    ProgramOptions options_;
};

TEST_F(ReadmePicturesTest, MainWindowWithALitRoomAndItsPalettes) {
    options_.scripts = {QUOR_SAMPLE_DRAWINGS "/lights.scr"};
    atTheWindow(options_, [](AtTheWindow& at) {
        at.types({"LIGHTLIST", "VISUALSTYLE", "I"});
        PaletteDock& palette = paletteOf(at);
        at.person().does([&] {
            palette.setFloating(false);
            at.window().addDockWidget(Qt::LeftDockWidgetArea, &palette);
            at.window().resize(1280, 800);
        });
        at.chooses("viewswiso");
        at.types({"PROJECTION", "E", "ZOOM", "E", "ZOOM", "1.12x"});
        selectsLight(at, kShownLight);
        Viewport& viewport = at.viewport();
        at.person().does([&] { viewport.grab(); });
        QTest::qSleep(kUntilFine);
        at.person().takesPicture("main-window");
        EXPECT_FALSE(at.person().sees([&] { return isPlain(viewport); }));
        at.person().takesPicture("palette-dark", &palette);
        EXPECT_FALSE(at.person().sees([&] { return isPlain(palette); }));
        at.chooses("themelight");
        selectsLight(at, kShownLight);
        at.person().takesPicture("palette-light", &palette);
        at.person().takesPicture("main-window-light");
        EXPECT_FALSE(at.person().sees([&] { return isPlain(palette); }));
    });
}

TEST_F(ReadmePicturesTest, TaskDialogAndChoiceOfAWeb) {
    atTheWindow(options_, [](AtTheWindow& at) {
        at.types("WEBLIGHT");
        QWidget* const dialog = at.person().sees([] { return QApplication::activeModalWidget(); });
        ASSERT_NE(dialog, nullptr);
        at.person().takesPicture("task-dialog", dialog);
        at.presses(Qt::Key_Return);
        at.types({"7500,7800,3900", "7500,9000,1600", "B", "F", "~"});
        QWidget* const chooser = at.person().sees([] { return QApplication::activeModalWidget(); });
        ASSERT_NE(chooser, nullptr);
        at.person().does([&] { static_cast<QFileDialog*>(chooser)->setDirectory(kWebs); });
        QTest::qSleep(kUntilFilesAreListed);
        at.person().does([&] {
            auto* const files = chooser->findChild<QTreeView*>("treeView");
            const QModelIndex first = files->model()->index(0, 0, files->rootIndex());
            const QModelIndex web = files->model()->match(first, Qt::DisplayRole, kWeb).value(0);
            QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualRect(web).center());
        });
        QTest::qSleep(kUntilFilesAreListed);
        at.person().takesPicture("web-preview", chooser);
        at.presses(Qt::Key_Escape);
    });
}

} // namespace
} // namespace quor::desktop::test
