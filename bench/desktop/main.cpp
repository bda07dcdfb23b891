// The desktop program with a drawing, from its start to what a person does with it, without a display: times of what
// they wait for.
#include "bench/desktop/stopwatch.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/palettes/list_view.h"
#include "desktop/program.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/main_window.h"
#include "host/ed/command_processor.h"
#include "sdk/ed/selection.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <cstdio>
#include <deque>

namespace {

using namespace quor;
using namespace quor::desktop;
using bench::Stopwatch;

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers);
    QApplication::sendEvent(&widget, &down);
    QApplication::sendEvent(&widget, &up);
}

void moveTo(QWidget& widget, QPointF place) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, {}, {});
    QApplication::sendEvent(&widget, &move);
}

// What is measured, one thing after the other; each begins when the program waits at the command prompt.
class Story : public QObject {
public:
    Story(Program& program, const Stopwatch& sinceStart) : program_(program), sinceStart_(sinceStart) {
        connect(&timer_, &QTimer::timeout, this, &Story::tick);
        timer_.start(1);
    }

private:
    [[nodiscard]] MainWindow& window() { return program_.window(); }
    [[nodiscard]] Viewport& viewport() { return window().viewport(); }

    void tick() {
        const Question* const open = program_.front().question();
        if (open == nullptr || steps_.empty() || isBusy_)
            return;
        isBusy_ = true;
        const auto step = steps_.front();
        steps_.pop_front();
        step();
        isBusy_ = false;
    }

    void firstPicture() {
        window().repaint();
        sinceStart_.report("start of the program until the first picture");
        bench::reportMemory("memory then");
    }

    // As a person turns it with the keyboard; each picture is made and painted before the next one.
    void orbit(const char* what) {
        constexpr int kPictures = 90;
        Stopwatch clock;
        for (int i = 0; i < kPictures; ++i) {
            const Stopwatch one;
            press(viewport(), Qt::Key_Left, Qt::ControlModifier);
            viewport().repaint();
            clock.add(one.milliseconds());
        }
        clock.reportMedian(what);
    }

    // Without the speed of a movement: each pixel, smooth lines, shadows.
    void standStill(const char* what) {
        Stopwatch clock;
        for (int i = 0; i < 7; ++i) {
            gs::Camera camera = viewport().camera();
            camera = gs::orbited(camera, camera.target, 0.05, 0);
            viewport().setCamera(camera);
            const Stopwatch one;
            viewport().repaint();
            clock.add(one.milliseconds());
        }
        clock.reportMedian(what);
    }

    // The mouse over the drawing: what is under it is found and shown.
    void hover(const char* what) {
        Stopwatch clock;
        for (int i = 0; i < 60; ++i) {
            const Stopwatch one;
            moveTo(viewport(), {viewport().width() * (0.2 + 0.01 * i), viewport().height() * 0.5});
            viewport().repaint();
            clock.add(one.milliseconds());
        }
        clock.reportMedian(what);
    }

    void openList() {
        sinceCommand_ = Stopwatch();
        program_.front().run(L"LIGHTLIST");
    }

    void listIsThere() {
        window().repaint();
        sinceCommand_.report("LIGHTLIST until the list is painted");
    }

    void selectInList() {
        auto* const list = window().findChild<ListView*>();
        list->setFocus();
        const Stopwatch clock;
        press(*list, Qt::Key_A, Qt::ControlModifier);
        window().repaint();
        clock.report("all lights selected in the list, drawing and list painted");
        selected_ = zredImpliedSelection();
        std::printf("%zu lights are selected\n", selected_.size());
    }

    void selectInDrawing() {
        zredSetImpliedSelection({});
        window().repaint();
        const Stopwatch clock;
        zredSetImpliedSelection(selected_);
        window().repaint();
        clock.report("all lights selected in the drawing, drawing and list painted");
        zredSetImpliedSelection({});
        window().repaint();
    }

    void shade() {
        viewport().setVisualStyle(gs::VisualStyle::Shaded);
        gs::Camera camera = gs::lookingAlong(viewport().camera(), {1, -1, 0.8});
        camera.projection = gs::Projection::Perspective;
        viewport().setCamera(gs::fitted(camera, viewport().size(), viewport().extents()));
        viewport().repaint();
    }

    void end() {
        bench::reportMemory("memory at the end");
        program_.session().processor().requestQuit();
        program_.front().end();
    }

    Program& program_;
    const Stopwatch& sinceStart_;
    Stopwatch sinceCommand_;
    QTimer timer_;
    bool isBusy_ = false;
    ZrDbObjectIdArray selected_;
    std::deque<std::function<void()>> steps_{
        [this] { firstPicture(); },
        [this] { orbit("a picture while orbiting, wireframe"); },
        [this] { standStill("a still picture, wireframe"); },
        [this] { hover("a movement of the mouse over it"); },
        [this] { openList(); },
        [this] { listIsThere(); },
        [this] { selectInList(); },
        [this] { selectInDrawing(); },
        [this] { shade(); },
        [this] { orbit("a picture while orbiting, shaded by the lights"); },
        [this] { standStill("a still picture, shaded by the lights"); },
        [this] { hover("a movement of the mouse over it"); },
        [this] { end(); },
    };
};

} // namespace

int main(int count, char** arguments) {
    const Stopwatch sinceStart;
    if (count < 2) {
        std::fputs("usage: bench_desktop DRAWING\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    const QTemporaryDir home;
    ProgramOptions options;
    options.drawings = {arguments[1]};
    options.session.settingsFile = (home.path() + "/settings.ini").toStdString();
    options.session.resourceFolder = std::filesystem::path(QUOR_BUILD_DIR) / "share/quor";
    options.session.moduleFolders = {std::filesystem::path(QUOR_BUILD_DIR) / "lib/quor/modules"};
    options.session.language = L"zh";
    options.copies = (home.path() + "/copies").toStdString();
    QApplication::setStyle("Fusion");
    Program program(std::move(options));
    program.window().resize(1600, 1000);
    Story story(program, sinceStart);
    QTimer::singleShot(0, qApp, [&] { QApplication::exit(program.run()); });
    return QApplication::exec();
}
