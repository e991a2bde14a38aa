#include "worksheet/win/SheetPainter.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "platform/win/callbackGuard.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

void expectSameAsPaintedAnew(TestSheet& sheet) {
    const HWND window = sheet.window().handle();
    UpdateWindow(window);
    const PixelMap step = readClient(window);
    sheet.paintAnew();
    EXPECT_EQ(step, readClient(window));
}

TEST(SheetPainter, ShowsTheToolsOverTheBackground) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    const PixelMap map = readClient(sheet.window().handle());
    EXPECT_EQ(map.at(130, 100), RGB(255, 0, 0));
    EXPECT_EQ(map.at(20, 20), RGB(79, 79, 79));
}

TEST(SheetPainter, DragPaintsTheSameAsAWholeRepaint) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({50, 60, 250, 200}, 0.4, rgb(255, 0, 0));
    sheet.addStencil({150, 160, 450, 400}, 1.1, rgb(0, 255, 0));
    sheet.addStencil({100, 120, 350, 300}, 0, rgb(255, 255, 0));
    sheet.drag(225, 210, 330, 260, 6);
    expectSameAsPaintedAnew(sheet);
}

TEST(SheetPainter, RandomUsePaintsTheSameAsAWholeRepaint) {
    TestSheet sheet(sheetSize);
    std::mt19937 random(20261121);
    const auto pick = [&](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    std::vector<ctlRatioGrid*> stencils;
    for (int i = 0; i < 5; ++i) {
        const double left = pick(400);
        const double top = pick(300);
        stencils.push_back(
            &sheet.addStencil({left, top, left + 60 + pick(300), top + 60 + pick(200)},
                              pick(628) / 100.0, rgb(pick(256), pick(256), pick(256))));
        stencils.back()->setLineWidth(pick(5));
    }
    for (int i = 0; i < 40; ++i) {
        ctlRatioGrid& stencil = *stencils[static_cast<std::size_t>(pick(5))];
        const Grip& grip = stencil.grips()[pick(stencilGripCount)];
        const Point at = grip.center();
        sheet.drag(static_cast<int>(at.x), static_cast<int>(at.y), pick(640), pick(480),
                   1 + pick(4));
        if (pick(4) == 0) {
            sheet.window().sheet().setVisible(stencil, !sheet.window().sheet().isVisible(stencil));
        }
        expectSameAsPaintedAnew(sheet);
    }
}

TEST(SheetPainter, ToolThatLeavesTheFrontIsNotPaintedTwice) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& first = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    ctlRatioGrid& second = sheet.addStencil({150, 120, 350, 270}, 0, rgb(0, 255, 0));
    sheet.window().sheet().SelectControl(first);
    sheet.window().sheet().SelectControl(second);
    first.setRectBound({400, 300, 500, 400});
    expectSameAsPaintedAnew(sheet);
    sheet.window().sheet().RemoveControl(second);
    first.setRectBound({200, 300, 300, 400});
    expectSameAsPaintedAnew(sheet);
}

/// In the middle of a drag of the stencil's corner.
class HeldStencil {
  public:
    HeldStencil() {
        sheet.addStencil({150, 160, 450, 400}, 1.1, rgb(0, 255, 0));
        stencil = &sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
        const Point at = stencil->grips()[0].center();
        x = static_cast<int>(at.x);
        y = static_cast<int>(at.y);
        sheet.mouse(WM_MOUSEMOVE, 0, x, y);
        sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
        step();
        UpdateWindow(window());
    }
    [[nodiscard]] HWND window() { return sheet.window().handle(); }
    void step() {
        x += 7;
        y += 5;
        sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, x, y);
    }

    TestSheet sheet{sheetSize};
    ctlRatioGrid* stencil = nullptr;
    int x = 0;
    int y = 0;
};

TEST(SheetPainter, StepOfADragIsOnTheScreenWithoutTheSystemsAsking) {
    HeldStencil held;
    for (int i = 0; i < 5; ++i) {
        const PixelMap before = readClient(held.window());
        held.step();
        EXPECT_FALSE(GetUpdateRect(held.window(), nullptr, FALSE));
        const PixelMap after = readClient(held.window());
        EXPECT_NE(before, after);
        held.sheet.paintAnew();
        EXPECT_EQ(after, readClient(held.window()));
    }
}

TEST(SheetPainter, WhatAnotherWindowUncoversInADragIsPaintedToo) {
    HeldStencil held;
    const RECT uncovered{0, 0, 640, 240};
    {
        const WindowContext context(held.window());
        FillRect(context.get(), &uncovered, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }
    InvalidateRect(held.window(), &uncovered, FALSE);
    held.step();
    expectSameAsPaintedAnew(held.sheet);
}

TEST(SheetPainter, PaintingThatTheSystemAsksForInAStepShowsItsChangesToo) {
    HeldStencil held;
    int asked = 0;
    const Subscription painting = held.stencil->events().change.subscribe([&] {
        ++asked;
        const RECT little{0, 0, 4, 4};
        InvalidateRect(held.window(), &little, FALSE);
        UpdateWindow(held.window());
    });
    held.step();
    EXPECT_GT(asked, 0);
    expectSameAsPaintedAnew(held.sheet);
}

TEST(SheetPainter, WhatAStepHasChangedBeforeItFailsIsLeftToTheSystem) {
    HeldStencil held;
    {
        const Subscription failing = held.stencil->events().change.subscribe(
            [] { throw std::runtime_error("amid a step"); });
        held.step();
        EXPECT_THROW(throwKeptFailure(), std::runtime_error);
    }
    expectSameAsPaintedAnew(held.sheet);
}

TEST(SheetPainter, MovingOverTheSheetWithoutAGripRepaintsNothing) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    const HWND window = sheet.window().handle();
    sheet.mouse(WM_MOUSEMOVE, 0, 500, 400);
    UpdateWindow(window);
    ValidateRect(window, nullptr);
    for (int x = 400; x < 600; ++x) {
        // The window must not even become invalid: painting would come at once.
        sheet.mouse(WM_MOUSEMOVE, 0, x, 400);
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    }
}

TEST(SheetPainter, SizingKeepsThePictureRight) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0.2, rgb(255, 0, 0));
    for (const PixelSize size :
         {PixelSize{639, 480}, PixelSize{640, 480}, PixelSize{300, 220}, PixelSize{700, 500}}) {
        SetWindowPos(sheet.window().handle(), nullptr, 0, 0, size.width, size.height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        expectSameAsPaintedAnew(sheet);
        EXPECT_EQ(readClient(sheet.window().handle()).size, size);
    }
}

}  // namespace
}  // namespace ormala
