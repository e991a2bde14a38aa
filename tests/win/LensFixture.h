#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/win/controlName.h"
#include "support/win/Wait.h"
#include "win/EnglishTexts.h"
#include "win/LensStage.h"
#include "win/TestSheet.h"

namespace ormala {

/// The magnifier over a picture that fills the screen.
class LensFixture : public testing::Test {
  protected:
    LensFixture() {
        lens_.setOptions(bareLens(4));
        // Frames come when the test asks for them.
        KillTimer(lens_.handle(), frmLens::tmrMain);
        standAt({1000, 500});
        sizeLensImage(lens_, {240, 200});
    }

    void standAt(PixelPoint place) {
        SetWindowPos(lens_.handle(), nullptr, place.x, place.y, 0, 0,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE);
    }
    void show() {
        lens_.show(nullptr);
        KillTimer(lens_.handle(), frmLens::tmrMain);
    }
    /// Moves the mouse there and shows what is around it.
    void look(PixelPoint mouse) {
        ASSERT_TRUE(test::waitUntil([mouse] {
            SetCursorPos(mouse.x, mouse.y);
            POINT cursor{};
            GetCursorPos(&cursor);
            return cursor.x == mouse.x && cursor.y == mouse.y;
        }));
        lens_.Update();
    }
    [[nodiscard]] HWND part(const std::string& name) const { return part(name, lens_); }
    static HWND part(const std::string& name, const frmLens& lens) {
        for (HWND child = GetWindow(lens.handle(), GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            if (controlName(child) == name) {
                return child;
            }
        }
        return nullptr;
    }
    [[nodiscard]] PixelMap shown(const std::string& name) const { return readClient(part(name)); }
    [[nodiscard]] PixelMap image() const { return shown("picLens"); }
    /// 0x00RRGGBB of an image's pixel.
    static std::uint32_t plain(COLORREF color) {
        return static_cast<std::uint32_t>(GetBValue(color) | GetGValue(color) << 8 |
                                          GetRValue(color) << 16);
    }
    /// A length of the design in the pixels of the stage.
    [[nodiscard]] int scaled(int length) const {
        return scaledLength(length, static_cast<int>(GetDpiForWindow(lens_.handle())));
    }
    [[nodiscard]] PixelSize windowSize() const {
        const RECT place = lens_.rectangle();
        return {static_cast<int>(place.right - place.left),
                static_cast<int>(place.bottom - place.top)};
    }
    [[nodiscard]] PixelPoint windowPlace() const {
        const RECT place = lens_.rectangle();
        return {static_cast<int>(place.left), static_cast<int>(place.top)};
    }
    /// What a rectangle of the screen must look like in the image.
    void expectEnlarged(PixelPoint source, int factor) const {
        const PixelMap map = image();
        ASSERT_GT(map.size.width, factor);
        int wrong = 0;
        for (int y = 0; y < map.size.height; ++y) {
            for (int x = 0; x < map.size.width; ++x) {
                const PixelPoint from{source.x + x / factor, source.y + y / factor};
                wrong += plain(map.at(x, y)) == backdrop_.at(from) ? 0 : 1;
            }
        }
        EXPECT_EQ(wrong, 0) << "of the pixels at factor " << factor;
    }
    /// A smear that stays as long as nobody paints.
    static constexpr COLORREF smear = RGB(255, 0, 255);
    static void spoil(HWND window) {
        const WindowContext context(window);
        SetPixel(context.get(), 1, 1, smear);
    }
    static bool isSpoiled(HWND window) {
        const WindowContext context(window);
        return GetPixel(context.get(), 1, 1) == smear;
    }

    EnglishTexts english_;
    LensBackdrop backdrop_;
    NotedLensCommands commands_;
    frmLens lens_{commands_};
};

}  // namespace ormala
