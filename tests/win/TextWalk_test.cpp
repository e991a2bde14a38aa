#include "win/TextWalk.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "dialogs/win/LinkLabel.h"
#include "dialogs/win/TitleLabel.h"
#include "platform/win/StandardControl.h"
#include "scene/dpi.h"
#include "widgets/win/GradShape.h"
#include "widgets/win/GroupBox.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/ctlSlider.h"
#include "win/TestWindow.h"

// That the walk finds what it is to find, and nothing else.

namespace ormala {
namespace {

constexpr int dpi = designDpi;
constexpr PixelRect wide{10, 10, 200, 34};
constexpr PixelRect narrowPlace{10, 10, 40, 34};

class TextWalkTest : public testing::Test {
  protected:
    void expectNone() const {
        const TextWalk walk(owner_.handle(), dpi);
        EXPECT_GT(walk.texts(), 0);
        EXPECT_EQ(walk.complaints(), std::vector<std::string>{});
    }
    /// There is one complaint, and this is in it.
    void expectOne(std::string_view part) const {
        const TextWalk walk(owner_.handle(), dpi);
        ASSERT_EQ(walk.complaints().size(), 1U) << testing::PrintToString(walk.complaints());
        EXPECT_NE(walk.complaints().front().find(part), std::string::npos)
            << walk.complaints().front();
    }
    /// The control's text fits into the wide box and is cut off in the narrow one.
    template <typename Place>
    void expectCutOnlyInNarrow(const Place& place) const {
        place(wide);
        expectNone();
        place(narrowPlace);
        expectOne("cuts off");
    }
    template <typename Control>
    void expectCutOnlyInNarrow(Control& control) const {
        control.setDpi(dpi);
        expectCutOnlyInNarrow([&](const PixelRect& box) { control.place(box); });
    }
    void expectStandardCutOnlyInNarrow(const StandardControl& control) const {
        expectCutOnlyInNarrow([&](const PixelRect& box) { move(control.handle(), box); });
    }
    static void move(HWND control, const PixelRect& box) {
        SetWindowPos(control, nullptr, box.left, box.top, box.width(), box.height(), SWP_NOZORDER);
    }
    [[nodiscard]] std::unique_ptr<Label> label(const char* name, const PixelRect& box) const {
        auto made = std::make_unique<Label>(owner_.handle(), 1, name);
        made->setDpi(dpi);
        made->setText(name);
        made->place(box);
        return made;
    }

    TestWindow owner_;
};

TEST_F(TextWalkTest, FindsACutLabel) {
    Label label(owner_.handle(), 1, "lblTest");
    label.setText("A longer text");
    expectCutOnlyInNarrow(label);
}

TEST_F(TextWalkTest, FindsALabelThatIsTooLow) {
    const auto low = label("low", {10, 10, 200, 20});
    expectOne("cuts off");
}

TEST_F(TextWalkTest, FindsACutLink) {
    LinkLabel link(owner_.handle(), 1, "lblLink");
    link.setText("example.org/long");
    expectCutOnlyInNarrow(link);
}

TEST_F(TextWalkTest, FindsACutTitle) {
    TitleLabel title(owner_.handle(), 1, "lblTitle");
    title.setText("Title");
    title.place({10, 10, 300, 80});
    expectNone();
    title.place({10, 10, 60, 80});
    expectOne("cuts off");
}

TEST_F(TextWalkTest, FindsACutCaptionOfAButton) {
    ZelvikButtonXP button(owner_.handle(), 1, "cmdTest");
    button.setCaption("Unbreakable");
    expectCutOnlyInNarrow(button);
}

TEST_F(TextWalkTest, FindsACaptionThatNeedsALineMoreThanTheButtonHas) {
    ZelvikButtonXP button(owner_.handle(), 1, "cmdTest");
    button.setCaption("It is of many short words");
    expectCutOnlyInNarrow(button);
}

TEST_F(TextWalkTest, CountsThePictureOfAButtonToItsCaption) {
    ZelvikButtonXP button(owner_.handle(), 1, "cmdTest");
    button.setDpi(dpi);
    button.setCaption("Edit");
    button.place(narrowPlace);
    expectNone();
    button.setPictureSize(16, 16);
    button.setPicture([](PixelSize size) { return PixelImage{size, {}}; });
    expectOne("cuts off");
}

TEST_F(TextWalkTest, ATipIsNoCaption) {
    ZelvikButtonXP button(owner_.handle(), 1, "cmdTest");
    button.SetTooltip("A long explanation of what the button does");
    button.place({10, 10, 34, 34});
    EXPECT_EQ(TextWalk(owner_.handle(), dpi).texts(), 0);
}

TEST_F(TextWalkTest, FindsASliderWithoutRoomForItsTrack) {
    ctlSlider slider(owner_.handle(), 1, "sldTest");
    slider.setMax(100);
    slider.setCaption("Name");
    slider.setDpi(dpi);
    slider.place({10, 10, 200, 30});
    expectNone();
    slider.place({10, 10, 80, 30});
    expectOne("cuts off");
}

TEST_F(TextWalkTest, FindsASliderWhoseTextsMeet) {
    ctlSlider slider(owner_.handle(), 1, "sldTest");
    slider.setCaption("Name");
    slider.setDpi(dpi);
    slider.place({10, 10, 200, 50});
    expectNone();
    slider.place({10, 10, 80, 50});
    expectOne("cuts off");
}

TEST_F(TextWalkTest, FindsCutTextsOfTheSystemsControls) {
    struct Kind {
        const wchar_t* className;
        DWORD style;
    };
    for (const Kind& kind : {Kind{WC_STATICW, SS_LEFT}, Kind{WC_EDITW, ES_AUTOHSCROLL},
                             Kind{WC_BUTTONW, BS_GROUPBOX}}) {
        StandardControl control;
        control.create(owner_.handle(), {kind.className, kind.style, 1, "test", "Unbreakable"});
        expectStandardCutOnlyInNarrow(control);
    }
}

TEST_F(TextWalkTest, AStaticTextMayBreakIntoLinesThatItHasRoomFor) {
    StandardControl control;
    control.create(owner_.handle(), {WC_STATICW, SS_LEFT, 1, "test", "short words"});
    move(control.handle(), {10, 10, 60, 60});
    expectNone();
    move(control.handle(), {10, 10, 60, 30});
    expectOne("cuts off");
}

TEST_F(TextWalkTest, FindsACutRowOfAList) {
    StandardControl list;
    list.create(owner_.handle(), {WC_LISTBOXW, LBS_NOINTEGRALHEIGHT, 1, "test", ""});
    SendMessageW(list.handle(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Unbreakable"));
    expectStandardCutOnlyInNarrow(list);
}

TEST_F(TextWalkTest, FindsACutRowOfADropDownList) {
    StandardControl list;
    list.create(owner_.handle(), {WC_COMBOBOXW, CBS_DROPDOWNLIST, 1, "test", ""});
    SendMessageW(list.handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Unbreakable"));
    expectStandardCutOnlyInNarrow(list);
}

TEST_F(TextWalkTest, FindsControlsThatOverlap) {
    const auto one = label("one", wide);
    const auto beside = label("beside", {200, 10, 300, 34});
    expectNone();
    beside->place({199, 10, 300, 34});
    expectOne("lies over");
    beside->setVisible(false);
    expectNone();
}

TEST_F(TextWalkTest, AGroundMayLieBehindAText) {
    const auto text = label("text", wide);
    const GradShape ground(owner_.handle(), 2, "gradTest");
    ground.place({0, 0, 300, 60});
    expectNone();
}

TEST_F(TextWalkTest, AFrameHoldsItsContentBelowItsHeading) {
    GroupBox frame;
    frame.create(owner_.handle(), 2, "fraTest", "Heading");
    move(frame.handle(), {4, 4, 220, 80});
    const auto content = label("content", {10, 40, 200, 60});
    expectNone();
    content->place({10, 6, 200, 26});
    expectOne("lies over");
    content->place({10, 70, 200, 90});
    expectOne("lies over");
}

TEST_F(TextWalkTest, FindsWhatSticksOutOfItsParent) {
    const auto text = label("text", {300, 10, 400, 34});
    expectNone();
    text->place({300, 10, 401, 34});
    expectOne("sticks out");
}

TEST_F(TextWalkTest, LooksAtControlsWithinControlsWhileTheWindowIsHidden) {
    const TestWindow hidden({300, 200, 700, 500});
    hidden.setVisible(false);
    StandardControl group;
    group.create(hidden.handle(), {WC_STATICW, SS_OWNERDRAW, 1, "group", ""});
    move(group.handle(), {0, 0, 300, 100});
    Label inside(group.handle(), 1, "inside");
    inside.setText("A longer text");
    inside.place(narrowPlace);
    EXPECT_EQ(TextWalk(hidden.handle(), dpi).complaints().size(), 1U);
}

TEST_F(TextWalkTest, DoesNotPassOverATextThatItCannotMeasure) {
    StandardControl bar;
    bar.create(owner_.handle(), {WC_SCROLLBARW, SBS_HORZ, 1, "test", "A text"});
    move(bar.handle(), wide);
    expectOne("unknown kind");
}

TEST_F(TextWalkTest, FindsATitleThatIsTooLong) {
    SetWindowLongPtrW(owner_.handle(), GWL_STYLE, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE);
    SetWindowTextW(owner_.handle(), L"A title");
    const auto text = label("text", wide);
    expectNone();
    SetWindowTextW(owner_.handle(), std::wstring(200, L'W').c_str());
    expectOne("title");
}

}  // namespace
}  // namespace ormala
