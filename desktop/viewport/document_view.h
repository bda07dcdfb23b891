// How one open drawing is looked at: what it looks like, and for each of its spaces from where. There is one as long as
// the drawing is open.
#pragma once

#include "desktop/viewport/camera_history.h"
#include "host/document.h"
#include "host/gs/scene.h"
#include "host/gs/view.h"

#include <functional>
#include <map>

namespace quor::desktop {

// Of one space.
struct Look {
    gs::Camera camera;
    CameraHistory history;
    gs::VisualStyle style = gs::VisualStyle::Wireframe;
    bool isUntouched = true; // nobody has moved it yet: it may be made to fit another size of the picture
};

class DocumentView final : public ZrDbDatabaseReactor {
public:
    // `changed` is told that the picture is not up to date any more, once until the next update.
    DocumentView(Document& document, gs::PictureSize size, std::function<void()> changed);
    ~DocumentView() override;
    DocumentView(const DocumentView&) = delete;
    DocumentView& operator=(const DocumentView&) = delete;

    [[nodiscard]] Document& document() const { return document_; }
    // As the drawing was at the last update.
    [[nodiscard]] gs::Scene& scene() { return scene_; }
    // Of the current space.
    [[nodiscard]] Look& look();
    void resize(gs::PictureSize size);
    // Takes in what has changed in the drawing. `progress` is told a share from 0 to 1 where that is much.
    void update(const std::function<void(double)>& progress = {});
    // Of the lights that are selected: their target lines, cones and webs, two points each. Of many, the first ones.
    [[nodiscard]] const std::vector<ZrGePoint3d>& selectedLightLines();
    // Counts the updates that changed what is to be drawn.
    [[nodiscard]] std::size_t version() const { return version_; }

    void objectAppended(const ZrDbDatabase&, const ZrDbObject&) override { noteChange(); }
    void objectUnAppended(const ZrDbDatabase&, const ZrDbObject&) override { noteChange(); }
    void objectReAppended(const ZrDbDatabase&, const ZrDbObject&) override { noteChange(); }
    void objectModified(const ZrDbDatabase&, const ZrDbObject&) override { noteChange(); }
    void objectErased(const ZrDbDatabase&, const ZrDbObject&, bool) override { noteChange(); }
    void headerSysVarChanged(const ZrDbDatabase&, const wchar_t*) override { noteChange(); }

private:
    void noteChange();
    [[nodiscard]] gs::Camera firstCamera();

    Document& document_;
    gs::PictureSize size_;
    std::function<void()> changed_;
    gs::Scene scene_;
    std::map<ZrDbObjectId, Look> looks_; // by space
    std::size_t version_ = 0;
    bool isTold_ = false;
    std::vector<ZrGePoint3d> lightLines_;
    std::optional<std::size_t> lightLinesVersion_; // for which they were made
};

} // namespace quor::desktop
