#include <gtest/gtest.h>

#include <string>

#include "support/win/Golden.h"
#include "support/win/Wait.h"
#include "win/DialogPicture.h"
#include "win/EnglishTexts.h"
#include "win/LensStage.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

/// Fields of soft colour with thin lines between them, such as an enlarged drawing shows.
PixelImage drawing(PixelSize size) {
    PixelImage image = filledImage(size, 0xFFE8E2D6U);
    for (int y = 0; y < size.height; y += 6) {
        for (int x = 0; x < size.width; x += 9) {
            const auto tint = static_cast<std::uint32_t>((x / 9 + y / 6 * 2) % 5 * 0x0C0A06);
            fillBox(image, {x, y, x + 8, y + 5}, 0xFF7090A0U + tint);
        }
    }
    return image;
}

class LensGolden : public testing::TestWithParam<int> {
  protected:
    LensGolden() { backdrop_.show(drawing(backdrop_.size())); }

    EnglishTexts english_;
    LensBackdrop backdrop_;
    NotedLensCommands commands_;
    frmLens lens_{commands_};
};

TEST_P(LensGolden, LooksAsItAlwaysDid) {
    LensOptions options;
    options.factor = 8;
    // The pointer is not the same on each system.
    options.cursorOn = false;
    options.hotSpotStyle = 3;
    options.gridDrawMode = 9;
    options.topOrigin = 2;
    lens_.setOptions(options);
    KillTimer(lens_.handle(), frmLens::tmrMain);
    SetWindowPos(lens_.handle(), nullptr, 900, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    moveToDpi(lens_.handle(), GetParam());
    lens_.show(nullptr);
    KillTimer(lens_.handle(), frmLens::tmrMain);
    SetCursorPos(403, 304);
    ASSERT_TRUE(test::waitUntil(
        [&] { return hasClientSize(lens_.handle(), firstLensClient(GetParam())); }));
    lens_.Update();
    RedrawWindow(lens_.handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const PixelMap map = readClient(lens_.handle());
    const test::Picture picture({0, 0, map.size.width, map.size.height},
                                {map.pixels.begin(), map.pixels.end()});
    EXPECT_EQ(test::goldenComplaint(picture, "frmLens_" + std::to_string(GetParam())), "");
}

INSTANTIATE_TEST_SUITE_P(Resolutions, LensGolden, testing::Values(96, 192));

}  // namespace
}  // namespace ormala
