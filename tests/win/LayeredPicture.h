#pragma once

#include <optional>
#include <random>

#include "platform/win/Window.h"
#include "platform/win/regions.h"
#include "worksheet/win/SheetLayers.h"

namespace ormala {

/// A window that shows a picture in the way of the worksheet, with its key made clear.
class LayeredPicture : public Window {
  public:
    static constexpr COLORREF key = RGB(79, 80, 81);
    static constexpr COLORREF ink = RGB(255, 159, 0);

    static LayeredLook keyedLook(int alpha) {
        return {WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_TRANSPARENT, key, alpha,
                LWA_COLORKEY | LWA_ALPHA};
    }

    /// `mostRuns` as of SheetLayers. There is nothing to be seen at first.
    LayeredPicture(const RECT& place, std::optional<int> mostRuns) : size_(sizeOf(place)) {
        picture.resize(size_);
        fill(all(), key);
        WindowDesign design;
        design.className = L"LayeredPicture";
        design.style = WS_POPUP;
        design.extendedStyle = WS_EX_LAYERED | WS_EX_TOPMOST;
        design.place = place;
        create(design);
        layers.emplace(handle(), mostRuns);
        layers->apply(keyedLook(255), picture);
        ShowWindow(handle(), SW_SHOWNA);
        UpdateWindow(handle());
    }
    ~LayeredPicture() override { destroy(); }

    [[nodiscard]] PixelRect all() const { return {0, 0, size_.width, size_.height}; }

    /// In the picture alone.
    void fill(const PixelRect& area, COLORREF color) const {
        const RECT rect = toRect(area);
        SetDCBrushColor(picture.context(), color);
        FillRect(picture.context(), &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
    void drawLines(int count) const {
        std::mt19937 random(3);
        const auto pick = [&](int below) {
            return static_cast<int>(random() % static_cast<unsigned>(below));
        };
        SelectObject(picture.context(), GetStockObject(DC_PEN));
        SetDCPenColor(picture.context(), ink);
        for (int i = 0; i < count; ++i) {
            MoveToEx(picture.context(), pick(size_.width), pick(size_.height), nullptr);
            LineTo(picture.context(), pick(size_.width), pick(size_.height));
        }
    }
    /// More runs than `runs`: every second pixel of the upper rows.
    void drawRuns(int runs) const {
        int drawn = 0;
        for (int y = 0; drawn <= runs; ++y) {
            for (int x = 0; x < size_.width; x += 2, ++drawn) {
                SetPixelV(picture.context(), x, y, ink);
            }
        }
    }
    void paint(const PixelRect& area) const {
        const RECT rect = toRect(area);
        InvalidateRect(handle(), &rect, FALSE);
        UpdateWindow(handle());
        GdiFlush();
    }

    BackBuffer picture;
    std::optional<SheetLayers> layers;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        if (message == WM_ERASEBKGND) {
            return 1;
        }
        if (message != WM_PAINT) {
            return std::nullopt;
        }
        const PixelRect changed = boundsOf(updateRegionOf(handle()).get());
        const bool anew = layers->prepare(picture);
        const PaintScope scope(handle());
        layers->show(scope.context(), picture, anew ? all() : changed);
        return 0;
    }

    PixelSize size_;
};

}  // namespace ormala
