#include "win/TestSheet.h"

#include "language/MlStringModule.h"

namespace ormala {

namespace {

constexpr COLORREF sheetGround = RGB(79, 79, 79);

SpecialRatios makeRatios() {
    MlSetLanguage(languageEnglish, {});
    return SpecialRatios([](int id, std::string_view text) { return MlString(id, text); }, {});
}

}  // namespace

PixelMap readPixels(HDC context, PixelSize size) {
    BackBuffer copy;
    copy.resize(size);
    BitBlt(copy.context(), 0, 0, size.width, size.height, context, 0, 0, SRCCOPY);
    PixelMap map{size, {}};
    map.pixels.reserve(static_cast<std::size_t>(size.width) *
                       static_cast<std::size_t>(size.height));
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<std::uint32_t> raw(static_cast<std::size_t>(size.width) *
                                   static_cast<std::size_t>(size.height));
    const auto bitmap = static_cast<HBITMAP>(GetCurrentObject(copy.context(), OBJ_BITMAP));
    GetDIBits(copy.context(), bitmap, 0, static_cast<UINT>(size.height), raw.data(), &info,
              DIB_RGB_COLORS);
    for (const std::uint32_t pixel : raw) {
        map.pixels.push_back(RGB((pixel >> 16U) & 0xFFU, (pixel >> 8U) & 0xFFU, pixel & 0xFFU));
    }
    return map;
}

PixelMap readClient(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    return readPixels(context.get(),
                      {static_cast<int>(client.right), static_cast<int>(client.bottom)});
}

TestSheet::TestSheet(PixelSize size) : ratios_(makeRatios()) {
    window_ = std::make_unique<frmWorksheet>(maker_, foreground, commands, aids, settings.textForm);
    window_->setBackground(sheetGround);
    window_->setClickAlpha(191);
    window_->setMaxSized(false);
    window_->show();
    SetWindowPos(window_->handle(), nullptr, 20, 20, size.width, size.height, SWP_NOZORDER);
    window_->setClickable(true);
}

ctlRatioGrid& TestSheet::addStencil(const Rect& rect, double angle, Color color) {
    auto& stencil = dynamic_cast<ctlRatioGrid&>(*window_->sheet().AddNewControl(0));
    stencil.setColor(color);
    stencil.setRectBound(rect);
    stencil.setRotationAngle(angle);
    stencil.History().Add(true);
    UpdateWindow(window_->handle());
    return stencil;
}

void TestSheet::paintAnew() {
    // A change of the background and back draws both layers.
    window_->setBackground(RGB(1, 1, 1));
    window_->setBackground(sheetGround);
    UpdateWindow(window_->handle());
}

void TestSheet::mouse(UINT message, WPARAM buttons, int x, int y) {
    SendMessageW(window_->handle(), message, buttons, MAKELPARAM(x, y));
}

void TestSheet::drag(int fromX, int fromY, int toX, int toY, int steps) {
    mouse(WM_MOUSEMOVE, 0, fromX, fromY);
    mouse(WM_LBUTTONDOWN, MK_LBUTTON, fromX, fromY);
    for (int i = 0; i <= steps; ++i) {
        mouse(WM_MOUSEMOVE, MK_LBUTTON, fromX + (toX - fromX) * i / steps,
              fromY + (toY - fromY) * i / steps);
    }
    mouse(WM_LBUTTONUP, 0, toX, toY);
}

}  // namespace ormala
