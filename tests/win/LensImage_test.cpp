#include "magnifier/win/LensImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "magnifier/win/pointers.h"
#include "win/LensFixture.h"
#include "win/ReplacedImport.h"

namespace ormala {

/// Where the program finds the system's function.
extern decltype(&BitBlt) importedBitBlt __asm__("__imp_BitBlt");

namespace {

constexpr COLORREF lensInk = RGB(255, 230, 0);
constexpr COLORREF quietInk = RGB(128, 119, 38);

/// Notes the raster operations of all copies that are made from the screen or another window.
class NotedCopies {
  public:
    NotedCopies() { noted().clear(); }

    [[nodiscard]] static const std::vector<DWORD>& operations() { return noted(); }

  private:
    using Replaced = test::ReplacedImport<importedBitBlt>;

    static std::vector<DWORD>& noted() {
        static std::vector<DWORD> operations;
        return operations;
    }
    static BOOL WINAPI note(HDC to, int x, int y, int width, int height, HDC from, int fromX,
                            int fromY, DWORD operation) {
        if (GetObjectType(from) == OBJ_DC) {
            noted().push_back(operation);
        }
        return Replaced::system()(to, x, y, width, height, from, fromX, fromY, operation);
    }

    Replaced replaced_{&note};
};

class LensImageTest : public LensFixture {
  protected:
    /// The mouse lies over a window with an arrow, which it has to notice.
    bool showsAPointer(PixelPoint mouse) {
        const bool there = test::waitUntil([this, mouse] {
            look({mouse.x + 1, mouse.y});
            look(mouse);
            const auto shown = pointerOnScreen();
            return shown && shown->pointer != nullptr;
        });
        lens_.Update();
        return there;
    }
};

TEST_F(LensImageTest, EnlargedPixelsAreTheScreensAtEveryFactor) {
    show();
    for (int factor = 1; factor <= 10; ++factor) {
        lens_.setFactor(factor);
        look({400, 300});
        const PixelSize source{240 / factor, 200 / factor};
        expectEnlarged({400 - source.width / 2, 300 - source.height / 2}, factor);
    }
}

TEST_F(LensImageTest, StaysInsideTheScreenInAllItsCorners) {
    show();
    const PixelSize screen = backdrop_.size();
    look({0, 0});
    expectEnlarged({0, 0}, 4);
    look({screen.width - 1, 0});
    expectEnlarged({screen.width - 60, 0}, 4);
    look({0, screen.height - 1});
    expectEnlarged({0, screen.height - 50}, 4);
    look({screen.width - 1, screen.height - 1});
    expectEnlarged({screen.width - 60, screen.height - 50}, 4);
}

TEST_F(LensImageTest, PaintsTheHotSpotAtTheImagesEdgeWithTheMouseAtTheScreens) {
    LensOptions options = bareLens(4);
    options.hotSpotOn = true;
    options.hotSpotStyle = 4;
    options.hotSpotDrawMode = 13;
    options.hotSpotColor = rgb(255, 0, 0);
    lens_.setOptions(options);
    show();
    look({0, 300});
    const PixelMap map = image();
    EXPECT_EQ(map.at(1, 4 * 25 + 1), RGB(255, 0, 0));
    look({400, 300});
    EXPECT_EQ(image().at(4 * 30 + 1, 4 * 25 + 1), RGB(255, 0, 0));
}

TEST_F(LensImageTest, PaintsThePointerAtTheImagesEdgeWithTheMouseAtTheScreens) {
    show();
    look({0, 300});
    const PixelMap without = image();
    LensOptions options = bareLens(4);
    options.cursorOn = true;
    lens_.setOptions(options);
    ASSERT_TRUE(showsAPointer({0, 300}));
    const PixelMap with = image();
    PixelPoint first =
        with.size == without.size ? PixelPoint{with.size.width, with.size.height} : PixelPoint{};
    for (int y = 0; y < with.size.height; ++y) {
        for (int x = 0; x < with.size.width; ++x) {
            if (with.at(x, y) != without.at(x, y)) {
                first = {std::min(first.x, x), std::min(first.y, y)};
            }
        }
    }
    // The arrow points with its upper left corner.
    EXPECT_EQ(first, (PixelPoint{0, 4 * 25}));
}

TEST_F(LensImageTest, LosesThePointerThatAProgramHides) {
    show();
    look({400, 300});
    const PixelMap without = image();
    LensOptions options = bareLens(4);
    options.cursorOn = true;
    lens_.setOptions(options);
    ASSERT_TRUE(showsAPointer({400, 300}));
    EXPECT_NE(image(), without);
    const HCURSOR arrow = backdrop_.pointer();
    // Also where the last pointer has been forgotten meanwhile.
    for (const bool forgotten : {false, true}) {
        ASSERT_TRUE(showsAPointer({400, 300}));
        if (forgotten) {
            SendMessageW(lens_.handle(), WM_DISPLAYCHANGE, 0, 0);
        }
        backdrop_.setPointer(nullptr);
        EXPECT_TRUE(test::waitUntil([&] {
            look({401, 300});
            look({400, 300});
            return image() == without;
        })) << forgotten;
        backdrop_.setPointer(arrow);
    }
}

TEST_F(LensImageTest, PaintsThePointerWhereTheMouseIs) {
    show();
    look({400, 300});
    const PixelMap without = image();
    LensOptions options = bareLens(4);
    options.cursorOn = true;
    lens_.setOptions(options);
    ASSERT_TRUE(showsAPointer({400, 300}));
    const PixelMap with = image();
    // Its hot spot lies in the middle, and it reaches to the right and down.
    int changed = 0;
    for (int y = 0; y < with.size.height; ++y) {
        for (int x = 0; x < with.size.width; ++x) {
            const bool differs = with.at(x, y) != without.at(x, y);
            changed += differs ? 1 : 0;
            EXPECT_FALSE(differs && (x < 4 * 30 || y < 4 * 25)) << x << "," << y;
        }
    }
    EXPECT_GT(changed, 0);
    EXPECT_EQ(changed % 16, 0) << "whole enlarged pixels";
}

TEST(PictureOfPointer, IsTheSameAsThePointerThatTheSystemDraws) {
    for (const LPCWSTR name : {IDC_ARROW, IDC_IBEAM, IDC_CROSS, IDC_SIZEALL}) {
        const HCURSOR pointer = LoadCursorW(nullptr, name);
        BackBuffer system;
        BackBuffer own;
        for (BackBuffer* ground : {&system, &own}) {
            ASSERT_TRUE(ground->resize({64, 64}));
            copyPixels(ground->context(), lensPattern({64, 64}));
        }
        ICONINFO info{};
        ASSERT_TRUE(GetIconInfo(pointer, &info));
        const BitmapHandle mask(info.hbmMask);
        const BitmapHandle color(info.hbmColor);
        BITMAP record{};
        GetObjectW(mask.get(), sizeof record, &record);
        const int side = static_cast<int>(record.bmWidth);
        DrawIconEx(system.context(), 10, 12, pointer, side, side, 0, nullptr, DI_NORMAL);
        const PointerPicture picture = pictureOfPointer(pointer);
        EXPECT_FALSE(picture.pixels.empty());
        drawPointer(own.view(), picture,
                    {10 + static_cast<int>(info.xHotspot), 12 + static_cast<int>(info.yHotspot)},
                    1);
        int largest = 0;
        const PixelMap expected = readPixels(system.context(), {64, 64});
        const PixelMap drawn = readPixels(own.context(), {64, 64});
        for (int i = 0; i < 64 * 64; ++i) {
            largest = std::max(largest, test::channelDifference(drawn.at(i % 64, i / 64),
                                                                expected.at(i % 64, i / 64)));
        }
        EXPECT_LE(largest, 2) << "but for the rounding of a blend";
    }
}

TEST(PictureOfPointer, IsEmptyForOneWithoutABitmap) {
    EXPECT_TRUE(pictureOfPointer(nullptr).pixels.empty());
}

TEST_F(LensImageTest, AtFactor1TheGridIsOffInTheMenuAndOnTheImage) {
    LensOptions options = bareLens(1);
    options.gridOn = true;
    lens_.setOptions(options);
    EXPECT_FALSE(lens_.menuState().gridAllowed);
    EXPECT_TRUE(lens_.menuState().gridOn);
    show();
    look({400, 300});
    const PixelMap map = image();
    EXPECT_EQ(plain(map.at(100, 100)), backdrop_.at({400 - 120 + 100, 300 - 100 + 100}));
    EXPECT_EQ(plain(map.at(238, 198)), backdrop_.at({400 - 120 + 238, 300 - 100 + 198}));
    // The last row and column are the grid's at any factor.
    RedrawWindow(part("picLens"), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(image().at(239, 50), RGB(74, 74, 74));
    EXPECT_EQ(image().at(50, 199), RGB(74, 74, 74));
    lens_.setFactor(2);
    EXPECT_TRUE(lens_.menuState().gridAllowed);
}

TEST_F(LensImageTest, GridFollowsEachDrawMode) {
    struct Mode {
        int number;
        std::uint32_t (*result)(std::uint32_t);
    };
    constexpr Mode modes[] = {{6, [](std::uint32_t p) { return p ^ 0xFFFFFFU; }},
                              {7, [](std::uint32_t p) { return p ^ 0x1F1F1FU; }},
                              {9, [](std::uint32_t p) { return p & 0xEFEFEFU; }},
                              {13, [](std::uint32_t) { return 0x102030U; }},
                              {15, [](std::uint32_t p) { return p | 0x3F3F3FU; }},
                              {77, [](std::uint32_t p) { return p; }}};
    show();
    for (const Mode& mode : modes) {
        LensOptions options = bareLens(4);
        options.gridOn = true;
        options.gridColor = rgb(16, 32, 48);
        options.gridDrawMode = mode.number;
        lens_.setOptions(options);
        look({400, 300});
        const std::uint32_t pixel = backdrop_.at({400 - 30, 300 - 25});
        const PixelMap map = image();
        EXPECT_EQ(plain(map.at(2, 2)), pixel);
        EXPECT_EQ(plain(map.at(3, 2)), mode.result(pixel)) << mode.number;
        EXPECT_EQ(plain(map.at(2, 3)), mode.result(pixel)) << mode.number;
    }
}

TEST_F(LensImageTest, ScalesReadAgainstEachOrigin) {
    constexpr int factor = 10;
    constexpr PixelPoint worksheet{391, 293};
    LensOptions options = bareLens(factor);
    options.topScales = true;
    options.bottomScales = true;
    lens_.setWorksheetOrigin(worksheet);
    show();
    for (const int origin : {0, 1, 2, 3}) {
        options.topOrigin = origin;
        options.bottomOrigin = (origin + 1) % 4;
        lens_.setOptions(options);
        look({400, 300});
        const PixelMap lens = image();
        const PixelPoint source{400 - lens.size.width / factor / 2,
                                300 - lens.size.height / factor / 2};
        const auto base = [&](int from, int first, int sheet) {
            return from == 1 ? 0 : from == 0 ? first - sheet : first;
        };
        const PixelMap left = shown("picRulLeft");
        const PixelMap right = shown("picRulRight");
        for (int row = 0; row < lens.size.height / factor; ++row) {
            const int y = row * factor + factor / 2 - 1;
            const int valueLeft = base(options.topOrigin, source.y, worksheet.y) + row;
            const int valueRight = base(options.bottomOrigin, source.y, worksheet.y) + row;
            EXPECT_EQ(left.at(left.size.width - 1, y), lensInk) << "each row has a tick";
            EXPECT_EQ(left.at(0, y) == quietInk, valueLeft % 10 == 0) << valueLeft;
            EXPECT_EQ(right.at(right.size.width - 1, y) == quietInk, valueRight % 10 == 0)
                << valueRight;
        }
        const PixelMap top = shown("picRulTop");
        const PixelMap bottom = shown("picRulBottom");
        const int last = lens.size.width - top.size.width + lens.size.width;
        for (int column = 0; column * factor <= last; ++column) {
            const int x = left.size.width + column * factor + factor / 2 - 1;
            const int valueTop = base(options.topOrigin, source.x, worksheet.x) + column;
            const int valueBottom = base(options.bottomOrigin, source.x, worksheet.x) + column;
            EXPECT_EQ(top.at(x, top.size.height - 1), lensInk) << "each column has a tick";
            EXPECT_EQ(top.at(x, 0) == quietInk, valueTop % 10 == 0) << valueTop;
            EXPECT_EQ(bottom.at(x, bottom.size.height - 1) == quietInk, valueBottom % 10 == 0)
                << valueBottom;
        }
    }
}

TEST_F(LensImageTest, OriginAllScreensCountsFromTheirUpperLeftCorner) {
    constexpr int factor = 10;
    commands_.bounds.left = -7;
    frmLens lens(commands_);
    KillTimer(lens.handle(), frmLens::tmrMain);
    LensOptions options = bareLens(factor);
    options.topScales = true;
    options.topOrigin = 3;
    lens.setOptions(options);
    SetWindowPos(lens.handle(), nullptr, 1000, 500, 0, 0, quietly | SWP_NOSIZE);
    lens.show(nullptr);
    look({400, 300});
    lens.Update();
    const PixelMap top = readClient(part("picRulTop", lens));
    const int columns =
        (static_cast<int>(lens.clientRectangle().right) - scaled(33) - scaled(5)) / factor;
    for (int column = 0; column < columns - 4; ++column) {
        const int value = 400 - columns / 2 + 7 + column;
        EXPECT_EQ(top.at(scaled(28) + column * factor + 4, 0) == quietInk, value % 10 == 0)
            << value;
    }
}

TEST_F(LensImageTest, PaintsNothingWhileNothingChanges) {
    LensOptions options;
    options.cursorOn = false;
    lens_.setOptions(options);
    show();
    look({400, 300});
    test::pause(test::milliseconds{100});
    const char* const parts[] = {"picLens", "picRulTop", "picRulBottom", "picRulLeft",
                                 "picRulRight"};
    for (const char* name : parts) {
        spoil(part(name));
    }
    for (int i = 0; i < 20; ++i) {
        lens_.Update();
    }
    for (const char* name : parts) {
        EXPECT_TRUE(isSpoiled(part(name))) << name;
    }
    look({402, 302});
    EXPECT_FALSE(isSpoiled(part("picLens")));
    EXPECT_FALSE(isSpoiled(part("picRulTop")));
    EXPECT_FALSE(isSpoiled(part("picRulLeft")));
    EXPECT_TRUE(isSpoiled(part("picRulBottom"))) << "its numbers start at the image";
    EXPECT_TRUE(isSpoiled(part("picRulRight")));
}

TEST_F(LensImageTest, ShowsAChangeOfTheScreenBeneathAMouseThatRests) {
    show();
    look({400, 300});
    expectEnlarged({370, 275}, 4);
    backdrop_.show(lensPattern(backdrop_.size(), 31));
    EXPECT_TRUE(test::waitUntil([this] {
        lens_.Update();
        return plain(image().at(0, 0)) == backdrop_.at({370, 275});
    }));
    expectEnlarged({370, 275}, 4);
}

TEST_F(LensImageTest, AFrameIsCopiedWithoutHidingThePointer) {
    show();
    look({400, 300});
    std::vector<DWORD> operations;
    {
        const NotedCopies copies;
        look({500, 300});
        operations = NotedCopies::operations();
    }
    expectEnlarged({470, 275}, 4);
    ASSERT_FALSE(operations.empty());
    EXPECT_EQ(operations, std::vector<DWORD>(operations.size(), SRCCOPY));
}

TEST_F(LensImageTest, TimerShowsFramesByItself) {
    lens_.show(nullptr);
    look({400, 300});
    SetCursorPos(600, 400);
    EXPECT_TRUE(test::waitUntil([this] {
        return plain(image().at(0, 0)) == backdrop_.at({570, 375});
    }));
}

TEST_F(LensImageTest, ImageFollowsTheSizeOfTheWindow) {
    show();
    SetWindowPos(lens_.handle(), nullptr, 0, 0, 431, 387, quietly | SWP_NOMOVE);
    look({400, 300});
    const RECT client = lens_.clientRectangle();
    EXPECT_EQ(image().size.width, (static_cast<int>(client.right) - scaled(10)) / 4 * 4);
    EXPECT_EQ(image().size.height, (static_cast<int>(client.bottom) - scaled(10)) / 4 * 4);
    expectEnlarged({400 - image().size.width / 8, 300 - image().size.height / 8}, 4);
}

TEST_F(LensImageTest, FramesLeaveNothingBehind) {
    lens_.setOptions(LensOptions{});
    show();
    look({400, 300});
    const auto frames = [this](int count) {
        for (int i = 0; i < count; ++i) {
            lens_.mnuLensHotSpot_Click();
        }
    };
    frames(50);
    const long held = HandleCount::held();
    const long taken = HandleCount::taken();
    frames(2000);
    EXPECT_GE(HandleCount::taken(), taken + 2000) << "each frame takes the screen's context";
    EXPECT_EQ(HandleCount::held(), held);
}

TEST_F(LensImageTest, PointersThatComeAndGoLeaveNothingBehind) {
    LensOptions options = bareLens(4);
    options.cursorOn = true;
    lens_.setOptions(options);
    show();
    const auto forgetAndDraw = [this] {
        SendMessageW(lens_.handle(), WM_DISPLAYCHANGE, 0, 0);
        lens_.Update();
    };
    forgetAndDraw();
    const long held = HandleCount::held();
    const long taken = HandleCount::taken();
    for (int i = 0; i < 200; ++i) {
        forgetAndDraw();
    }
    EXPECT_EQ(HandleCount::held(), held);
    EXPECT_GE(HandleCount::taken(), taken + 200);
}

TEST_F(LensImageTest, HiddenItPaintsNothing) {
    lens_.setOptions(LensOptions{});
    show();
    look({400, 300});
    lens_.hide();
    const long taken = HandleCount::taken();
    look({500, 350});
    for (int i = 0; i < 100; ++i) {
        SendMessageW(lens_.handle(), WM_TIMER, frmLens::tmrMain, 0);
    }
    EXPECT_EQ(HandleCount::taken(), taken) << "nothing is captured either";
    show();
    look({500, 350});
    EXPECT_GT(HandleCount::taken(), taken);
}

}  // namespace
}  // namespace ormala
