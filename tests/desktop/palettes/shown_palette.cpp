#include "tests/desktop/palettes/shown_palette.h"

#include "host/document.h"
#include "sdk/db/database.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"

#include <QApplication>
#include <QTest>

namespace quor::desktop::test {

namespace {
constexpr unsigned kLightList = 7504;
constexpr unsigned kTips = 7505;

// Where the palette looks for lights.
ZrDbObjectId lightLayer() {
    constexpr const wchar_t* kName = L"ADSK_SYSTEM_LIGHTS";
    ZrDbLayerTable* table = nullptr;
    ZrDbObjectId id;
    EXPECT_EQ(zrdbWorkingDatabase()->getLayerTable(table, ZrDb::kForWrite), Quor::eOk);
    if (table->getIdAt(kName, id) != Quor::eOk) {
        auto layer = std::make_unique<ZrDbLayerTableRecord>();
        layer->setName(kName);
        layer->setIsHidden(true);
        EXPECT_EQ(table->add(id, layer.get()), Quor::eOk);
        layer.release()->close();
    }
    table->close();
    return id;
}
} // namespace

ShownPalette::ShownPalette(const ZrString& language) : session_({.language = language}) {
    main_->resize(1000, 700);
    main_->setCentralWidget(drawing_);
    host_ = std::make_unique<PaletteHost>(session_.session(), *main_);
    host_->setFocusDrawing([this] { drawing_->setFocus(); });
    front().whenRealised([this](CWnd& window) { host_->realise(window); });
    session_.addCommand(L"DO", [this] {
        body_();
        return RTNORM;
    });
    EXPECT_TRUE(session_.loadLight(QUOR_BUILD_DIR));
    main_->show();
    focusDrawing();
}

ShownPalette::~ShownPalette() = default;

ZrDbObjectId ShownPalette::addLight(const ZrString& name, DrawableType type) {
    ZrDbObjectId id;
    body_ = [&] {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(name);
        light->setLightType(type);
        light->setLayer(lightLayer(), true, true);
        id = RxCommand::postToDb(*light, nullptr, nullptr, true);
        static_cast<void>(light.release()); // the drawing owns it now
    };
    EXPECT_EQ(session_.session().processor().run(L"DO", false).result, RTNORM);
    lights_.push_back(id);
    return id;
}

void ShownPalette::showLights(std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* const name : names)
        addLight(name);
    show();
    settle();
}

void ShownPalette::settle() {
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

CZrRxPaletteSet& ShownPalette::palette() {
    return *Singleton<CZrRxPaletteSetManager>::instancePtr(false)->palettes().front();
}

CListCtrl& ShownPalette::list() {
    return static_cast<CListCtrl&>(*palette().children().front()->GetDlgItem(kLightList));
}

CWnd& ShownPalette::tips() { return *palette().children().front()->GetDlgItem(kTips); }

QPoint ShownPalette::middleOf(int row) {
    const CRect label = list().GetSubItemRect(row, 1, LVIR_LABEL);
    return QPoint(label.left + label.Width() / 2, label.top + label.Height() / 2) - view().viewport()->pos();
}

QPoint ShownPalette::besideRows() { return view().viewport()->rect().bottomLeft() + QPoint(5, -3); }

// A window system brings a window to the front when it is clicked.
void ShownPalette::click(int row, Qt::KeyboardModifiers held) {
    view().activateWindow();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, held, middleOf(row));
    settle();
}

void ShownPalette::rightClick(QPoint at) {
    QTest::mouseClick(view().viewport(), Qt::RightButton, Qt::NoModifier, at);
    settle();
}

void ShownPalette::press(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
    settle();
}

void ShownPalette::clickHeading(int column) {
    const CRect heading = list().GetHeaderCtrl()->GetItemRect(column);
    QTest::mouseClick(&headings(), Qt::LeftButton, Qt::NoModifier,
                      QPoint((heading.left + heading.right) / 2, heading.bottom / 2));
    settle();
}

void ShownPalette::focusList() {
    view().activateWindow();
    view().setFocus();
    settle();
}

void ShownPalette::focusDrawing() {
    main_->activateWindow();
    drawing_->setFocus();
    settle();
}

std::vector<int> ShownPalette::selectedRows() {
    std::vector<int> rows;
    for (int row = list().GetNextItem(-1, LVNI_SELECTED); row >= 0; row = list().GetNextItem(row, LVNI_SELECTED))
        rows.push_back(row);
    return rows;
}

ZrString ShownPalette::names() {
    ZrString all;
    for (int row = 0; row < list().GetItemCount(); ++row)
        all += (row == 0 ? L"" : L" ") + list().GetItemText(row, 1);
    return all;
}

short ShownPalette::lightListState() {
    short state = -1;
    EXPECT_TRUE(zwutads::getVar(L"LIGHTLISTSTATE", state));
    return state;
}

} // namespace quor::desktop::test
