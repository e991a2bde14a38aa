#include "toolkit/PanelMemory.h"

#include <gtest/gtest.h>

#include "support/FakePanelView.h"

namespace ormala {
namespace {

using enum CommonControl;

PixelImage pictureOf(std::uint32_t pixel) {
    return {{1, 1}, {pixel}};
}

PictureMaker makerOf(std::uint32_t pixel) {
    return [pixel](PixelSize) { return pictureOf(pixel); };
}

class PanelMemoryTest : public testing::Test {
  protected:
    /// What controls show that have served another panel of the same design before.
    [[nodiscard]] FakePanelView told() const {
        FakePanelView face;
        face.showTexts({{lblTitle, "other"}, {number_, "other"}});
        face.showLook(selectedLook);
        face.showButton(cmdPause, {plain::white, true, plain::white, Picture::hide});
        face.showPicture(cmdLineStyle, makerOf(9));
        face.enable({.undo = true, .redo = true});
        memory_.tell(design_, face);
        return face;
    }

    static constexpr auto number_ = CommonControl::firstOfKind;
    static PanelDesign makeDesign() {
        PanelDesign design;
        design.controls = {
            {.name = "lblTitle", .id = lblTitle, .part = PanelPart::title, .caption = 209},
            {.name = "lblHeader", .part = PanelPart::header},
            value(number_, "lblValue"),
            button(cmdPause, "cmdPause", 0, Picture::show, {}),
            button("cmdDelete", 0, Picture::remove, {}),
            {.name = "imgPattern", .id = cmdLineStyle, .part = PanelPart::image}};
        return design;
    }

    PanelDesign design_ = makeDesign();
    PanelMemory memory_;
};

TEST_F(PanelMemoryTest, WhatWasNeverToldIsAsTheDesignSays) {
    const FakePanelView face = told();
    EXPECT_EQ(face.texts.at(number_), "");
    EXPECT_EQ(face.look, unselectedLook);
    EXPECT_EQ(face.enabling, PanelEnabling{});
    EXPECT_EQ(face.buttons.at(cmdPause),
              (ButtonLook{dark::off, false, systemButtonText, Picture::show}));
    EXPECT_EQ(face.buttons.at(cmdLineStyle).back, dark::liftedGround);
    EXPECT_FALSE(face.pictures.at(cmdLineStyle));
}

TEST_F(PanelMemoryTest, ACaptionOfTheDesignIsLeftUnlessThePanelHasTakenItsPlace) {
    EXPECT_EQ(told().texts.at(lblTitle), "other");
    memory_.showTexts({{lblTitle, "own"}});
    EXPECT_EQ(told().texts.at(lblTitle), "own");
}

TEST_F(PanelMemoryTest, OnlyControlsThatThePanelSpeaksToAreTold) {
    const FakePanelView face = told();
    EXPECT_EQ(face.texts.size(), 2U);
    EXPECT_EQ(face.buttons.size(), 2U);
    EXPECT_FALSE(face.buttons.contains(CommonControl::none));
}

TEST_F(PanelMemoryTest, TheLastOfWhatWasToldCounts) {
    memory_.showTexts({{number_, "1"}, {lblTitle, "own"}});
    memory_.showTexts({{number_, "2"}});
    memory_.showLook(selectedLook);
    memory_.showLook(unselectedLook);
    memory_.enable({.controls = false, .labels = false});
    memory_.enable({.labels = false, .redo = true});
    const FakePanelView face = told();
    EXPECT_EQ(face.texts.at(number_), "2");
    EXPECT_EQ(face.texts.at(lblTitle), "own");
    EXPECT_EQ(face.look, unselectedLook);
    EXPECT_EQ(memory_.look(), unselectedLook);
    EXPECT_EQ(face.enabling, (PanelEnabling{.labels = false, .redo = true}));
}

TEST_F(PanelMemoryTest, AButtonKeepsTheTextColorAndThePictureThatALaterLookLeavesOut) {
    memory_.showButton(cmdPause, {plain::black, true, plain::white, Picture::hide});
    memory_.showButton(cmdPause, {plain::white, false});
    EXPECT_EQ(told().buttons.at(cmdPause),
              (ButtonLook{plain::white, false, plain::white, Picture::hide}));
    memory_.showButton(cmdPause, {plain::white, true, plain::black});
    EXPECT_EQ(told().buttons.at(cmdPause),
              (ButtonLook{plain::white, true, plain::black, Picture::hide}));
}

TEST_F(PanelMemoryTest, OfAMadePictureAndOneOfTheTableTheLaterOneShows) {
    memory_.showPicture(cmdPause, makerOf(1));
    memory_.showPicture(cmdPause, makerOf(2));
    memory_.showButton(cmdPause, {plain::black, true});
    EXPECT_EQ(told().pixelsOf(cmdPause, {1, 1}), pictureOf(2).argb);
    memory_.showButton(cmdPause, {plain::black, true, {}, Picture::hide});
    EXPECT_FALSE(told().pictures.contains(cmdPause));
    EXPECT_EQ(told().buttons.at(cmdPause).picture, Picture::hide);
}

}  // namespace
}  // namespace ormala
