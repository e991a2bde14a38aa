#include "app/ViewState.h"

#include <utility>

namespace ormala {

namespace {

/// The option that a command turns on and off, null for a command that is no toggle. `AnyOptions`
/// is `Options`, constant or not.
template <typename AnyOptions>
auto optionOf(Command command, AnyOptions& options) -> decltype(&options.lensVisible) {
    switch (command) {
        case Command::lens:
            return &options.lensVisible;
        case Command::grid:
            return &options.aids.grid.enabled;
        case Command::crossHair:
            return &options.aids.crossHair;
        case Command::referenceLines:
            return &options.showReferenceLines;
        case Command::circleCompass:
            return &options.aids.circleCompass;
        case Command::lensStick:
            return &options.lens.sticked;
        case Command::lensCursor:
            return &options.lens.cursorOn;
        case Command::lensHotSpot:
            return &options.lens.hotSpotOn;
        case Command::lensGrid:
            return &options.lens.gridOn;
        case Command::lensTopLeftScales:
            return &options.lens.topScales;
        case Command::lensBottomRightScales:
            return &options.lens.bottomScales;
        default:
            return nullptr;
    }
}

}  // namespace

bool ViewState::execute(Command command) {
    bool* const option = optionOf(command, options_);
    const int factor = lensFactorOf(command);
    if (option != nullptr) {
        set([option](Options&) { *option = !*option; });
    } else if (factor != 0) {
        set([factor](Options& options) { options.lens.factor = factor; });
    }
    return option != nullptr || factor != 0;
}

std::optional<bool> ViewState::isOn(Command command) const {
    const bool* const option = optionOf(command, options_);
    return option != nullptr ? std::optional(*option) : std::nullopt;
}

void ViewState::setWorksheetDpi(int dpi) {
    worksheetDpi_ = dpi;
    countPixels();
}

void ViewState::countPixels() {
    const int dpi = options_.logicalPixels ? worksheetDpi_ : 0;
    if (std::exchange(toolSettings_.textForm.logicalDpi, dpi) != dpi) {
        countChanged.raise();
    }
}

OptionValues ViewState::values() const {
    return {options_.language, options_.templateWithBorder, options_.aids.grid, options_.lens,
            options_.logicalPixels};
}

void ViewState::apply(const OptionValues& values) {
    set([&values](Options& options) {
        options.language = values.language;
        options.templateWithBorder = values.templateWithBorder;
        options.logicalPixels = values.logicalPixels;
        options.aids.grid = values.grid;
        options.lens = values.lens;
    });
}

}  // namespace ormala
