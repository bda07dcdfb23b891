#include "desktop/layers/layers_panel.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/keys.h"
#include "desktop/layers/layer_table.h"
#include "desktop/properties/hint.h"
#include "desktop/properties/swatch.h"
#include "desktop/qt_text.h"
#include "host/document.h"
#include "host/props/change.h"
#include "host/session.h"
#include "host/texts/properties.h"
#include "host/texts/window.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

constexpr int kMargin = 4;
// The name of a change of layers in UNDO.
constexpr const wchar_t* kStep = L"LAYER";

QString withoutMnemonic(const Text& text) {
    QString plain = toQt(text);
    const qsizetype bracket = plain.indexOf("(&");
    return bracket >= 0 ? plain.left(bracket) : plain.remove('&');
}

QToolButton* button(const Text& text, QWidget* parent) {
    auto* const made = new QToolButton(parent);
    made->setText(toQt(text));
    made->setToolButtonStyle(Qt::ToolButtonTextOnly);
    made->setFocusPolicy(Qt::StrongFocus);
    return made;
}

} // namespace

LayersPanel::LayersPanel(Session& session, QWidget* parent)
    : QWidget(parent), session_(session), watch_([this] { refreshSoon(); }), filter_(new QLineEdit(this)),
      makeCurrent_(button(texts::kMakeCurrent, this)), new_(button(texts::kMakeLayer, this)),
      name_(new QLineEdit(this)), table_(new LayerTable(this)), hint_(new Hint(table_->viewport())) {
    setObjectName("layersPanel");
    auto* const tools = new QHBoxLayout;
    tools->setSpacing(kMargin);
    tools->addWidget(filter_, 1);
    tools->addWidget(new_);
    tools->addWidget(makeCurrent_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addLayout(tools);
    layout->addWidget(name_);
    layout->addWidget(table_);
    filter_->setObjectName("filter");
    filter_->setPlaceholderText(withoutMnemonic(texts::kLayerFilter));
    filter_->setAccessibleName(withoutMnemonic(texts::kLayerFilter));
    filter_->setClearButtonEnabled(true);
    new_->setObjectName("new");
    makeCurrent_->setObjectName("makeCurrent");
    name_->setObjectName("newName");
    name_->setPlaceholderText(toQt(texts::kNameOfNewLayer));
    name_->setAccessibleName(toQt(texts::kNameOfNewLayer));
    name_->hide();
    name_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, table_, &LayerTable::setFilter);
    connect(new_, &QToolButton::clicked, this, &LayersPanel::beginNew);
    connect(makeCurrent_, &QToolButton::clicked, this, [this] { change(LayerTable::Current, true); });
    connect(name_, &QLineEdit::textEdited, this, [this] { hint_->clearMessage(); });
    connect(table_, &LayerTable::changeWanted, this, &LayersPanel::change);
    connect(table_, &QTableWidget::currentCellChanged, this, [this] { hint_->clearMessage(); });
    if (auto* const front = dynamic_cast<DesktopFrontEnd*>(&session.front())) {
        connect(front, &DesktopFrontEnd::questionOpened, this, &LayersPanel::refreshSoon);
        connect(front, &DesktopFrontEnd::questionAnswered, this, &LayersPanel::refreshSoon);
    }
    refresh();
}

void LayersPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

// No layer is erased here, and no object of the drawing either.
void LayersPanel::keyPressEvent(QKeyEvent* event) { event->setAccepted(isErasing(event->key())); }

// Once for all that happens until the program waits.
void LayersPanel::refreshSoon() {
    if (std::exchange(isWaiting_, true))
        return;
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

void LayersPanel::refresh() {
    isWaiting_ = false;
    if (!Session::exists() || (!isVisible() && table_->rowCount() > 0))
        return;
    Document* const document = session_.documents().current();
    const bool canChange = props::canChange(session_);
    table_->setEditable(canChange);
    new_->setEnabled(canChange);
    makeCurrent_->setEnabled(canChange);
    if (!canChange)
        name_->hide();
    table_->showLayers(document != nullptr ? props::layersOf(document->drawing()) : std::vector<props::LayerRow>());
}

bool LayersPanel::tell(const props::Refusal& refusal, QWidget& about) {
    if (refusal)
        hint_->say(toQt(*refusal), &about);
    else
        hint_->clearMessage();
    return !refusal;
}

void LayersPanel::changeChosen(const std::function<props::Refusal(ZrDbObjectId)>& one) {
    const std::vector<ZrDbObjectId> layers = table_->chosen();
    const props::Refusal refusal = props::makeChange(session_, kStep, [&]() -> props::Refusal {
        for (const ZrDbObjectId layer : layers)
            if (props::Refusal refused = one(layer))
                return refused;
        return std::nullopt;
    });
    refresh();
    tell(refusal, *table_);
}

void LayersPanel::change(int column, bool value) {
    if (!Session::exists() || session_.documents().current() == nullptr)
        return;
    switch (column) {
    case LayerTable::On:
        return changeChosen([=](ZrDbObjectId layer) { return props::setLayerOn(layer, value); });
    case LayerTable::Frozen:
        return changeChosen([=](ZrDbObjectId layer) { return props::setLayerFrozen(layer, value); });
    case LayerTable::Locked:
        return changeChosen([=](ZrDbObjectId layer) { return props::setLayerLocked(layer, value); });
    case LayerTable::Color:
        return askForColor();
    default:
        break;
    }
    const props::LayerRow* const layer = table_->layerAt(table_->currentRow());
    if (layer == nullptr || layer->isCurrent)
        return;
    db::Database& drawing = session_.documents().current()->drawing();
    const ZrDbObjectId id = layer->id;
    const props::Refusal refusal =
        props::makeChange(session_, kStep, [&] { return props::makeLayerCurrent(drawing, id); });
    refresh();
    tell(refusal, *table_);
}

void LayersPanel::askForColor() {
    const props::LayerRow* const layer = table_->layerAt(table_->currentRow());
    if (layer == nullptr)
        return;
    auto* const dialog = new QColorDialog(toQt(layer->color), this);
    dialog->setObjectName("colors");
    dialog->setWindowTitle(toQt(texts::kChooseColor));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
        if (!Session::exists())
            return;
        const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
        const ZrCmColor color = ZrCmColor::fromRGB(part(chosen.red()), part(chosen.green()), part(chosen.blue()));
        changeChosen([&](ZrDbObjectId each) { return props::setLayerColor(each, color); });
    });
    dialog->open();
}

void LayersPanel::beginNew() {
    if (!Session::exists() || !props::canChange(session_))
        return;
    name_->setText(toQt(props::freeLayerName(session_.documents().current()->drawing())));
    name_->show();
    name_->setFocus();
    name_->selectAll();
}

void LayersPanel::makeNew() {
    Document* const document = session_.documents().current();
    if (document == nullptr)
        return;
    const QString name = name_->text().trimmed();
    const props::Refusal refusal =
        props::makeChange(session_, kStep, [&] { return props::addLayer(document->drawing(), fromQt(name)); });
    if (!tell(refusal, *name_))
        return;
    name_->hide();
    filter_->clear();
    refresh();
    table_->setCurrentCell(table_->rowOf(name), LayerTable::Name);
    table_->setFocus();
}

bool LayersPanel::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched != name_ || !isKey)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isEnter && key != Qt::Key_Escape)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return false;
    }
    if (isEnter) {
        makeNew();
    } else {
        hint_->clearMessage();
        name_->hide();
        new_->setFocus();
    }
    return true;
}

} // namespace quor::desktop
