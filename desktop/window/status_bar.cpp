#include "desktop/window/status_bar.h"

#include "desktop/qt_text.h"
#include "desktop/window/actions.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/window.h"
#include "sdk/db/database.h"
#include "sdk/db/units.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <array>

namespace quor::desktop {

namespace {

namespace words = texts::window;

constexpr std::array kUnits{words::kUnitsGeneric, words::kUnitsAmerican, words::kUnitsInternational};

// Chosen on purpose only: not by a wheel that passes over it, nor by a letter that is meant for the command line.
class UnitsBox final : public QComboBox {
public:
    explicit UnitsBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override {
        const bool isCharacter =
            !event->text().isEmpty() && event->text().front().isPrint() && event->key() != Qt::Key_Space;
        if (isCharacter)
            event->ignore();
        else
            QComboBox::keyPressEvent(event);
    }
};

QString numberText(double value) {
    ZrString text;
    zrdbRToS(value, -1, -1, text);
    return toQt(text);
}

} // namespace

StatusBar::StatusBar(Session& session, const Actions& actions, QWidget* parent)
    : QStatusBar(parent), session_(session), coordinates_(new QLabel(this)), progressText_(new QLabel(this)),
      progress_(new QProgressBar(this)), units_(new UnitsBox(this)), ucs_(new QLabel(this)) {
    setSizeGripEnabled(true);
    coordinates_->setObjectName("coordinates");
    coordinates_->setMinimumWidth(fontMetrics().horizontalAdvance("-000000.0000, -000000.0000, -000000.0000"));
    coordinates_->setToolTip(toQt(words::kCoordinates));
    addWidget(coordinates_);
    progressText_->setTextFormat(Qt::PlainText);
    progressText_->hide();
    progress_->setRange(0, 1000);
    progress_->setMaximumWidth(180);
    progress_->setMaximumHeight(14);
    progress_->setTextVisible(false);
    progress_->hide();
    addWidget(progressText_);
    addWidget(progress_);
    addSwitch(actions.action("snap"), toQt(words::kSnap), toQt(words::kSnapTip));
    addSwitch(actions.action("ortho"), toQt(words::kOrtho), toQt(words::kOrthoTip));
    addSwitch(actions.action("shaded"), toQt(words::kShaded), toQt(words::kShadedTip));
    addSwitch(actions.action("defaultlighting"), toQt(words::kDefaultLighting), toQt(words::kDefaultLightingTip));
    units_->setObjectName("units");
    for (const Text& text : kUnits)
        units_->addItem(toQt(text));
    units_->setToolTip(toQt(words::kUnitsTip));
    units_->setAccessibleName(toQt(words::kUnitsTip));
    units_->setFrame(false);
    connect(units_, &QComboBox::activated, this, &StatusBar::unitsChosen);
    addPermanentWidget(units_);
    ucs_->setObjectName("ucs");
    ucs_->setTextFormat(Qt::PlainText);
    ucs_->setToolTip(toQt(words::kUcsTip));
    addPermanentWidget(ucs_);
}

QToolButton* StatusBar::addSwitch(QAction& action, const QString& text, const QString& tip) {
    auto* const button = new QToolButton(this);
    button->setDefaultAction(&action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setText(text);
    button->setToolTip(tip);
    button->setAutoRaise(true);
    // The button keeps its own short text when the action changes.
    connect(&action, &QAction::changed, button, [button, text, tip] {
        button->setText(text);
        button->setToolTip(tip);
    });
    addPermanentWidget(button);
    return button;
}

void StatusBar::showCursor(const ZrGePoint3d& world) {
    if (session_.documents().current() == nullptr)
        return;
    const ZrGePoint3d p = zrdbWcs2Ucs(world);
    coordinates_->setText(numberText(p.x) + ", " + numberText(p.y) + ", " + numberText(p.z));
}

void StatusBar::refresh() {
    const Document* const document = session_.documents().current();
    units_->setEnabled(document != nullptr);
    if (document == nullptr) {
        coordinates_->clear();
        ucs_->clear();
        return;
    }
    units_->setCurrentIndex(session_.variables().number(L"LIGHTINGUNITS"));
    const db::Ucs ucs = document->drawing().ucs();
    const bool isWorld =
        ucs.origin == ZrGePoint3d() && ucs.xAxis == ZrGeVector3d::kXAxis && ucs.yAxis == ZrGeVector3d::kYAxis;
    const ZrString name = isWorld ? words::kUcsWorld.get() : ucs.name.empty() ? words::kUcsUnnamed.get() : ucs.name;
    ucs_->setText(" " + toQt(fill(words::kUcs, name)) + " ");
}

// Painted at once: who tells of progress does not come back to the event loop meanwhile.
void StatusBar::showProgress(const QString& what, double fraction) {
    const bool goesOn = fraction < 1;
    progressText_->setText(what);
    progressText_->setVisible(goesOn);
    progress_->setVisible(goesOn);
    progress_->setValue(static_cast<int>(fraction * 1000));
    repaint();
}

} // namespace quor::desktop
