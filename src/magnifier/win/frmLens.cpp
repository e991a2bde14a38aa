#include "magnifier/win/frmLens.h"

#include <algorithm>

#include "language/MlStringModule.h"
#include "magnifier/lensTexts.h"
#include "magnifier/win/pointers.h"
#include "magnifier/win/scaleFont.h"
#include "platform/win/composition.h"
#include "platform/win/inputMethod.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;
/// A tool window has a small caption and no button on the task bar.
constexpr DWORD extendedStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST;

PixelSize firstSize(HWND window) {
    const UINT dpi = GetDpiForWindow(window);
    const PixelSize client = firstLensClient(static_cast<int>(dpi));
    RECT outer{0, 0, client.width, client.height};
    AdjustWindowRectExForDpi(&outer, style, FALSE, extendedStyle, dpi);
    return sizeOf(outer);
}

}  // namespace

frmLens::Parts::Parts(HWND parent)
    : image(parent),
      rulers{LensRuler(parent, LensScale::top), LensRuler(parent, LensScale::bottom),
             LensRuler(parent, LensScale::right), LensRuler(parent, LensScale::left)} {}

std::array<LensPicture*, lensScaleCount + 1> frmLens::Parts::pictures() {
    return {&image.picLens(), &rulers[0].picture(), &rulers[1].picture(), &rulers[2].picture(),
            &rulers[3].picture()};
}

frmLens::frmLens(LensCommands& commands) : commands_(commands) {
    constexpr int withoutGaps = 3;
    constexpr POINT firstPlace{120, 120};
    FormFrame_.setFrameStyle(withoutGaps);
    WindowDesign design;
    design.className = L"frmLens";
    design.style = style;
    design.extendedStyle = extendedStyle;
    design.place = {firstPlace.x, firstPlace.y, firstPlace.x, firstPlace.y};
    create(design);
    takeNoInputMethod(handle());
    showWithoutFading(handle());
    OriginalExStyle_ = GetWindowLongPtrW(handle(), GWL_EXSTYLE);
    bounds_ = commands_.RefreshScreenBounds();
    parts_ = std::make_unique<Parts>(handle());
    painting_ = parts_->image.picLens().painting.subscribe([this] { RefreshLens(); });
    relabeling_ = GetLanguageSupport().LanguageChange.subscribe([this] { SetLensCaption(); });
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
    setOptions(LensOptions{});
    const PixelSize size = firstSize(handle());
    SetWindowPos(handle(), nullptr, 0, 0, size.width, size.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LensOptions frmLens::options() const {
    LensOptions present = options_;
    present.topScales = RulTOn();
    present.bottomScales = RulBOn();
    present.topOrigin = ruler(LensScale::top).origin();
    present.bottomOrigin = ruler(LensScale::bottom).origin();
    return present;
}

void frmLens::setOptions(const LensOptions& options) {
    options_ = options;
    for (const LensScale scale : {LensScale::top, LensScale::left}) {
        ruler(scale).setOn(options.topScales);
        ruler(scale).setOrigin(options.topOrigin);
    }
    for (const LensScale scale : {LensScale::bottom, LensScale::right}) {
        ruler(scale).setOn(options.bottomScales);
        ruler(scale).setOrigin(options.bottomOrigin);
    }
    setLayered(options.sticked && LensMode_ == Mode::edit);
    // Lays out once for all of them.
    setFactor(options.factor);
}

void frmLens::show(HWND owner) {
    SetWindowLongPtrW(handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    readBounds();
    acrossDpi_.show(handle(), SW_SHOWNA);
    Update();
}

void frmLens::setFactor(int factor) {
    options_.factor = std::clamp(factor, leastFactor, mostFactor);
    SetLensCaption();
    menuChanged.raise();
    LayoutLens();
}

void frmLens::setSticked(bool sticked) {
    options_.sticked = sticked;
    menuChanged.raise();
    SetLensCaption();
    LayoutLens();
    SetMode(LensMode_);
}

void frmLens::setRulerOn(LensScale scale, bool on) {
    ruler(scale).setOn(on);
    LayoutLens();
}

void frmLens::SetMode(Mode mode) {
    LensMode_ = mode;
    setLayered(Sticked() && mode == Mode::edit);
}

void frmLens::setLayered(bool layered) {
    constexpr BYTE opaque = 255;
    const LONG_PTR former = GetWindowLongPtrW(handle(), GWL_EXSTYLE);
    SetWindowLongPtrW(handle(), GWL_EXSTYLE, OriginalExStyle_ | (layered ? WS_EX_LAYERED : 0));
    if (layered) {
        SetLayeredWindowAttributes(handle(), CLR_INVALID, opaque, LWA_ALPHA);
    } else if ((former & WS_EX_LAYERED) != 0) {
        // What the window showed is gone with the layer.
        RedrawWindow(handle(), nullptr, nullptr,
                     RDW_ERASE | RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN);
    }
}

bool frmLens::isNormal() const {
    return IsIconic(handle()) == FALSE && IsZoomed(handle()) == FALSE;
}

void frmLens::UpdatePosition() {
    if (!Sticked() || !isVisible() || !isNormal()) {
        return;
    }
    const PixelRect now = fromRect(rectangle());
    const PixelPoint place =
        lensBesideMouse(CursorPoint_, {now.width(), now.height()}, bounds_, dpi_);
    if (place == PixelPoint{now.left, now.top}) {
        return;
    }
    SetWindowPos(handle(), nullptr, place.x, place.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmLens::Update() {
    if (isVisible()) {
        onTick();
    }
}

std::optional<LensPixel> frmLens::pixelUnderHotSpot() {
    Update();
    return pixel();
}

std::optional<LensPixel> frmLens::pixel() const {
    const PixelPoint hotSpot = imageLook().hotSpot;
    const auto color = isVisible() ? parts_->image.colorAt(hotSpot) : std::nullopt;
    return color
               ? std::optional(LensPixel{*color, countedPlace(hotSpot, options(), scaleOrigins())})
               : std::nullopt;
}

void frmLens::tellPixel() {
    const RECT place = rectangle();
    std::optional<LensRest::Sight> sight;
    if (const auto seen = held_ ? std::nullopt : pixel()) {
        sight = LensRest::Sight{CursorPoint_, {place.left, place.top}, *seen};
    }
    if (!rest_.look(sight, GetTickCount64())) {
        hidePixel();
    } else if (pixelTip_ == nullptr || !pixelTip_->isShown()) {
        showPixel(sight->pixel);
    }
}

void frmLens::showPixel(const LensPixel& seen) {
    if (pixelTip_ == nullptr) {
        pixelTip_ = std::make_unique<PlacedTip>(handle());
    }
    const PixelSize size = pixelTip_->measure(lensPixelText(seen));
    const PixelRect image = fromRect(parts_->image.picLens().rectangle());
    pixelTip_->show(lensTipPlace(image, size, CursorPoint_));
}

void frmLens::hidePixel() {
    if (pixelTip_ != nullptr) {
        pixelTip_->hide();
    }
}

void frmLens::onTick() {
    constexpr int ticksBetweenBounds = 300;
    if (tickCount_ == ticksBetweenBounds) {
        tickCount_ = 0;
        readBounds();
    }
    ++tickCount_;
    const PixelPoint former = CursorPoint_;
    readMouse();
    findSource();
    const bool changed = RefreshLens();
    UpdatePosition();
    tellPixel();
    pace_.saw(changed || CursorPoint_ != former || held_, GetTickCount64());
    if (isVisible()) {
        tmrMain_.keep(handle(), pace_.interval());
    }
}

/// Where the mouse cannot be asked for, it is where it was. Its pointer takes longer.
void frmLens::readMouse() {
    pointer_ = nullptr;
    if (options_.cursorOn) {
        if (const auto mouse = pointerOnScreen()) {
            CursorPoint_ = mouse->place;
            pointer_ = mouse->pointer;
        }
    } else if (POINT mouse{}; GetCursorPos(&mouse) != FALSE) {
        CursorPoint_ = {static_cast<int>(mouse.x), static_cast<int>(mouse.y)};
    }
}

void frmLens::readBounds() {
    bounds_ = commands_.RefreshScreenBounds();
    // The system may have given another pointer the place of a former one.
    parts_->image.screenChanged();
}

void frmLens::findSource() {
    source_ = lensSourceAt(CursorPoint_, {layout_.SourceWidth, layout_.SourceHeight}, bounds_);
}

bool frmLens::RefreshLens() {
    if (!isVisible()) {
        return false;
    }
    DrawRulers();
    parts_->image.refresh(imageLook(), pointer_, source_, bounds_);
    return showChanged();
}

bool frmLens::showChanged() {
    const auto pictures = parts_->pictures();
    const bool nothing =
        std::ranges::all_of(pictures, [](const LensPicture* part) { return part->isShown(); });
    if (nothing) {
        return false;
    }
    // All at once, over the child windows: the drawing of one part does not wait for the screen to
    // have another one.
    const UnclippedContext context(handle());
    for (LensPicture* part : pictures) {
        part->show(context.get());
    }
    return true;
}

LensImageLook frmLens::imageLook() const {
    return {options_, layout_, {CursorPoint_.x - source_.x, CursorPoint_.y - source_.y}};
}

void frmLens::DrawRulers() {
    const ScaleOrigins origins = scaleOrigins();
    for (const LensScale scale : lensScales) {
        ruler(scale).draw(layout_, glyphs_, origins, dpi_);
    }
}

ScaleOrigins frmLens::scaleOrigins() const {
    return {source_, worksheet_, {bounds_.left, bounds_.top}};
}

LensFace frmLens::face() const {
    LensFace face{sizeOf(clientRectangle()), options_.factor, options_.gridOn, {}, dpi_};
    for (const LensScale scale : lensScales) {
        face.visible[indexOf(scale)] = ruler(scale).isOn();
    }
    return face;
}

void frmLens::LayoutLens() {
    layout_ = layOutLens(face());
    findSource();
    parts_->image.setPlace(layout_);
    for (const LensScale scale : lensScales) {
        ruler(scale).setPlace(layout_.scales[indexOf(scale)]);
    }
    RefreshLens();
}

void frmLens::SetLensCaption() {
    setCaption(lensCaption(Factor(), Sticked()));
}

void frmLens::mnuLensGrid_Click() {
    options_.gridOn = !options_.gridOn;
    LayoutLens();
    SetMenuCheckBoxes();
}

void frmLens::mnuLensCursor_Click() {
    options_.cursorOn = !options_.cursorOn;
    Update();
    SetMenuCheckBoxes();
}

void frmLens::mnuLensHotSpot_Click() {
    options_.hotSpotOn = !options_.hotSpotOn;
    RefreshLens();
    SetMenuCheckBoxes();
}

void frmLens::mnuLensTopLeftScales_Click() {
    const bool on = !RulTOn();
    setRulTOn(on);
    setRulLOn(on);
    SetMenuCheckBoxes();
}

void frmLens::mnuLensBottomRightScales_Click() {
    const bool on = !RulBOn();
    setRulBOn(on);
    setRulROn(on);
    SetMenuCheckBoxes();
}

LensMenuState frmLens::menuState() const {
    return {Factor(),        Sticked(),     options_.cursorOn, options_.hotSpotOn,
            options_.gridOn, Factor() != 1, RulTOn(),          RulBOn()};
}

void frmLens::setDpi(int dpi) {
    dpi_ = dpi;
    glyphs_ = scaleGlyphs(dpi);
}

}  // namespace ormala
