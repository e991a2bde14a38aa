#include <gtest/gtest.h>

#include "app/Options.h"
#include "dialogs/palettes.h"
#include "modAPI/colors.h"
#include "worksheet/AidOptions.h"

namespace ormala {
namespace {

TEST(FirstColors, EachColorOfANewToolIsAFieldOfThePaletteOfTheDialog) {
    ToolColors colors;
    constexpr int kinds = 3;
    constexpr int round = 12;
    for (int kind = 0; kind < kinds; ++kind) {
        for (int made = 0; made < round; ++made) {
            const Color color = colors.NextDefaultToolColor(kind, false);
            EXPECT_TRUE(paletteOf(palette::hues).holds(color)) << std::hex << color;
        }
    }
}

TEST(FirstColors, TheColorsOfToolsWithoutAnyInTheirFileAreFieldsToo) {
    for (const Color color : {0xFFFF00, 0xFF0000, 0x0000FF}) {
        EXPECT_TRUE(paletteOf(palette::hues).holds(color)) << std::hex << color;
    }
}

TEST(FirstColors, ThoseOfGridAndMagnifierAreFieldsToo) {
    const Options options;
    for (const Color color :
         {options.aids.grid.color, options.lens.hotSpotColor, options.lens.gridColor}) {
        EXPECT_TRUE(paletteOf(palette::hues).holds(color)) << std::hex << color;
    }
}

TEST(FirstColors, ThatOfTheWorksheetIsAFieldOfTheToolbarsPalette) {
    EXPECT_TRUE(paletteOf(palette::muted).holds(Options{}.worksheetColor));
}

}  // namespace
}  // namespace ormala
