#include "win/ShownText.h"

#include <algorithm>
#include <map>

#include "platform/win/StandardControl.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/ctlSlider.h"
#include "win/ModalPlayer.h"

namespace ormala {

namespace {

using ShownTexts = std::vector<ShownText>;

PixelSize clientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

/// Blanks at the end need no room.
std::string withoutEnd(const std::string& text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

PixelSize measured(HFONT font, const std::string& text, UINT format = DT_SINGLELINE,
                   int width = 0) {
    const WindowContext context(nullptr);
    const Selected selected(context.get(), font);
    RECT box{0, 0, width, 0};
    DrawTextW(context.get(), wide(withoutEnd(text)).c_str(), -1, &box,
              format | DT_CALCRECT | DT_NOPREFIX);
    return {static_cast<int>(box.right), static_cast<int>(box.bottom)};
}

HFONT fontOf(HWND control) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    return font != nullptr ? font : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

/// The object of one of the program's own windows; null if it is of another type.
template <typename T>
T* objectOf(HWND window) {
    return dynamic_cast<T*>(reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA)));
}

/// One line in a room that is so much narrower than the control.
ShownText oneLine(HWND control, const std::string& text, int margins = 0) {
    const PixelSize client = clientSize(control);
    return {text, measured(fontOf(control), text), {client.width - margins, client.height}};
}

ShownTexts plainLine(HWND control, int /*dpi*/) {
    return {oneLine(control, textOf(control))};
}

/// With room for its focus frame.
ShownTexts linkLine(HWND control, int dpi) {
    constexpr int margins = 4;
    return {oneLine(control, textOf(control), scaledLength(margins, dpi))};
}

/// With room for its shadow.
ShownTexts titleLine(HWND control, int dpi) {
    constexpr int shadow = 2;
    return {oneLine(control, textOf(control), scaledLength(shadow, dpi))};
}

/// With its picture. The arrows of scroll bars are buttons too and show no text.
ShownTexts buttonCaption(HWND control, int dpi) {
    auto* const button = objectOf<ZelvikButtonXP>(control);
    if (button == nullptr || button->Caption().empty()) {
        return {};
    }
    const auto [picture, text, sign] = button->content();
    const PixelRect content = picture.empty() ? text : picture.united(text);
    const PixelSize size = clientSize(control);
    // What sticks out on one side counts for both, since it is centred in the room beside the sign.
    const int first = sign.empty() ? 0 : sign.right;
    const int left = std::min(content.left - first, size.width - content.right);
    const int top = std::min(content.top, size.height - content.bottom);
    const int line = lineWidthAt(dpi);
    return {{button->Caption(),
             {size.width - first - 2 * left, size.height - 2 * top},
             {size.width - first - 2 * line, size.height - 2 * line}}};
}

ShownTexts sliderTexts(HWND control, int dpi) {
    const auto& slider = *objectOf<ctlSlider>(control);
    const SliderLayout& layout = slider.layout();
    const HFONT font = fontOf(control);
    const int height = layout.lblCaption.height();
    PixelSize caption{slider.captionWidth(), measured(font, "X").height};
    ShownTexts texts;
    if (layout.lblMin.empty()) {
        // The track needs a length that the hand can meet.
        constexpr int leastTrack = 40;
        caption.width += scaledLength(leastTrack, dpi);
        return {{textOf(control),
                 caption,
                 {layout.lblCaption.width() + layout.imgBack.width(), height}}};
    }
    const int ends =
        std::max(measured(font, slider.MinText()).width, measured(font, slider.MaxText()).width);
    return {{textOf(control), caption, {layout.lblCaption.width() - 2 * ends, height}}};
}

/// Breaks into lines.
ShownTexts staticLines(HWND control, int /*dpi*/) {
    if ((GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW) {
        return {};
    }
    const PixelSize room = clientSize(control);
    const std::string text = textOf(control);
    return {{text, measured(fontOf(control), text, DT_WORDBREAK, room.width), room}};
}

/// Of a frame: behind an indent, and as far from its right end.
ShownTexts frameCaption(HWND control, int dpi) {
    constexpr int indents = 12;
    return {oneLine(control, textOf(control), scaledLength(indents, dpi))};
}

ShownTexts editLine(HWND control, int /*dpi*/) {
    RECT box{};
    SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&box));
    ShownText shown = oneLine(control, textOf(control));
    shown.room.width = static_cast<int>(box.right - box.left);
    return {shown};
}

std::string rowOf(HWND list, int row, UINT lengthMessage, UINT textMessage) {
    const auto index = static_cast<WPARAM>(row);
    const auto length = static_cast<std::size_t>(SendMessageW(list, lengthMessage, index, 0));
    std::wstring text(length + 1, L'\0');
    SendMessageW(list, textMessage, index, reinterpret_cast<LPARAM>(text.data()));
    text.resize(length);
    return narrow(text);
}

ShownTexts comboRows(HWND control, int dpi) {
    constexpr int marginAndArrow = 24;
    ShownTexts texts;
    const auto count = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        texts.push_back(oneLine(control, rowOf(control, row, CB_GETLBTEXTLEN, CB_GETLBTEXT),
                                scaledLength(marginAndArrow, dpi)));
    }
    return texts;
}

/// Two columns with the space between them.
ShownTexts listRows(HWND control, int dpi) {
    constexpr int indentAndGap = 12;
    ShownTexts texts;
    const auto count = static_cast<int>(SendMessageW(control, LB_GETCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        std::string text = rowOf(control, row, LB_GETTEXTLEN, LB_GETTEXT);
        std::ranges::replace(text, '\t', ' ');
        ShownText shown = oneLine(control, text, scaledLength(indentAndGap, dpi));
        shown.room.height = static_cast<int>(SendMessageW(control, LB_GETITEMHEIGHT, 0, 0));
        texts.push_back(shown);
    }
    return texts;
}

/// For controls that only pass on the text of a part.
ShownTexts noTexts(HWND /*control*/, int /*dpi*/) {
    return {};
}

using Texts = ShownTexts (*)(HWND, int);

const std::map<std::string, Texts>& textsOfClasses() {
    static const std::map<std::string, Texts> classes{
        {"Label", &plainLine},        {"LinkLabel", &linkLine},
        {"TitleLabel", &titleLine},   {"ZelvikButtonXP", &buttonCaption},
        {"ctlSlider", &sliderTexts},  {"Static", &staticLines},
        {"Button", &frameCaption},    {"Edit", &editLine},
        {"ComboBox", &comboRows},     {"ListBox", &listRows},
        {"TextBoxNumeric", &noTexts},
    };
    return classes;
}

LOGFONTW titleFont(bool small, int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                               static_cast<UINT>(dpi));
    return small ? metrics.lfSmCaptionFont : metrics.lfCaptionFont;
}

}  // namespace

std::optional<std::vector<ShownText>> shownTexts(HWND control, int dpi) {
    const auto& classes = textsOfClasses();
    if (const auto found = classes.find(classNameOf(control)); found != classes.end()) {
        return found->second(control, dpi);
    }
    return textOf(control).empty() ? std::optional(ShownTexts{}) : std::nullopt;
}

ShownText shownTitle(HWND window, int dpi) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    const auto extended = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
    const bool small = (extended & WS_EX_TOOLWINDOW) != 0;
    const auto metric = [dpi](int index) {
        return GetSystemMetricsForDpi(index, static_cast<UINT>(dpi));
    };
    const int buttons = (style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0 ? 3 : 1;
    const bool hasIcon = !small && (extended & WS_EX_DLGMODALFRAME) == 0;
    const LOGFONTW face = titleFont(small, dpi);
    const FontHandle font(CreateFontIndirectW(&face));
    const std::string title = textOf(window);
    const int taken = buttons * metric(small ? SM_CXSMSIZE : SM_CXSIZE) +
                      (hasIcon ? metric(SM_CXSMICON) : 0) + 2 * metric(SM_CXEDGE);
    return {title,
            measured(font.get(), title),
            {clientSize(window).width - taken, metric(small ? SM_CYSMCAPTION : SM_CYCAPTION)}};
}

int lineHeightOf(HWND control) {
    return measured(fontOf(control), "X").height;
}

}  // namespace ormala
