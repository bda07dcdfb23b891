// A drawing device that keeps what is drawn as a list, for those who check it.
#pragma once

#include "sdk/sys/string.h"
#include "sdk/ui/device_context.h"

#include <optional>
#include <vector>

namespace quor::ui {

// One call. What a kind does not have stays as it is here.
struct DrawingCall {
    enum class Kind { Enter, Leave, Fill, Text, FocusRect, Picture };
    Kind kind = Kind::Fill;
    CRect rect{};
    COLORREF color = 0;                   // of Fill, and of a text's letters
    ZrString text{};                      // of Text
    unsigned format = 0;                  // of Text: DT_…
    Font font = Font::Window;             // of Text
    std::optional<COLORREF> background{}; // of Text, when it is opaque
    unsigned picture = 0;                 // of Picture: its number
    unsigned style = 0;                   // of Picture: ILD_…
    bool operator==(const DrawingCall&) const = default;
};

// One line: `enter 0,25,200,125`, `leave`, `fill 0,0,200,24 #2B2B2B`,
// `text "光源名称" 5,0,119,24 singleline vcenter endellipsis #DCDCDC DefaultGui`, with `on #FFFFFF` behind the colour
// of an opaque text, `focus 50,0,170,24`, `picture 7514 0,0,21,21 normal`.
[[nodiscard]] ZrString lineOf(const DrawingCall& call);

// Coordinates are kept as they were given: those of the window being drawn. So a window that is painted alone has its
// own, and what its children draw stands between `enter` and `leave`. A narrow character is 7 pixels wide, a wide one
// 14, a line 16 high.
class RecordingDevice : public DrawingDevice {
public:
    [[nodiscard]] const std::vector<DrawingCall>& calls() const { return calls_; }
    [[nodiscard]] std::vector<ZrString> lines() const;
    void clear() { calls_.clear(); }

    void enter(const CRect& child) override;
    void leave() override;
    void fill(const CRect& rect, COLORREF color) override;
    void text(std::wstring_view text, const CRect& rect, unsigned format, COLORREF color, Font font,
              const COLORREF* background) override;
    void focusRect(const CRect& rect) override;
    void picture(const PictureResource& picture, const CRect& rect, unsigned style) override;
    [[nodiscard]] CSize textExtent(std::wstring_view text, Font font) const override;

private:
    std::vector<DrawingCall> calls_;
};

} // namespace quor::ui
