#include "widgets/win/ZelvikButtonXP.h"

#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/dpi.h"

namespace ormala {

ZelvikButtonXP::ZelvikButtonXP(HWND parent, int id, std::string_view name) {
    open(parent, id, name, {L"ZelvikButtonXP", CS_DBLCLKS, WS_TABSTOP});
}

void ZelvikButtonXP::setCaption(std::string_view caption) {
    if (design_.Caption != caption) {
        design_.Caption = caption;
        showText();
        refresh();
    }
}

void ZelvikButtonXP::SetTooltip(const std::string& text) {
    setTip(text);
    showText();
}

void ZelvikButtonXP::showText() {
    Window::setCaption(design_.Caption.empty() ? tip() : design_.Caption);
}

void ZelvikButtonXP::setEnabled(bool enabled) {
    const HWND window = handle();
    // A disabled window would keep the keys from all others.
    if (!enabled && window != nullptr && GetFocus() == window) {
        SetFocus(GetParent(window));
    }
    EnableWindow(window, enabled ? TRUE : FALSE);
}

void ZelvikButtonXP::setValue(bool value) {
    if (model_.Value() != value) {
        model_.setValue(value);
        NotifyWinEvent(EVENT_OBJECT_STATECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
    }
}

void ZelvikButtonXP::setButtonStyle(int style) {
    design_.ButtonStyle = style;
    applyShape();
}

void ZelvikButtonXP::setOpenBelow(bool open) {
    design_.OpenBelow = open;
    applyShape();
}

void ZelvikButtonXP::setUseCornerStyle(bool used) {
    if (design_.UseCornerStyle != used) {
        design_.UseCornerStyle = used;
        applyShape();
    }
}

void ZelvikButtonXP::setCornerStyle(int style) {
    if (design_.CornerStyle != style) {
        design_.CornerStyle = style;
        applyShape();
    }
}

void ZelvikButtonXP::setFont(FontLook look, int points) {
    fontLook_ = look;
    fontPoints_ = points;
    font_ = sharedControlFont(dpi(), look, points);
    refresh();
}

void ZelvikButtonXP::dpiChanged() {
    setFont(fontLook_, fontPoints_);
    applyShape();
}

void ZelvikButtonXP::setPicture(PictureMaker maker, PictureKind kind) {
    picture_ = {std::move(maker), {}};
    design_.Kind = kind;
    refresh();
}

void ZelvikButtonXP::setPictureHover(PictureMaker maker) {
    pictureHover_ = {std::move(maker), {}};
    refresh();
}

void ZelvikButtonXP::setPictureSize(int width, int height) {
    design_.PictureWidth = width;
    design_.PictureHeight = height;
    refresh();
}

bool ZelvikButtonXP::pressAccessKey(wchar_t key) {
    const auto upper = [](wchar_t letter) {
        CharUpperBuffW(&letter, 1);
        return letter;
    };
    const wchar_t own = accessKeyOf(design_.Caption);
    return own != 0 && upper(own) == upper(key) && model_.pressAccessKey();
}

void ZelvikButtonXP::applyShape() {
    refresh();
    if (size() == PixelSize{}) {
        // While the button is designed, before it has its place.
        return;
    }
    const RoundedBox shape = buttonShape(design_, size(), dpi());
    if (shape == shape_) {
        return;
    }
    shape_ = shape;
    RegionHandle region = regionOf(regionOfShape(shape));
    // The system owns it from now on.
    if (SetWindowRgn(handle(), region.get(), IsWindowVisible(handle())) != 0) {
        region.release();
    }
}

void ZelvikButtonXP::keepLeastSize(LPARAM lParam) const {
    auto* wanted = reinterpret_cast<WINDOWPOS*>(lParam);
    if ((wanted->flags & SWP_NOSIZE) == 0) {
        const PixelSize least = leastButtonSize({wanted->cx, wanted->cy}, dpi());
        wanted->cx = least.width;
        wanted->cy = least.height;
    }
}

LRESULT ZelvikButtonXP::onSize() {
    model_.resize(size());
    applyShape();
    return 0;
}

const PixelImage& ZelvikButtonXP::currentPicture() {
    Picture& shown = model_.state().hover && pictureHover_.maker ? pictureHover_ : picture_;
    const PixelSize wanted{scaledLength(design_.PictureWidth, dpi()),
                           scaledLength(design_.PictureHeight, dpi())};
    if (shown.maker && shown.image.size != wanted) {
        shown.image = shown.maker(wanted);
    }
    return shown.image;
}

ButtonFaceLook ZelvikButtonXP::look() {
    return {design_, model_.state(), size(), dpi(), font_->get(), currentPicture()};
}

ButtonContent ZelvikButtonXP::content() {
    const WindowContext context(handle());
    return layOutButton(context.get(), look());
}

void ZelvikButtonXP::clipToShape(HDC context) const {
    POINT corner{};
    GetViewportOrgEx(context, &corner);
    const RegionHandle region = regionOf(regionOfShape(shape_));
    OffsetRgn(region.get(), static_cast<int>(corner.x), static_cast<int>(corner.y));
    ExtSelectClipRgn(context, region.get(), RGN_AND);
}

void ZelvikButtonXP::draw(HDC context) {
    paintButton(context, look());
}

}  // namespace ormala
