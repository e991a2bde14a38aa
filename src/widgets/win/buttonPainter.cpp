#include "widgets/win/buttonPainter.h"

#include "platform/win/GdiCanvas.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "scene/pixelImages.h"
#include "widgets/buttonFace.h"

namespace ormala {

namespace {

constexpr UINT captionFormat = DT_CENTER | DT_VCENTER | DT_WORDBREAK;
constexpr int focusInset = 3;

DRAWTEXTPARAMS captionParameters() {
    return {sizeof(DRAWTEXTPARAMS), 20, 1, 1, 0};
}

PixelSize measureCaption(HDC context, std::wstring text, int width) {
    RECT box{0, 0, width, 0};
    DRAWTEXTPARAMS parameters = captionParameters();
    DrawTextExW(context, text.data(), -1, &box, captionFormat | DT_CALCRECT, &parameters);
    return {static_cast<int>(box.right), static_cast<int>(box.bottom)};
}

void drawCaption(HDC context, std::wstring text, const PixelRect& box, int shift, Color color) {
    RECT area = toRect(box);
    OffsetRect(&area, shift, shift);
    DRAWTEXTPARAMS parameters = captionParameters();
    SetTextColor(context, colorRef(color));
    DrawTextExW(context, text.data(), -1, &area, captionFormat | DT_NOCLIP, &parameters);
}

void paintCaption(HDC context, const ButtonFaceLook& look, const PixelRect& box) {
    const std::wstring text = wide(look.design.Caption);
    if (look.state.enabled || systemColors().highContrast()) {
        drawCaption(context, text, box, captionShift(look.design, look.state, look.dpi),
                    inkOf(look.design, look.state, systemColors()));
        return;
    }
    drawCaption(context, text, box, lineWidthAt(look.dpi), systemHighlight);
    drawCaption(context, text, box, 0, systemShadow);
}

void paintFocusRectangle(HDC context, const ButtonFaceLook& look) {
    const int inset = scaledLength(focusInset, look.dpi);
    const RECT area{inset, inset, look.size.width - inset, look.size.height - inset};
    SetTextColor(context, plain::black);
    SetBkColor(context, plain::white);
    DrawFocusRect(context, &area);
}

}  // namespace

ButtonContent layOutButton(HDC context, const ButtonFaceLook& look) {
    const Selected font(context, look.font);
    return LayoutContent(look.design, look.size, look.picture.size, look.dpi,
                         [context, &look](int width) {
                             return measureCaption(context, wide(look.design.Caption), width);
                         });
}

void paintButton(HDC context, const ButtonFaceLook& look) {
    const Selected font(context, look.font);
    SetBkMode(context, TRANSPARENT);
    const ButtonDesign& design = look.design;
    const ButtonContent content = layOutButton(context, look);
    PixelImage face = buttonFace(design, look.state, look.size, look.dpi, systemColors());
    const int shift = pictureShift(design, look.state, look.dpi);
    blendOnto(face, pictureInState(look.picture, design, look.state, systemColors()),
              {content.picture.left + shift, content.picture.top + shift});
    if (!content.sign.empty()) {
        paintSign(face, content.sign, design, look.state, look.dpi, systemColors());
    }
    copyPixels(context, face);
    if (look.state.focused && design.ShowFocusRect && design.ButtonStyle != 2) {
        paintFocusRectangle(context, look);
    }
    paintCaption(context, look, content.text);
}

}  // namespace ormala
