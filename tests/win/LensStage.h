#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "app/keyTables.h"
#include "magnifier/win/frmLens.h"
#include "platform/win/pixels.h"
#include "scene/pixelImages.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"

namespace ormala {

/// A picture in which no two pixels near each other are the same: what is captured of it tells the
/// place it came from.
inline PixelImage lensPattern(PixelSize size, int shift = 0) {
    PixelImage image = filledImage(size, 0);
    std::uint32_t* pixel = image.argb.data();
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const auto place = static_cast<std::uint32_t>((y + shift) * 7919 + x * 104729);
            *pixel++ = 0xFF000000U | (place * 2654435761U >> 8U);
        }
    }
    return image;
}

/// Covers the whole primary screen with a picture.
class LensBackdrop : public Window {
  public:
    LensBackdrop()
        : size_{GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)},
          image_(lensPattern(size_)) {
        WindowDesign design;
        design.className = L"LensBackdrop";
        design.style = WS_POPUP | WS_VISIBLE;
        design.extendedStyle = WS_EX_TOOLWINDOW;
        design.place = {0, 0, size_.width, size_.height};
        create(design);
        arrive();
    }
    ~LensBackdrop() override { destroy(); }

    void show(PixelImage image) {
        image_ = std::move(image);
        InvalidateRect(handle(), nullptr, FALSE);
        arrive();
    }
    /// What the mouse looks like over it; null for nothing.
    [[nodiscard]] HCURSOR pointer() const {
        return reinterpret_cast<HCURSOR>(GetClassLongPtrW(handle(), GCLP_HCURSOR));
    }
    void setPointer(HCURSOR pointer) {
        SetClassLongPtrW(handle(), GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(pointer));
        SetCursor(pointer);
    }
    [[nodiscard]] PixelSize size() const { return size_; }
    /// 0x00RRGGBB; the screen has a pixel there.
    [[nodiscard]] std::uint32_t at(PixelPoint place) const {
        return pixelAt(image_, place) & 0xFFFFFFU;
    }

  private:
    /// Waits until the screen shows the picture, its last pixels included.
    void arrive() {
        UpdateWindow(handle());
        const auto shows = [this](PixelPoint place) {
            const test::Color color = test::screen::pixel({place.x, place.y});
            const auto pixel = static_cast<std::uint32_t>(GetBValue(color) | GetGValue(color) << 8 |
                                                          GetRValue(color) << 16);
            return pixel == at(place);
        };
        test::waitUntil([&] {
            return shows({0, 0}) && shows({size_.width - 1, size_.height - 1}) &&
                   shows({size_.width / 3, size_.height / 3});
        });
    }

    std::optional<LRESULT> onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        if (message != WM_PAINT) {
            return std::nullopt;
        }
        const PaintScope scope(handle());
        copyPixels(scope.context(), image_);
        return 0;
    }

    PixelSize size_;
    PixelImage image_;
};

/// Notes what a magnifier asks for.
class NotedLensCommands : public LensCommands {
  public:
    bool takeKey(int key, int modifiers) override {
        const auto command = commandOfKey(key, modifiers, KeyWindow::magnifier);
        if (command) {
            executed.push_back(*command);
        }
        return command.has_value();
    }
    void showLensMenu(PixelPoint screen) override { menus.push_back(screen); }
    PixelRect RefreshScreenBounds() override {
        ++refreshes;
        return bounds;
    }

    std::vector<Command> executed;
    std::vector<PixelPoint> menus;
    int refreshes = 0;
    PixelRect bounds{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
};

/// Nothing but the screen's own pixels.
inline LensOptions bareLens(int factor) {
    LensOptions options;
    options.factor = factor;
    options.cursorOn = false;
    options.hotSpotOn = false;
    options.gridOn = false;
    options.topScales = false;
    options.bottomScales = false;
    return options;
}

/// Everything over the screen's pixels, one scale of each kind following the mouse.
inline LensOptions fullLens(int factor) {
    LensOptions options;
    options.factor = factor;
    return options;
}

/// Gives the image a size, as far as the factor divides it.
inline void sizeLensImage(const frmLens& lens, PixelSize image) {
    const RECT outer = lens.rectangle();
    const RECT client = lens.clientRectangle();
    const LensOptions options = lens.options();
    const int dpi = static_cast<int>(GetDpiForWindow(lens.handle()));
    const LensLayout empty = layOutLens(
        {{client.right, client.bottom},
         1,
         false,
         {options.topScales, options.bottomScales, options.bottomScales, options.topScales},
         dpi});
    SetWindowPos(lens.handle(), nullptr, 0, 0,
                 outer.right - outer.left + image.width - empty.LensWidth,
                 outer.bottom - outer.top + image.height - empty.LensHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace ormala
