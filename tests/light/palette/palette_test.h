// The palette in a session of its own: the lights that a test makes, what a person does, and what the list shows then.
#pragma once

#include "light/palette/light_list.h"
#include "light/palette/light_list_dialog.h"
#include "sdk/db/light.h"
#include "sdk/ui/list_control.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace quor::test {

inline constexpr unsigned kLightList = 7504;
inline constexpr unsigned kTips = 7505;
inline constexpr unsigned kLabel = 7506;

using Names = std::vector<ZrString>;

// A light and where it is put.
struct LightToMake {
    ZrString name;
    DrawableType type = DrawableType::kPointLight;
    const wchar_t* layer = L"ADSK_SYSTEM_LIGHTS";
    bool hiddenLayer = true;
    const wchar_t* space = nullptr; // null: the current one
};

// A light of a class of its own.
class DerivedLight final : public ZrDbLight {
public:
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }
};

// The module's own initialisation and unloading stand around each test.
class PaletteTest : public testing::Test {
protected:
    explicit PaletteTest(const TestSessionOptions& options = {});
    ~PaletteTest() override;

    // Inside one command.
    void asCommand(std::function<void()> body);
    // Types the lines; what runs by itself, a macro, runs too.
    void type(std::initializer_list<ZrString> lines) { session_.run(lines); }
    void runWaiting() { session_.run({}); }

    // Each in a command of its own.
    ZrDbObjectId make(const LightToMake& wanted, std::unique_ptr<ZrDbLight> light = std::make_unique<ZrDbLight>());
    ZrDbObjectId make(const wchar_t* name, DrawableType type = DrawableType::kPointLight);
    void rename(ZrDbObjectId light, const ZrString& name);
    void setType(ZrDbObjectId light, DrawableType type);
    void erase(ZrDbObjectId light, bool erasing = true);

    void show() { type({L"LIGHTLIST"}); }
    void hide() { type({L"LIGHTLISTCLOSE"}); }
    [[nodiscard]] static CZrLightList& palette() { return *light::lightListPalette; }
    [[nodiscard]] static CZrlightListDlg& dialog() { return *palette().dialog(); }
    [[nodiscard]] static CListCtrl& list() { return static_cast<CListCtrl&>(*dialog().GetDlgItem(kLightList)); }
    [[nodiscard]] static CWnd& tips() { return *dialog().GetDlgItem(kTips); }
    [[nodiscard]] static CWnd& label() { return *dialog().GetDlgItem(kLabel); }

    // What the list shows, from the top.
    [[nodiscard]] static Names names();
    [[nodiscard]] static std::vector<int> images();
    [[nodiscard]] static Names selectedNames();
    [[nodiscard]] static bool isSelected(int row);
    // What is selected in the drawing, in its order.
    [[nodiscard]] static std::vector<ZrDbObjectId> selectedInDrawing();
    // Tells everybody that these are selected in the drawing.
    static void selectInDrawing(const std::vector<ZrDbObjectId>& ids);
    [[nodiscard]] static GlyphDisplay glyphDisplay(ZrDbObjectId light);
    [[nodiscard]] static short lightListState();

    // What a person does, in the middle of a row's name or beside the rows.
    static void click(int row, unsigned flags = 0);
    static void doubleClick(int row);
    static void rightClick(int row);
    static void clickBeside();
    static void doubleClickBeside();
    static void rightClickBeside();
    static void moveTo(int row);
    static void clickHeading(int column);
    static void press(unsigned key);

    [[nodiscard]] ScriptedFrontEnd& front() { return session_.front(); }

    TestSession session_;

private:
    std::function<void()> body_;
};

// The palette is shown.
class ShownPaletteTest : public PaletteTest {
protected:
    ShownPaletteTest() { show(); }

    // What the palette is told of an object, erased or not, as the host tells it.
    template <class Slot>
    void tell(Slot slot, ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbObject> object(id, ZrDb::kForRead, true);
        (palette().*slot)(object->database(), object.object());
    }
};

} // namespace quor::test
