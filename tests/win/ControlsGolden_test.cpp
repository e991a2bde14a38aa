#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <memory>
#include <string>

#include "scene/dpi.h"
#include "scene/pixelImages.h"
#include "support/win/Golden.h"
#include "widgets/win/GradShape.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "win/ControlPanel.h"

namespace ormala {
namespace {

constexpr Color goldenInk = rgb(255, 230, 0);
constexpr Color face = rgb(112, 112, 112);
constexpr Color lit = rgb(187, 168, 0);

/// A disc with a soft edge and a hole.
PixelImage disc(PixelSize size) {
    PixelImage image = filledImage(size, 0);
    const double radius = size.width / 2.0;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double distance = std::hypot(x + 0.5 - radius, y + 0.5 - radius);
            const double cover = std::clamp(radius - distance, 0.0, 1.0) *
                                 std::clamp(distance - radius / 2 + 1, 0.0, 1.0);
            const auto alpha = static_cast<std::uint32_t>(std::lround(255 * cover));
            image.argb[static_cast<std::size_t>(y * size.width + x)] = alpha << 24U | 0xFFE600U;
        }
    }
    return image;
}

/// All looks of the controls on one panel, in rows of buttons.
class ControlsGolden : public testing::TestWithParam<int> {
  protected:
    [[nodiscard]] static int dpi() { return GetParam(); }
    [[nodiscard]] static int scaled(int length) { return scaledLength(length, dpi()); }
    [[nodiscard]] static PixelRect box(int left, int top, int width, int height) {
        return {scaled(left), scaled(top), scaled(left + width), scaled(top + height)};
    }

    ZelvikButtonXP& add(int column, int row, const char* caption, bool picture = false) {
        auto& made = *buttons_.emplace_back(
            std::make_unique<ZelvikButtonXP>(panel_.handle(), ++lastId_, caption));
        made.setDpi(dpi());
        made.setBackColor(face);
        made.setForeColor(goldenInk);
        made.setCaption(caption);
        made.setPictureSize(16, 16);
        if (picture) {
            made.setPicture(&disc);
        }
        made.place(box(8 + 84 * column, 40 + 32 * row, 80, 24));
        return made;
    }
    static void press(const ZelvikButtonXP& button) {
        SendMessageW(button.handle(), WM_KEYDOWN, VK_SPACE, 0);
    }
    static void hover(const ZelvikButtonXP& button) {
        SendMessageW(button.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        // The mouse is elsewhere, and the button must not find out.
        KillTimer(button.handle(), 1);
    }
    void addStates(int row, const char* caption, bool picture) {
        add(0, row, caption, picture);
        hover(add(1, row, caption, picture));
        add(2, row, caption, picture).setEnabled(false);
        ZelvikButtonXP& toggle = add(3, row, caption, picture);
        toggle.setControlType(1);
        toggle.setValue(true);
        toggle.setBackColor(lit);
        toggle.setForeColor(rgb(31, 31, 31));
        add(4, row, caption, picture).setPlaneFace(true);
    }
    void addCorners(int row) {
        for (int style = 0; style < 4; ++style) {
            ZelvikButtonXP& button = add(style, row, "Corners");
            button.setCornerStyle(style);
            button.place(box(8 + 80 * style, 40 + 32 * row, 80, 24));
        }
    }
    void addGreyAndFlat(int row) {
        add(0, row, "Grey", true).setGreyPicture(true);
        ZelvikButtonXP& flat = add(1, row, "Flat", true);
        flat.setButtonStyle(1);
        flat.setBackColor(0x606060);
        ZelvikButtonXP& hovered = add(2, row, "Flat", true);
        hovered.setButtonStyle(1);
        hovered.setForeColor(rgb(31, 31, 31));
        hover(hovered);
        add(3, row, "Right", true).setPicturePosition(2);
    }
    void addTitle() {
        title_.setColorTopLeft(rgb(112, 112, 112));
        title_.setColorBottomRight(rgb(74, 74, 74));
        title_.place(box(0, 0, 436, 16));
        readOut_.setDpi(dpi());
        readOut_.setText("W:H = 1.614   H:W = 0.619");
        readOut_.setTextColor(goldenInk);
        readOut_.place(box(8, 20, 200, 16));
    }
    /// The panel as a picture at the origin.
    [[nodiscard]] test::Picture picture() const {
        const PixelMap map = panel_.shown();
        return {{0, 0, map.size.width, map.size.height}, {map.pixels.begin(), map.pixels.end()}};
    }

    int lastId_ = 10;
    ControlPanel panel_{{scaled(436), scaled(236)}};
    GradShape title_{panel_.handle(), 1, "grdTitle"};
    Label readOut_{panel_.handle(), 2, "lblRatio"};
    std::deque<std::unique_ptr<ZelvikButtonXP>> buttons_;
};

TEST_P(ControlsGolden, LookAsTheyAlwaysDid) {
    addTitle();
    addStates(0, "Caption", false);
    addStates(1, "", true);
    addStates(2, "&Both", true);
    addCorners(3);
    addGreyAndFlat(4);
    SetFocus(add(0, 5, "Focused").handle());
    press(add(1, 5, "Pressed", true));
    EXPECT_EQ(test::goldenComplaint(picture(), "controls_" + std::to_string(dpi())), "");
}

INSTANTIATE_TEST_SUITE_P(Resolutions, ControlsGolden, testing::Values(96, 192));

}  // namespace
}  // namespace ormala
