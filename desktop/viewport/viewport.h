// The drawing on the screen: shows it, moves it, and takes what a person points at - objects at the command prompt and
// where they are asked for, points where a point is asked for.
#pragma once

#include "desktop/viewport/aiming.h"
#include "desktop/viewport/document_view.h"
#include "desktop/viewport/font_letters.h"
#include "desktop/viewport/hover_sketch.h"
#include "desktop/viewport/overlay.h"
#include "desktop/viewport/picked.h"
#include "desktop/viewport/picture.h"
#include "host/front.h"

#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>

class QNativeGestureEvent;

namespace quor {
class Session;
}

namespace quor::desktop {

class DesktopFrontEnd;

class Viewport final : public QWidget, public gs::View {
    Q_OBJECT

public:
    Viewport(Session& session, DesktopFrontEnd& front, QWidget* parent = nullptr);
    ~Viewport() override;

    // What is shown from now on; null: no drawing. What was set up for a drawing is kept until it is closed.
    void setDocument(Document* document);

    // Takes back what the mouse has begun; else, at the command prompt, selects nothing. Whether there was something.
    bool escape();
    void zoomExtents();
    // Object snaps (OSMODE) and points along the axes only (ORTHOMODE).
    [[nodiscard]] bool areSnapsOn() const;
    void toggleSnaps();
    [[nodiscard]] bool isOrthoOn() const;
    void toggleOrtho();
    // How often the drawing has been rendered.
    [[nodiscard]] std::size_t renderCount() const { return picture_.renderCount(); }

    [[nodiscard]] gs::Camera camera() const override;
    void setCamera(const gs::Camera& camera) override;
    bool backToPreviousCamera() override;
    // In logical pixels.
    [[nodiscard]] gs::PictureSize size() const override;
    [[nodiscard]] gs::VisualStyle visualStyle() const override;
    void setVisualStyle(gs::VisualStyle style) override;
    [[nodiscard]] gs::Box extents() const override;
    void regenerate() override;

    [[nodiscard]] QSize sizeHint() const override { return {960, 640}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 120}; }

Q_SIGNALS:
    // The point under the cursor, as it would be answered; world coordinates.
    void cursorMoved(const ZrGePoint3d& world);
    void viewChanged();
    // Snaps or ortho were switched.
    void modesChanged();
    // Right click at the command prompt; a place of the screen.
    void contextMenuRequested(const QPoint& screen);
    // A key that is meant for the command line.
    void keyForCommandLine(QKeyEvent* event);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Listeners;
    // What the mouse moves while a button is held.
    enum class Held { Nothing, Pan, Orbit };
    // A point that is meant, and the snap that says so.
    struct Aim {
        ZrGePoint3d point;
        std::optional<gs::Snap> snap;
    };

    // What is shown, and from where (viewport.cpp).
    void forget(Document& document);
    void followSelection();
    [[nodiscard]] gs::Projector projector() const;
    // As the mouse and the keyboard do it: one step back for one movement, and a fast picture until it ends.
    void navigate(const gs::Camera& camera);
    void changeCamera(const gs::Camera& camera);
    void settle();
    [[nodiscard]] ZrGePoint3d orbitCenter() const;

    // What is asked, and what a place on the picture answers (viewport_pointing.cpp).
    [[nodiscard]] bool asks(std::initializer_list<Question::Kind> kinds) const;
    [[nodiscard]] bool asksForPoint() const;
    [[nodiscard]] bool asksForObjects() const;
    [[nodiscard]] bool isAtCommandPrompt() const;
    [[nodiscard]] int snapModes() const;
    [[nodiscard]] WorkPlane plane() const;
    [[nodiscard]] Aim aimAt(QPointF place) const;
    [[nodiscard]] ZrDbObjectId objectAt(QPointF place) const;
    [[nodiscard]] ZrDbObjectIdArray selectable(ZrDbObjectIdArray picked) const;
    void point(QPointF place);
    void pressToPick(QPointF place, Qt::KeyboardModifiers modifiers);
    void finishRectangle(QPointF place, Qt::KeyboardModifiers modifiers);
    void take(const ZrDbObjectIdArray& picked, Qt::KeyboardModifiers modifiers);
    void questionOpened();
    void showHovered();

    // The mouse and the keyboard (viewport_input.cpp).
    void leftPress(QPointF place, Qt::KeyboardModifiers modifiers);
    void hold(Held held, QPointF place);
    void moveHeld(QPointF place);
    void rightClick(QPoint place);
    bool pinch(const QNativeGestureEvent& gesture);
    bool pressModeKey(int key);
    bool pressViewKey(const QKeyEvent& event);

    // Painting (viewport_paint.cpp).
    [[nodiscard]] Picture::Subject subject() const;
    [[nodiscard]] const QImage& picture();
    void paintPointing(QPainter& painter, const ViewportColors& colors);
    void paintWay(QPainter& painter, const gs::Projector& projector, const ViewportColors& colors);
    [[nodiscard]] QStringList readOut() const;
    [[nodiscard]] CursorShape cursorShape() const;

    FontLetters letters_;
    Session& session_;
    DesktopFrontEnd& front_;
    std::unique_ptr<Listeners> listeners_;
    std::map<Document*, std::unique_ptr<DocumentView>> views_;
    DocumentView* view_ = nullptr;
    Picture picture_;

    bool isMoving_ = false;
    bool isFineDue_ = false; // what moved stands still now
    QTimer settled_;
    Held held_ = Held::Nothing;
    bool hasHeldMoved_ = false;
    bool heldAsksExtents_ = false;
    ZrGePoint3d heldCenter_;
    QPointF heldAt_;

    std::optional<QPointF> cursor_; // while the mouse is over the drawing
    std::optional<Aim> aim_;        // of the cursor, while a point is asked for
    std::optional<PickRectangle> rectangle_;
    bool isRectanglePressed_ = false; // it ends when the button is let go
    ZrDbObjectId hovered_;
    HoverSketch hover_;
    std::size_t hoverVersion_ = 0; // of the drawing, for which it was made
    bool isHoverDue_ = false;
    ZrDbObjectIdArray given_; // to the questions for objects of the running command
};

} // namespace quor::desktop
