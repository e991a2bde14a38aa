#include "app/ViewState.h"

#include <gtest/gtest.h>

#include <vector>

#include "app/commands.h"

namespace ormala {
namespace {

const std::vector<Command> toggles{Command::lens,
                                   Command::grid,
                                   Command::crossHair,
                                   Command::referenceLines,
                                   Command::circleCompass,
                                   Command::lensStick,
                                   Command::lensCursor,
                                   Command::lensHotSpot,
                                   Command::lensGrid,
                                   Command::lensTopLeftScales,
                                   Command::lensBottomRightScales};

TEST(ViewState, AToggleChangesItsOwnOptionAndNoOther) {
    for (const Command command : toggles) {
        ViewState view;
        const Options former = view.options();
        const bool was = view.isOn(command).value();
        EXPECT_TRUE(view.execute(command));
        for (const Command other : toggles) {
            EXPECT_EQ(view.isOn(other) != ViewState(former).isOn(other), other == command);
        }
        EXPECT_EQ(view.isOn(command), !was);
        view.execute(command);
        EXPECT_EQ(view.options(), former);
    }
}

TEST(ViewState, TheTogglesOfTheToolbarStandForTheirOptions) {
    Options options;
    options.lensVisible = true;
    options.aids.grid.enabled = true;
    options.aids.crossHair = true;
    options.showReferenceLines = true;
    options.aids.circleCompass = true;
    const ViewState on(options);
    int count = 0;
    for (const CommandDesign& design : commandDesigns()) {
        const auto state = on.isOn(design.command);
        EXPECT_EQ(state.has_value(), controlTypeOf(design.command) == 1);
        count += state.value_or(false) ? 1 : 0;
    }
    EXPECT_EQ(count, 5);
}

TEST(ViewState, AnyOtherCommandIsNoToggle) {
    ViewState view;
    int told = 0;
    const Subscription telling = view.changed.subscribe([&told] { ++told; });
    for (const Command command :
         {Command::editMode, Command::save, Command::lensOptions, Command::undo}) {
        EXPECT_EQ(view.isOn(command), std::nullopt);
        EXPECT_FALSE(view.execute(command));
    }
    EXPECT_EQ(told, 0);
}

TEST(ViewState, AMagnificationBecomesTheFactor) {
    for (int factor = 1; factor <= 10; ++factor) {
        ViewState view;
        EXPECT_TRUE(view.execute(commandOfLensFactor(factor)));
        EXPECT_EQ(view.options().lens.factor, factor);
    }
}

TEST(ViewState, TellsOfEachSettingAfterIt) {
    ViewState view;
    std::vector<int> seen;
    const Subscription telling =
        view.changed.subscribe([&] { seen.push_back(view.options().transparencyEditMode); });
    view.set([](Options& options) { options.transparencyEditMode = 70; });
    view.set([](Options& options) { options.transparencyEditMode = 70; });
    EXPECT_EQ(seen, (std::vector{70, 70}));
}

TEST(ViewState, ToolsReadTheOptionsWhereTheyLie) {
    ViewState view;
    const ToolSettings& settings = view.toolSettings();
    view.set([](Options& options) {
        options.aids.grid.steps = {7, 8, 9, 10};
        options.showReferenceLines = false;
    });
    EXPECT_EQ(settings.grid, (Grid{7, 8, 9, 10}));
    EXPECT_FALSE(settings.showReferenceLines);
}

TEST(ViewState, TheValuesOfTheDialogComeBackAsTheyWere) {
    Options options;
    options.language = languageGerman;
    options.templateWithBorder = true;
    options.logicalPixels = true;
    options.aids.grid.color = 0x123456;
    options.lens.factor = 9;
    const OptionValues values = ViewState(options).values();
    ViewState other;
    other.apply(values);
    EXPECT_EQ(other.values(), values);
    EXPECT_EQ(other.options().aids.grid.color, 0x123456);
    EXPECT_EQ(other.options().lens.factor, 9);
    EXPECT_EQ(other.options().language, languageGerman);
    EXPECT_TRUE(other.options().templateWithBorder);
    EXPECT_TRUE(other.options().logicalPixels);
}

TEST(ViewState, ReadOutsCountInTheLogicalPixelsOfTheWorksheetsMonitorIfWanted) {
    ViewState view;
    int told = 0;
    const auto subscription = view.countChanged.subscribe([&told] { ++told; });
    const int& logicalDpi = view.toolSettings().textForm.logicalDpi;
    view.setWorksheetDpi(192);
    EXPECT_EQ(logicalDpi, 0);
    EXPECT_EQ(told, 0);
    view.set([](Options& options) { options.logicalPixels = true; });
    EXPECT_EQ(logicalDpi, 192);
    view.set([](Options&) {});
    EXPECT_EQ(told, 1);
    view.setWorksheetDpi(144);
    EXPECT_EQ(logicalDpi, 144);
    EXPECT_EQ(told, 2);
    view.apply(OptionValues{});
    EXPECT_EQ(logicalDpi, 0);
    EXPECT_EQ(told, 3);
}

TEST(ViewState, TheDialogLeavesWhatItDoesNotShow) {
    Options options;
    options.lensVisible = true;
    options.aids.crossHair = true;
    options.mode = Mode::pause;
    ViewState view(options);
    view.apply(OptionValues{});
    EXPECT_TRUE(view.options().lensVisible);
    EXPECT_TRUE(view.options().aids.crossHair);
    EXPECT_EQ(view.options().mode, Mode::pause);
}

}  // namespace
}  // namespace ormala
