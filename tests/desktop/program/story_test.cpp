// A working day in one story: lights are placed by typing and clicking, with a drag and with a web file; the palette
// and the drawing follow each other; three lights become brighter at once; one is erased and comes back; the drawing is
// saved - and its file is the one that the same commands make on a console.
#include "desktop/palettes/list_view.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/properties/row_tree.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/sys/utf8.h"
#include "sdk/db/light.h"
#include "sdk/db/object_class.h"
#include "tests/desktop/support/person.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>
#include <sstream>

namespace quor::desktop::test {
namespace {

const std::string kSample = QUOR_SAMPLE_DRAWINGS "/gallery.dxf";
const std::string kWeb = QUOR_BUILD_DIR "/share/quor/webs/wall_washer.ies";

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

std::string exact(const ZrGePoint3d& p) {
    std::ostringstream text;
    text.precision(17);
    text << p.x << ',' << p.y << ',' << p.z;
    return text.str();
}

ZrDbObjectIdArray lightsOf(Person& person) {
    return person.sees([&] {
        ZrDbObjectIdArray lights;
        const Document& document = *person.program().session().documents().current();
        for (const ZrDbObjectId id : document.drawing().entities(document.database()->modelSpaceId()))
            if (zrdbObjectClass(id) == ZrDbLight::desc())
                lights.push_back(id);
        return lights;
    });
}

template <class Value>
auto ofLight(Person& person, ZrDbObjectId id, Value&& value) {
    return person.sees([&] { return value(*ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead).object()); });
}

ListView& listOf(Person& person) {
    return *person.sees([&] { return person.program().window().findChild<ListView*>(); });
}

void clickRow(Person& person, int row, Qt::KeyboardModifiers held = Qt::NoModifier) {
    ListView& view = listOf(person);
    person.does([&, row, held] {
        view.activateWindow();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, held, view.rowRect(row).center() - view.viewport()->pos());
    });
}

std::size_t selectedRows(Person& person) {
    ListView& view = listOf(person);
    return person.sees([&] { return static_cast<std::size_t>(view.list()->GetSelectedCount()); });
}

// With the mouse into the cell, then as text.
void setIntensity(Person& person, const QString& value) {
    RowTree& rows = person.sees([&] { return person.program().window().findChild<PropertiesPanel*>(); })->rows();
    person.does([&] {
        person.program().window().activateWindow();
        QTreeWidgetItem* const item = rows.itemOf("light.intensity");
        rows.scrollToItem(item);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(rows.indexFromItem(item, 1)).center());
    });
    person.types(value);
}

// What a console is to be told so that it does the same.
std::string handleOf(ZrDbObjectId id) { return toUtf8(zrFormat(L"#%X", {id.handle().value()})); }

void runConsole(const std::string& drawing, const std::string& typed, const std::string& folder) {
    const std::string input = folder + "/typed.txt";
    std::ofstream(input) << typed;
    const std::string command = "XDG_CONFIG_HOME='" + folder + "' '" QUOR_BUILD_DIR "/bin/quorc' --lang zh '" +
                                drawing + "' < '" + input + "' > '" + folder + "/said.txt' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0) << bytesOf(folder + "/said.txt");
}

TEST(StoryTest, LightsArePlacedListedChangedAndSavedAsOnAConsole) {
    const QTemporaryDir folder;
    const std::string place = folder.path().toStdString();
    const std::string mine = place + "/mine.dxf";
    const std::string theirs = place + "/theirs.dxf";
    std::filesystem::copy_file(kSample, mine);
    std::filesystem::copy_file(kSample, theirs);
    std::string typed;

    ProgramOptions options = usualOptions();
    options.drawings = {mine};
    withProgram(options, [&](Person& person) {
        auto& view = *person.sees([&] { return person.program().window().findChild<Viewport*>(); });

        person.types("POINTLIGHT");
        person.takesPicture("story_task_dialog", person.sees([] { return QApplication::activeModalWidget(); }));
        person.presses(Qt::Key_Return); // the recommended link
        for (const char* const line : {"2000,4500,3900", "N", "Bench", "I", "1.5", ""})
            person.types(line);

        person.types("SPOTLIGHT");
        const QPoint middle = person.sees([&] { return view.rect().center(); });
        person.does([&] { QTest::mouseMove(&view, middle + QPoint(40, 30)); });
        person.does([&] { QTest::mouseClick(&view, Qt::LeftButton, {}, middle + QPoint(40, 30)); });
        person.does([&] { QTest::mouseMove(&view, middle + QPoint(140, -60)); });
        person.takesPicture("story_spotlight_drag");
        person.does([&] { QTest::mouseClick(&view, Qt::LeftButton, {}, middle + QPoint(140, -60)); });
        for (const char* const line : {"H", "30", ""})
            person.types(line);

        for (const char* const line : {"WEBLIGHT", "9000,4500,3900", "9000,4500,0", "B", "F", "~"})
            person.types(line);
        person.takesPicture("story_web_file", person.sees([] { return QApplication::activeModalWidget(); }));
        person.types(QString::fromStdString(kWeb));
        person.types("E");
        person.types("");

        const ZrDbObjectIdArray lights = lightsOf(person);
        ASSERT_EQ(lights.size(), 3U);
        const auto source = ofLight(person, lights[1], [](const ZrDbLight& light) { return light.position(); });
        const auto target = ofLight(person, lights[1], [](const ZrDbLight& light) { return light.targetLocation(); });

        person.types("LIGHTLIST");
        clickRow(person, 0);
        EXPECT_EQ(person.sees([] { return zredImpliedSelection().size(); }), 1U);
        person.does([&] { zredSetImpliedSelection({lights[0], lights[1]}); });
        EXPECT_EQ(selectedRows(person), 2U);
        const QPoint glyph = person.sees([&] {
            const gs::Projector projector(view.camera(), view.size());
            const gs::ScreenPoint seen = *projector.toScreen(source);
            return QPoint(static_cast<int>(seen.x), static_cast<int>(seen.y));
        });
        person.does([&] { zredSetImpliedSelection({}); });
        person.does([&] { QTest::mouseClick(&view, Qt::LeftButton, {}, glyph); });
        EXPECT_EQ(person.sees([] { return zredImpliedSelection(); }), ZrDbObjectIdArray{lights[1]});
        EXPECT_EQ(selectedRows(person), 1U);

        clickRow(person, 0);
        clickRow(person, 2, Qt::ShiftModifier);
        EXPECT_EQ(person.sees([] { return zredImpliedSelection().size(); }), 3U);
        setIntensity(person, "2.5");
        for (const ZrDbObjectId light : lights)
            EXPECT_EQ(ofLight(person, light, [](const ZrDbLight& l) { return l.intensity(); }), 2.5);
        person.takesPicture("story_three_lights");

        clickRow(person, 0);
        const ZrDbObjectIdArray first = person.sees([] { return zredImpliedSelection(); });
        ASSERT_EQ(first.size(), 1U);
        person.presses(Qt::Key_Delete);
        EXPECT_EQ(lightsOf(person).size(), 2U);
        person.types("U");
        EXPECT_EQ(lightsOf(person).size(), 3U);
        person.types("SAVE");
        EXPECT_FALSE(person.sees([&] { return person.program().session().documents().current()->isModified(); }));

        typed = "POINTLIGHT\n1\n2000,4500,3900\nN\nBench\nI\n1.5\n\n"
                "SPOTLIGHT\n" +
                exact(source) + "\n" + exact(target) +
                "\nH\n30\n\n"
                "WEBLIGHT\n9000,4500,3900\n9000,4500,0\nB\nF\n" +
                kWeb +
                "\nE\n\n"
                "CHPROP\n" +
                handleOf(lights[0]) + "\n" + handleOf(lights[1]) + "\n" + handleOf(lights[2]) +
                "\n\nlight.intensity\n2.5\n"
                "ERASE\n" +
                handleOf(first[0]) + "\n\nU\nSAVE\n";
    });
    runConsole(theirs, typed, place);

    EXPECT_NE(bytesOf(mine), bytesOf(kSample));
    EXPECT_TRUE(bytesOf(mine) == bytesOf(theirs)) << bytesOf(place + "/said.txt");
}

} // namespace
} // namespace quor::desktop::test
