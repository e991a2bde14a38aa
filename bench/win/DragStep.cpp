#include <cstdio>
#include <random>
#include <vector>

#include "Figures.h"
#include "benchmarks.h"
#include "measure/ctlMeasure.h"
#include "platform/win/regions.h"
#include "stencil/PatternTable.h"
#include "win/TestSheet.h"

namespace ormala::bench {

namespace {

constexpr int draggedTools = 33;

std::string named(const std::string& what, PixelSize size) {
    return what + ", " + std::to_string(size.width) + " x " + std::to_string(size.height);
}

/// Places for tools, the same ones in each run.
class Places {
  public:
    explicit Places(PixelSize size) : size_(size) {}

    double pick(int below) { return static_cast<double>(random_() % static_cast<unsigned>(below)); }
    Point corner() {
        const double left = pick(size_.width * 2 / 3);
        return {left, pick(size_.height * 2 / 3)};
    }

  private:
    PixelSize size_;
    std::mt19937 random_{7};
};

PatternList fivePatterns(int first) {
    PatternList patterns;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        patterns[i].Pattern = (first + static_cast<int>(i) * 4) % PatternTable::count();
    }
    return patterns;
}

/// Adds the stencils; the last one, 600 x 400, is in front.
ctlRatioGrid& addStencils(TestSheet& sheet, PixelSize size) {
    Places places(size);
    for (int i = 1; i < draggedTools; ++i) {
        const Point at = places.corner();
        const double width = 200 + places.pick(800);
        const double height = 150 + places.pick(500);
        sheet
            .addStencil({at.x, at.y, at.x + width, at.y + height}, places.pick(628) / 100,
                        rgb(255, 159, 0))
            .setPatternList(fivePatterns(i));
    }
    const double left = size.width / 2.0 - 300;
    const double top = size.height / 2.0 - 200;
    ctlRatioGrid& front = sheet.addStencil({left, top, left + 599, top + 399}, 0, rgb(0, 191, 191));
    front.setPatternList(fivePatterns(2));
    UpdateWindow(sheet.window().handle());
    return front;
}

ctlMeasure& addMeasure(TestSheet& sheet, const Line& a, const Line& b) {
    auto& tool = dynamic_cast<ctlMeasure&>(*sheet.window().sheet().AddNewControl(1));
    tool.SetDefaultProperties();
    tool.setColorA(rgb(0, 0, 255));
    tool.setColorB(rgb(255, 0, 0));
    tool.setLineA(a);
    tool.setLineB(b);
    tool.PositionGrips();
    tool.History().Add(true);
    return tool;
}

/// Adds connected measuring tools; the last one, in front, has lines of 600 and 400 pixels.
ctlMeasure& addMeasures(TestSheet& sheet, PixelSize size) {
    Places places(size);
    for (int i = 1; i < draggedTools; ++i) {
        const Point a = places.corner();
        const Point b = places.corner();
        const Point joint = places.corner();
        addMeasure(sheet, {a.x, a.y, joint.x, joint.y}, {b.x, b.y, joint.x, joint.y});
    }
    const double left = size.width / 2.0 - 300;
    const double top = size.height / 2.0 - 200;
    ctlMeasure& front =
        addMeasure(sheet, {left + 600, top, left, top}, {left, top + 400, left, top});
    UpdateWindow(sheet.window().handle());
    return front;
}

/// A window of the worksheet's kind that shows a bitmap: repainting a rectangle of it is one blit,
/// from the system's request to the finished pixels.
class PlainBlit : public Window {
  public:
    explicit PlainBlit(PixelSize size) {
        bitmap_.resize(size);
        WindowDesign design;
        design.className = L"PlainBlit";
        design.style = WS_POPUP;
        design.extendedStyle = WS_EX_LAYERED | WS_EX_TOPMOST;
        design.place = {20, 20, 20 + size.width, 20 + size.height};
        create(design);
        SetLayeredWindowAttributes(handle(), 0, 191, LWA_ALPHA);
        ShowWindow(handle(), SW_SHOWNA);
        UpdateWindow(handle());
    }
    ~PlainBlit() override { destroy(); }

    [[nodiscard]] HDC context() const { return bitmap_.context(); }

    void run(const PixelRect& rect) const {
        const RECT area = toRect(rect);
        InvalidateRect(handle(), &area, FALSE);
        UpdateWindow(handle());
    }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM, LPARAM) override {
        if (message != WM_PAINT) {
            return std::nullopt;
        }
        const PaintScope scope(handle());
        const RECT& area = scope.area();
        BitBlt(scope.context(), area.left, area.top, area.right - area.left, area.bottom - area.top,
               bitmap_.context(), area.left, area.top, SRCCOPY);
        return 0;
    }

    BackBuffer bitmap_;
};

/// Lets the system put on the screen what has been painted, as it does between two messages.
void finish() {
    GdiFlush();
    MSG none{};
    constexpr UINT nobodys = WM_APP + 0x3FFF;
    PeekMessageW(&none, nullptr, nobodys, nobodys, PM_NOREMOVE);
}

/// Drags the tool in front by its first grip.
void dragFront(TestSheet& sheet, PixelSize sheetSize, const GripTool& front,
               const std::string& what) {
    const PlainBlit blit(sheetSize);
    const GdiFonts fonts(96);
    const Point at = front.grips()[0].center();
    int x = static_cast<int>(at.x);
    const int y = static_cast<int>(at.y);
    sheet.mouse(WM_MOUSEMOVE, 0, x, y);
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, x, y);

    std::vector<double> steps;
    std::vector<double> blits;
    std::vector<double> drawings;
    for (int i = 0; i < 300; ++i) {
        PixelRect changed = front.footprint().bounds();
        x += i % 20 < 10 ? 3 : -3;
        steps.push_back(elapsed([&] {
            sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, x, y);
            finish();
        }));
        changed = changed.united(front.footprint().bounds());
        blits.push_back(elapsed([&] {
            blit.run(changed);
            finish();
        }));
        drawings.push_back(elapsed([&] {
            GdiCanvas canvas(blit.context(), changed, fonts);
            front.draw(canvas);
        }));
    }
    sheet.mouse(WM_LBUTTONUP, 0, x, y);
    report(named(what, sheetSize), median(steps), "ms",
           {median(blits) + median(drawings), "one blit and one drawing", 1.2});
}

}  // namespace

void dragStep(PixelSize sheetSize) {
    {
        TestSheet sheet(sheetSize);
        const GripTool& front = addStencils(sheet, sheetSize);
        dragFront(sheet, sheetSize, front, "step of a stencil's drag");
    }
    TestSheet sheet(sheetSize);
    const GripTool& front = addMeasures(sheet, sheetSize);
    dragFront(sheet, sheetSize, front, "step of a measuring tool's drag");
}

void hoverMoves(PixelSize sheetSize) {
    TestSheet sheet(sheetSize);
    addStencils(sheet, sheetSize);
    const HWND window = sheet.window().handle();
    int repaints = 0;
    int moves = 0;
    std::vector<double> times;
    for (int i = 0; i < 2000; ++i) {
        const int x = (i * 37) % sheetSize.width;
        const int y = (i * 23) % sheetSize.height;
        sheet.mouse(WM_MOUSEMOVE, 0, x, y);
        ValidateRect(window, nullptr);
        // The same place again: no grip changes.
        times.push_back(elapsed([&] { sheet.mouse(WM_MOUSEMOVE, 0, x, y); }));
        repaints += GetUpdateRect(window, nullptr, FALSE) != FALSE ? 1 : 0;
        ++moves;
    }
    std::printf("%-46s %9.3f ms   %d repaints in %d moves\n",
                named("hover move with no grip changed", sheetSize).c_str(), median(times),
                repaints, moves);
}

}  // namespace ormala::bench
