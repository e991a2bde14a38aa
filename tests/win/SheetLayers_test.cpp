#include "worksheet/win/SheetLayers.h"

#include <gtest/gtest.h>

#include "support/win/Screen.h"
#include "support/win/Wait.h"
#include "support/win/onlyUnderWine.h"
#include "win/LayeredPicture.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

constexpr RECT windowPlace{200, 150, 500, 350};
constexpr COLORREF key = LayeredPicture::key;
constexpr COLORREF layerInk = LayeredPicture::ink;
constexpr COLORREF layerGround = RGB(30, 140, 250);
constexpr LayeredLook veil{WS_EX_LAYERED | WS_EX_TOPMOST, 0xFFFFFFFF, 191, LWA_ALPHA};

/// A window of one colour.
class Ground : public Window {
  public:
    Ground() {
        WindowDesign design;
        design.className = L"SheetLayersGround";
        design.style = WS_POPUP;
        design.extendedStyle = WS_EX_TOPMOST;
        design.place = windowPlace;
        create(design);
        ShowWindow(handle(), SW_SHOWNA);
        UpdateWindow(handle());
    }
    ~Ground() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM) override {
        if (message != WM_ERASEBKGND) {
            return std::nullopt;
        }
        const RECT client = clientRectangle();
        SetDCBrushColor(reinterpret_cast<HDC>(wParam), layerGround);
        FillRect(reinterpret_cast<HDC>(wParam), &client,
                 static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        return 1;
    }
};

test::Picture shownLayers() {
    return test::screen::waitUntilStill(
        {windowPlace.left, windowPlace.top, windowPlace.right, windowPlace.bottom});
}

/// On the screen.
COLORREF shownAt(int x, int y) {
    return static_cast<COLORREF>(test::screen::pixel({windowPlace.left + x, windowPlace.top + y}));
}

TEST(SheetLayers, BothWaysShowTheSamePixels) {
    const Ground under;
    for (const int opacity : {255, 128, 51}) {
        std::vector<test::Picture> pictures;
        for (const std::optional<int> mostRuns : {std::optional<int>(), std::optional(100)}) {
            LayeredPicture window(windowPlace, mostRuns);
            window.drawLines(60);
            window.layers->apply(LayeredPicture::keyedLook(opacity), window.picture);
            window.paint(window.all());
            EXPECT_EQ(window.layers->byPixels(), mostRuns.has_value());
            pictures.push_back(shownLayers());
        }
        EXPECT_GT(pictures[0].count(layerGround), 1000U);
        EXPECT_TRUE(difference(pictures[0], pictures[1]).empty()) << opacity;
    }
}

TEST(SheetLayers, TheSystemKeysAllOutThatIsNotTooFineForIt) {
    LayeredPicture window(windowPlace, mostRunsOfShape);
    window.drawLines(60);
    window.paint(window.all());
    EXPECT_FALSE(window.layers->byPixels());
    window.fill(window.all(), key);
    window.drawRuns(mostRunsOfShape);
    window.paint(window.all());
    EXPECT_TRUE(window.layers->byPixels());
    window.fill(window.all(), key);
    window.paint(window.all());
    EXPECT_FALSE(window.layers->byPixels());
}

TEST(SheetLayers, ASystemThatCutsNoShapesKeysEverythingOut) {
    LayeredPicture window(windowPlace, std::nullopt);
    window.drawRuns(1000);
    window.paint(window.all());
    EXPECT_FALSE(window.layers->byPixels());
}

TEST(SheetLayers, TheWayBackShowsTheWholePicture) {
    const Ground under;
    LayeredPicture window(windowPlace, 100);
    window.fill({50, 50, 100, 100}, layerInk);
    window.drawRuns(101);
    window.paint(window.all());
    ASSERT_TRUE(window.layers->byPixels());
    window.fill({0, 0, 300, 40}, key);
    window.paint({0, 0, 300, 40});
    EXPECT_FALSE(window.layers->byPixels());
    EXPECT_TRUE(test::waitUntil(
        [] { return shownAt(75, 75) == layerInk && shownAt(0, 0) == layerGround; }));
}

TEST(SheetLayers, APartThatChangesIsShownAndTheRestStays) {
    const Ground under;
    LayeredPicture window(windowPlace, 10);
    window.drawRuns(40);
    window.fill({50, 150, 100, 180}, layerInk);
    window.paint(window.all());
    ASSERT_TRUE(window.layers->byPixels());
    EXPECT_TRUE(test::waitUntil([] { return shownAt(60, 160) == layerInk; }));
    window.fill({120, 150, 130, 180}, layerInk);
    window.fill({50, 150, 80, 160}, key);
    window.paint({50, 150, 130, 180});
    EXPECT_TRUE(test::waitUntil(
        [] { return shownAt(125, 160) == layerInk && shownAt(55, 155) == layerGround; }));
    EXPECT_EQ(shownAt(90, 160), layerInk);
    EXPECT_EQ(shownAt(200, 160), layerGround);
}

TEST(SheetLayers, AVeilIsTheSystemsAgain) {
    LayeredPicture window(windowPlace, 10);
    window.drawRuns(40);
    window.paint(window.all());
    ASSERT_TRUE(window.layers->byPixels());
    EXPECT_EQ(GetLayeredWindowAttributes(window.handle(), nullptr, nullptr, nullptr), FALSE);
    window.layers->apply(veil, window.picture);
    BYTE alpha = 0;
    DWORD flags = 0;
    EXPECT_NE(GetLayeredWindowAttributes(window.handle(), nullptr, &alpha, &flags), FALSE);
    EXPECT_EQ(alpha, 191);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
    window.layers->apply(LayeredPicture::keyedLook(200), window.picture);
    EXPECT_TRUE(window.layers->byPixels());
}

TEST(SheetLayers, TheWorksheetChangesItsWayWithItsModeAndItsSize) {
    TestSheet sheet({900, 700});
    constexpr COLORREF point = RGB(1, 200, 30);
    sheet.aids.grid = {true, 1, 2, static_cast<Color>(point), {5, 5, 0, 0}};
    sheet.window().aidsChanged();
    const HWND window = sheet.window().handle();
    const bool cutsShapes = test::runsUnderWine();
    const auto isKeyed = [&] {
        return GetLayeredWindowAttributes(window, nullptr, nullptr, nullptr) != FALSE;
    };
    const auto resize = [&](int width, int height) {
        SetWindowPos(window, nullptr, 20, 20, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
        UpdateWindow(window);
    };
    EXPECT_TRUE(isKeyed());
    sheet.window().setClickable(false);
    EXPECT_EQ(isKeyed(), !cutsShapes);
    resize(300, 200);
    EXPECT_TRUE(isKeyed());
    resize(900, 700);
    EXPECT_EQ(isKeyed(), !cutsShapes);
    resize(950, 750);
    EXPECT_EQ(isKeyed(), !cutsShapes);
    EXPECT_TRUE(test::waitUntil([] {
        return static_cast<COLORREF>(test::screen::pixel({20 + 940, 20 + 740})) == point;
    }));
    sheet.window().setClickable(true);
    EXPECT_TRUE(isKeyed());
}

TEST(SheetLayers, AFineWorksheetThatWaitsForItsPaintingIsNotCutByWhatItShowed) {
    constexpr int width = 1600;
    constexpr int height = 900;
    TestSheet sheet({width, height});
    sheet.aids.grid = {true, 1, 2, 0x1EC801, {5, 5, 0, 0}};
    sheet.window().aidsChanged();
    const HWND window = sheet.window().handle();
    for (const int grown : {1, 2, 3}) {
        // A mode's key can come before the window paints itself in its new size. A shape of what
        // it shows until then would end this program.
        SetWindowPos(window, nullptr, 20, 20, width + grown, height + grown,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        sheet.window().setClickable(false);
        EXPECT_EQ(GetLayeredWindowAttributes(window, nullptr, nullptr, nullptr) != FALSE,
                  !test::runsUnderWine());
        sheet.window().setClickable(true);
    }
}

}  // namespace
}  // namespace ormala
