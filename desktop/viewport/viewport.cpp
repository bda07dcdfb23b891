#include "desktop/viewport/viewport.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/viewport.h"

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kSettlingTime = 120; // milliseconds

// Variables that say how the drawing is shown.
constexpr const wchar_t* kSnapVariable = L"OSMODE";
constexpr const wchar_t* kOrthoVariable = L"ORTHOMODE";

} // namespace

// Tells the viewport what it has to know of the session, which may end before the viewport does.
class Viewport::Listeners final : public ZrApDocumentReactor, public ZrEdSelectionReactor {
public:
    Listeners(Session& session, Viewport& viewport) : session_(session), viewport_(viewport) {
        session.documents().addReactor(this);
        session.documents().addSelectionReactor(this);
        variables_ = session.variables().addListener([this](const ZrString& name) {
            viewport_.update();
            if (name == kSnapVariable || name == kOrthoVariable)
                Q_EMIT viewport_.modesChanged();
        });
    }
    ~Listeners() override {
        if (!Session::exists())
            return;
        session_.variables().removeListener(variables_);
        session_.documents().removeSelectionReactor(this);
        session_.documents().removeReactor(this);
    }
    Listeners(const Listeners&) = delete;
    Listeners& operator=(const Listeners&) = delete;

    void documentToBeDestroyed(ZrApDocument& document) override { viewport_.forget(static_cast<Document&>(document)); }
    void impliedSelectionChanged() override { viewport_.followSelection(); }

private:
    Session& session_;
    Viewport& viewport_;
    int variables_ = 0;
};

Viewport::Viewport(Session& session, DesktopFrontEnd& front, QWidget* parent)
    : QWidget(parent), session_(session), front_(front), listeners_(std::make_unique<Listeners>(session, *this)) {
    setObjectName("viewport");
    setAccessibleName(toQt(texts::kViewportName));
    setAccessibleDescription(toQt(texts::kViewportHelp));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::BlankCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    settled_.setSingleShot(true);
    settled_.setInterval(kSettlingTime);
    connect(&settled_, &QTimer::timeout, this, &Viewport::settle);
    connect(&front, &DesktopFrontEnd::questionOpened, this, &Viewport::questionOpened);
    connect(&front, &DesktopFrontEnd::questionAnswered, this, qOverload<>(&QWidget::update));
    connect(&front, &DesktopFrontEnd::redrawNeeded, this, qOverload<>(&QWidget::update));
}

Viewport::~Viewport() = default;

void Viewport::setDocument(Document* document) {
    hovered_ = {};
    hover_ = {};
    rectangle_.reset();
    aim_.reset();
    view_ = nullptr;
    if (document != nullptr) {
        std::unique_ptr<DocumentView>& view = views_[document];
        if (view == nullptr)
            view = std::make_unique<DocumentView>(*document, size(), [this] { update(); });
        // Meanwhile windows are painted: what is half made is not shown yet.
        view->update([this](double share) { front_.progress(texts::kViewportMakingPicture.get(), share); });
        view_ = view.get();
        view_->resize(size());
        followSelection();
    }
    update();
    Q_EMIT viewChanged();
}

void Viewport::forget(Document& document) {
    const auto found = views_.find(&document);
    if (found == views_.end())
        return;
    if (view_ == found->second.get())
        setDocument(nullptr);
    views_.erase(found);
    given_.clear();
    picture_.forget();
}

// What stands out: at the command prompt what is selected, in a command also what was picked for it.
void Viewport::followSelection() {
    if (view_ == nullptr || &view_->document() != session_.documents().current())
        return;
    view_->scene().setSelected(selectionAfter(zredImpliedSelection(), given_, PickMode::Add));
    update();
}

void Viewport::settle() {
    if (held_ != Held::Nothing && hasHeldMoved_) {
        settled_.start();
        return;
    }
    isMoving_ = false;
    isFineDue_ = true;
    update();
}

void Viewport::navigate(const gs::Camera& camera) {
    if (view_ == nullptr)
        return;
    if (!isMoving_)
        view_->look().history.keep(view_->look().camera);
    isMoving_ = true;
    isFineDue_ = false;
    settled_.start();
    changeCamera(camera);
}

void Viewport::changeCamera(const gs::Camera& camera) {
    view_->look().camera = camera;
    view_->look().isUntouched = false;
    update();
    if (cursor_)
        point(*cursor_); // something else is there now
    Q_EMIT viewChanged();
}

void Viewport::zoomExtents() {
    if (view_ != nullptr)
        navigate(gs::fitted(camera(), size(), extents()));
}

// The middle of what is selected, else of the drawing; what lies outside of the picture is no place to turn around.
ZrGePoint3d Viewport::orbitCenter() const {
    const gs::Projector projector = this->projector();
    const auto isSeen = [&](const ZrGePoint3d& world) {
        const std::optional<gs::ScreenPoint> at = projector.toScreen(world);
        return at && rect().contains(QPointF(at->x, at->y).toPoint());
    };
    const gs::SceneData data = view_->scene().data();
    gs::Box selected;
    for (const gs::SceneItem& item : data.items)
        if (data.emphasis[item.entity] == gs::Emphasis::Selected)
            for (const gs::SceneLine& line : data.lines.subspan(item.firstLine, item.lineCount))
                for (const gs::Coordinates& end : {line.a, line.b})
                    selected.add(data.origin + ZrGeVector3d(end[0], end[1], end[2]));
    for (const gs::LightMark& light : data.lights)
        if (data.emphasis[light.entity] == gs::Emphasis::Selected)
            selected.add(light.position);
    if (!selected.isEmpty() && isSeen(selected.center()))
        return selected.center();
    const gs::Box all = view_->scene().extents();
    return !all.isEmpty() && isSeen(all.center()) ? all.center() : projector.camera().target;
}

gs::Projector Viewport::projector() const { return {camera(), size()}; }

gs::Camera Viewport::camera() const { return view_ != nullptr ? view_->look().camera : gs::Camera(); }

void Viewport::setCamera(const gs::Camera& camera) {
    if (view_ == nullptr || camera == this->camera())
        return;
    view_->look().history.keep(view_->look().camera);
    changeCamera(camera);
}

bool Viewport::backToPreviousCamera() {
    const std::optional<gs::Camera> earlier = view_ != nullptr ? view_->look().history.takeLast() : std::nullopt;
    if (!earlier)
        return false;
    changeCamera(*earlier);
    return true;
}

gs::PictureSize Viewport::size() const { return {std::max(width(), 1), std::max(height(), 1)}; }

gs::VisualStyle Viewport::visualStyle() const {
    return view_ != nullptr ? view_->look().style : gs::VisualStyle::Wireframe;
}

void Viewport::setVisualStyle(gs::VisualStyle style) {
    if (view_ == nullptr)
        return;
    view_->look().style = style;
    update();
    Q_EMIT viewChanged();
}

gs::Box Viewport::extents() const {
    if (view_ == nullptr)
        return {};
    view_->update();
    return view_->scene().extents();
}

void Viewport::regenerate() {
    if (view_ == nullptr)
        return;
    view_->scene().regenerate();
    update();
}

int Viewport::snapModes() const { return session_.variables().number(kSnapVariable); }

bool Viewport::areSnapsOn() const { return (snapModes() & gs::kSnapOff) == 0; }

void Viewport::toggleSnaps() {
    session_.variables().set(kSnapVariable, static_cast<short>(snapModes() ^ gs::kSnapOff));
}

bool Viewport::isOrthoOn() const { return session_.variables().number(kOrthoVariable) != 0; }

void Viewport::toggleOrtho() { session_.variables().set(kOrthoVariable, static_cast<short>(isOrthoOn() ? 0 : 1)); }

} // namespace quor::desktop
