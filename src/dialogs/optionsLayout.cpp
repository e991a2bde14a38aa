#include "dialogs/optionsLayout.h"

#include <array>
#include <cstddef>

namespace ormala {

namespace {

constexpr std::array general{
    ControlPlace{"optLanguage(0)", {24, 32, 290, 56}},
    ControlPlace{"optLanguage(1)", {294, 32, 560, 56}},
    ControlPlace{"fraLanguage", {12, 12, 572, 68}},
    ControlPlace{"chkTemplateWithBorder", {12, 80, 572, 104}},
    ControlPlace{"chkLogicalPixels", {12, 112, 572, 136}},
};

constexpr std::array grid{
    ControlPlace{"optGridMode(1)", {12, 12, 148, 36}},
    ControlPlace{"optGridMode(2)", {152, 12, 288, 36}},
    ControlPlace{"sldGridSizeX", {12, 48, 288, 88}},
    ControlPlace{"sldGridSizeY", {12, 96, 288, 136}},
    ControlPlace{"chkSameGridSizeXY", {12, 144, 288, 168}},
    ControlPlace{"sldGridOffsetX", {296, 48, 572, 88}},
    ControlPlace{"sldGridOffsetY", {296, 96, 572, 136}},
    ControlPlace{"chkSameGridOffsetXY", {296, 144, 572, 168}},
    ControlPlace{"lblGridLine", {12, 184, 288, 200}},
    ControlPlace{"GridLineSelect", {9, 202, 291, 362}},
    ControlPlace{"lblGridColor", {296, 184, 572, 200}},
    ControlPlace{"colpicGrid", {297, 206, 572, 326}},
    ControlPlace{"picGridColor", {297, 334, 572, 358}},
};

constexpr std::array magnifier{
    ControlPlace{"chkCursorVisible", {12, 12, 288, 36}},
    ControlPlace{"chkStick", {296, 12, 572, 36}},
    ControlPlace{"sldMagnification", {12, 44, 572, 84}},
    ControlPlace{"chkHotSpotVisible", {24, 112, 124, 136}},
    ControlPlace{"lblHotSpotStyle", {136, 117, 202, 133}},
    ControlPlace{"optHotSpotStyle(0)", {204, 112, 245, 136}},
    ControlPlace{"optHotSpotStyle(1)", {249, 112, 290, 136}},
    ControlPlace{"optHotSpotStyle(2)", {294, 112, 335, 136}},
    ControlPlace{"optHotSpotStyle(3)", {339, 112, 380, 136}},
    ControlPlace{"optHotSpotStyle(4)", {384, 112, 425, 136}},
    ControlPlace{"optHotSpotStyle(5)", {429, 112, 470, 136}},
    ControlPlace{"optHotSpotStyle(6)", {474, 112, 515, 136}},
    ControlPlace{"optHotSpotStyle(7)", {519, 112, 560, 136}},
    ControlPlace{"lblHotSpotDrawMode", {136, 145, 202, 161}},
    ControlPlace{"optHotSpotDrawMode(0)", {204, 140, 300, 164}},
    ControlPlace{"optHotSpotDrawMode(1)", {304, 140, 400, 164}},
    ControlPlace{"optHotSpotDrawMode(2)", {404, 140, 500, 164}},
    ControlPlace{"cmdHotSpotDrawColor", {512, 140, 560, 164}},
    ControlPlace{"fraHotSpot", {12, 92, 572, 176}},
    ControlPlace{"chkLensGridVisible", {24, 204, 124, 228}},
    ControlPlace{"lblLensGridDrawMode", {136, 209, 202, 225}},
    ControlPlace{"optLensGridDrawMode(0)", {204, 204, 300, 228}},
    ControlPlace{"optLensGridDrawMode(1)", {304, 204, 400, 228}},
    ControlPlace{"optLensGridDrawMode(2)", {404, 204, 500, 228}},
    ControlPlace{"cmdLensGridColor", {512, 204, 560, 228}},
    ControlPlace{"fraLensGrid", {12, 184, 572, 240}},
    ControlPlace{"chkTopLeftVisible", {24, 268, 124, 292}},
    ControlPlace{"lblTopLeftRef", {136, 273, 276, 289}},
    ControlPlace{"optTopLeftRef(0)", {24, 300, 163, 324}},
    ControlPlace{"optTopLeftRef(1)", {164, 300, 276, 324}},
    ControlPlace{"optTopLeftRef(2)", {24, 328, 163, 352}},
    ControlPlace{"optTopLeftRef(3)", {164, 328, 276, 352}},
    ControlPlace{"fraScaleTopLeft", {12, 248, 288, 364}},
    ControlPlace{"chkBottomRightVisible", {308, 268, 408, 292}},
    ControlPlace{"lblBottomRightRef", {420, 273, 560, 289}},
    ControlPlace{"optBottomRightRef(0)", {308, 300, 447, 324}},
    ControlPlace{"optBottomRightRef(1)", {448, 300, 560, 324}},
    ControlPlace{"optBottomRightRef(2)", {308, 328, 447, 352}},
    ControlPlace{"optBottomRightRef(3)", {448, 328, 560, 352}},
    ControlPlace{"fraScaleBottomRight", {296, 248, 572, 364}},
};

}  // namespace

std::span<const ControlPlace> optionPagePlaces(int page) {
    static constexpr std::array<std::span<const ControlPlace>, 3> pages{general, grid, magnifier};
    return pages.at(static_cast<std::size_t>(page));
}

}  // namespace ormala
