#include "dialogs/win/OptionsPage.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "dialogs/optionsLayout.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

OptionsPage::OptionsPage(HWND parent, int id, int number) : number_(number) {
    WindowDesign design;
    design.className = L"OptionsPage";
    design.style = WS_CHILD | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), "picTab(" + std::to_string(number) + ")");
}

void OptionsPage::show() {
    for (const auto& showOne : showing_) {
        showOne();
    }
    InvalidateRect(handle(), nullptr, FALSE);
}

PixelRect OptionsPage::placeOf(std::string_view name) const {
    const auto places = optionPagePlaces(number_);
    return scaledToDpi(std::ranges::find(places, name, &ControlPlace::name)->box, dpi_);
}

void OptionsPage::layOut(int dpi, HFONT font) {
    dpi_ = dpi;
    font_ = font;
    for (const auto& [name, placeOne] : placing_) {
        placeOne(placeOf(name), dpi);
    }
}

void OptionsPage::add(std::string_view name, std::function<void(const PixelRect&, int)> place) {
    placing_.emplace(name, std::move(place));
}

void OptionsPage::add(ZelvikButtonXP& button, std::string_view name) {
    add(name, [&button](const PixelRect& box, int dpi) {
        button.setDpi(dpi);
        button.place(box);
    });
}

void OptionsPage::make(OptionGroup& group, const OptionDesign& design, int& value) {
    const auto choices = design.choices;
    group.create(handle(), design.firstId, design.name, std::vector<std::string>(choices.size()),
                 design.firstNumber);
    for (int index = 0; index < group.size(); ++index) {
        add(group[index], controlName(group[index].handle()));
    }
    whenShown([&group, choices, &value] { group.select(optionFor(value, choices)); });
    whenChanged(group.Change, [&group, choices, &value] {
        value = choices[static_cast<std::size_t>(group.selected())];
    });
}

std::unique_ptr<CheckButton> OptionsPage::makeCheck(int id, std::string_view name) {
    auto check = std::make_unique<CheckButton>(handle(), id, name);
    startGroup(check->handle());
    add(*check, name);
    return check;
}

std::unique_ptr<CheckButton> OptionsPage::makeCheck(int id, std::string_view name, bool& value) {
    auto made = makeCheck(id, name);
    CheckButton& check = *made;
    whenShown([&check, &value] { check.setChecked(value); });
    whenChanged(check.Change, [&check, &value] { value = check.checked(); });
    return made;
}

std::unique_ptr<ctlSlider> OptionsPage::makeSlider(int id, std::string_view name,
                                                   SliderRange range) {
    auto made = std::make_unique<ctlSlider>(handle(), id, name);
    ctlSlider& slider = *made;
    startGroup(slider.handle());
    slider.setMin(range.first);
    slider.setMax(range.last);
    slider.setMinText(std::to_string(range.first));
    slider.setMaxText(std::to_string(range.last));
    add(name, [&slider](const PixelRect& box, int dpi) {
        slider.setDpi(dpi);
        slider.place(box);
    });
    return made;
}

void OptionsPage::makeLabel(StandardControl& label, int id, std::string_view name) {
    label.create(handle(), {WC_STATICW, SS_LEFT | SS_NOPREFIX | WS_GROUP, id, name, {}});
    addStandard(label, name);
}

void OptionsPage::makeFrame(GroupBox& frame, int id, std::string_view name) {
    frame.create(handle(), id, name, {});
    startGroup(frame.handle());
    addStandard(frame, name);
}

void OptionsPage::addStandard(const StandardControl& control, std::string_view name) {
    add(name, [this, window = control.handle()](const PixelRect& box, int) {
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
        SetWindowPos(window, nullptr, box.left, box.top, box.width(), box.height(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    });
}

LRESULT OptionsPage::onPaint() {
    const PaintScope scope(handle());
    fillRect(scope.context(), clientRectangle(), dark::ground);
    paint(scope.context());
    return 0;
}

std::optional<LRESULT> OptionsPage::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_COMMAND:
            return SendMessageW(GetParent(handle()), message, wParam, lParam);
        default:
            return darkControlColors(message, wParam);
    }
}

}  // namespace ormala
