// What a control draws, as lines of text, in the colours of the theme in use.
#pragma once

#include "host/sys/system_variables.h"
#include "host/ui/dpi.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "light/palette/theme_color.h"
#include "light/res/ui_resources.h"
#include "sdk/ui/image_list.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::light {

class DrawnControl : public testing::Test {
protected:
    DrawnControl() { parent_.Create({.style = WS_VISIBLE, .rect = {0, 0, 400, 400}, .text = L"parent"}); }
    ~DrawnControl() override { ui::setScreenDpi(ui::kReferenceDpi); }

    // One of the host's controls in the parent, as a dialog makes it from its template; `themed` takes its place.
    template <class Plain>
    bool takeOver(CWnd& themed, CSize size, const ZrString& text = {}, unsigned style = 0) {
        Plain plain;
        plain.Create(
            {.parent = &parent_, .id = 1, .style = WS_VISIBLE | style, .rect = {0, 0, size.cx, size.cy}, .text = text});
        return themed.SubclassWindow(plain);
    }

    void useTheme(short colorTheme) { session_.session().variables().set(L"COLORTHEME", colorTheme); }

    static std::vector<ZrString> draw(CWnd& control) {
        ui::RecordingDevice device;
        ui::paint(control, device);
        return device.lines();
    }

    static ZrString fill(const CRect& rect, COLORREF color) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Fill, .rect = rect, .color = color});
    }
    static ZrString focus(const CRect& rect) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::FocusRect, .rect = rect});
    }
    static ZrString picture(unsigned number, const CRect& rect, unsigned style) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Picture, .rect = rect, .picture = number, .style = style});
    }

    test::TestSession session_{{.newDrawing = false}};
    CWnd parent_;
};

// The pictures of distant lights (0) and of point lights (1).
class TwoImages {
public:
    TwoImages() {
        const ZwResourceScope scope(&uiResources());
        images_.Create(21, 21, ILC_COLOR8 | ILC_MASK, 0, 2);
        add(kDistantLightPicture);
        add(kPointLightPicture);
    }
    [[nodiscard]] CImageList* get() { return &images_; }

private:
    void add(unsigned id) {
        CBitmap bitmap;
        bitmap.LoadBitmap(id);
        images_.Add(bitmap);
    }

    CImageList images_;
};

} // namespace quor::light
