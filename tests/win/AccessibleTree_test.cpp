#include "platform/win/AccessibleTree.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>

#include "platform/win/Accessible.h"
#include "platform/win/ComAccessible.h"
#include "platform/win/text.h"
#include "support/stencilGripIndex.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

// The tools and their grips as a screen reader meets them on the worksheet.

namespace ormala {
namespace {

VARIANT child(long number) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

/// An object and one of its simple children, or itself.
class Met {
  public:
    Met(IAccessible* object, long number) : object_(object), child_(child(number)) {}

    [[nodiscard]] IAccessible* operator->() const { return object_.get(); }
    [[nodiscard]] std::string name() const { return text(&IAccessible::get_accName); }
    [[nodiscard]] std::string value() const { return text(&IAccessible::get_accValue); }
    [[nodiscard]] std::string description() const { return text(&IAccessible::get_accDescription); }
    [[nodiscard]] long role() const { return number(&IAccessible::get_accRole); }
    [[nodiscard]] long state() const { return number(&IAccessible::get_accState); }
    [[nodiscard]] long children() const {
        long count = -1;
        EXPECT_EQ(object_->get_accChildCount(&count), S_OK);
        return count;
    }
    /// On the screen.
    [[nodiscard]] PixelRect place() const {
        long left = 0;
        long top = 0;
        long width = 0;
        long height = 0;
        EXPECT_EQ(object_->accLocation(&left, &top, &width, &height, child_), S_OK);
        return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(left + width),
                static_cast<int>(top + height)};
    }
    [[nodiscard]] HRESULT answer() const {
        BSTR text = nullptr;
        const HRESULT result = object_->get_accName(child_, &text);
        SysFreeString(text);
        return result;
    }
    /// A child, as an object or simply by its number; null if there is none.
    [[nodiscard]] std::unique_ptr<Met> at(long number) const {
        IDispatch* found = nullptr;
        const HRESULT result = object_->get_accChild(child(number), &found);
        if (result == S_FALSE) {
            return std::make_unique<Met>(object_.shared(), number);
        }
        return result == S_OK ? made(found) : nullptr;
    }
    /// Where a question that answers with a child leads.
    [[nodiscard]] std::unique_ptr<Met> reached(HRESULT result, const VARIANT& found) const {
        if (result != S_OK) {
            return nullptr;
        }
        return found.vt == VT_DISPATCH ? made(found.pdispVal)
                                       : std::make_unique<Met>(object_.shared(), found.lVal);
    }
    [[nodiscard]] std::unique_ptr<Met> hit(long x, long y) const {
        VARIANT found{};
        const HRESULT result = object_->accHitTest(x, y, &found);
        return reached(result, found);
    }
    [[nodiscard]] std::unique_ptr<Met> step(long direction) const {
        VARIANT found{};
        const HRESULT result = object_->accNavigate(direction, child_, &found);
        return reached(result, found);
    }
    [[nodiscard]] std::unique_ptr<Met> focus() const {
        VARIANT found{};
        const HRESULT result = object_->get_accFocus(&found);
        return reached(result, found);
    }
    [[nodiscard]] std::unique_ptr<Met> selection() const {
        VARIANT found{};
        const HRESULT result = object_->get_accSelection(&found);
        return reached(result, found);
    }
    [[nodiscard]] std::unique_ptr<Met> parent() const {
        IDispatch* found = nullptr;
        return object_->get_accParent(&found) == S_OK ? made(found) : nullptr;
    }

  private:
    static std::unique_ptr<Met> made(IDispatch* found) {
        const ComPointer<IDispatch> owned(found);
        void* object = nullptr;
        EXPECT_EQ(found->QueryInterface(__uuidof(IAccessible), &object), S_OK);
        return std::make_unique<Met>(static_cast<IAccessible*>(object), CHILDID_SELF);
    }
    [[nodiscard]] std::string text(HRESULT (IAccessible::*question)(VARIANT, BSTR*)) const {
        BSTR answer = nullptr;
        (object_.get()->*question)(child_, &answer);
        const std::string told = answer != nullptr ? narrow(answer) : "";
        SysFreeString(answer);
        return told;
    }
    [[nodiscard]] long number(HRESULT (IAccessible::*question)(VARIANT, VARIANT*)) const {
        VARIANT answer{};
        (object_.get()->*question)(child_, &answer);
        return answer.lVal;
    }

    ComPointer<IAccessible> object_;
    VARIANT child_;
};

std::unique_ptr<Met> meet(HWND window) {
    void* object = nullptr;
    EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), &object),
              S_OK);
    return std::make_unique<Met>(static_cast<IAccessible*>(object), CHILDID_SELF);
}

class AccessibleTree : public testing::Test {
  protected:
    static constexpr Rect firstRect{100, 50, 399, 249};
    static constexpr Rect secondRect{300, 200, 500, 400};

    AccessibleTree() {
        SetForegroundWindow(window());
        SetFocus(window());
    }

    [[nodiscard]] HWND window() { return sheet_.window().handle(); }
    [[nodiscard]] std::unique_ptr<Met> whole() { return meet(window()); }
    [[nodiscard]] PixelRect onScreen(const PixelRect& client) {
        POINT corner{client.left, client.top};
        ClientToScreen(window(), &corner);
        const int x = static_cast<int>(corner.x);
        const int y = static_cast<int>(corner.y);
        return {x, y, x + client.width(), y + client.height()};
    }

    AccessibleThread thread_;
    TestSheet sheet_{{640, 480}};
    ctlRatioGrid& first_ = sheet_.addStencil(firstRect, 0, plain::black);
    ctlRatioGrid& second_ = sheet_.addStencil(secondRect, 0, plain::black);
};

TEST_F(AccessibleTree, HasAnObjectForEachTool) {
    const auto all = whole();
    EXPECT_EQ(all->role(), ROLE_SYSTEM_CLIENT);
    ASSERT_EQ(all->children(), 2);
    const auto tool = all->at(1);
    ASSERT_TRUE(tool);
    EXPECT_EQ(tool->name(), "Stencil 1");
    EXPECT_EQ(tool->value(), "X = 249  Y = 149");
    EXPECT_EQ(tool->description(),
              "300 x 200  ratio = 1.500, 3:2  (chemical photo), 0.0\u00b0, 0.000 rad");
    EXPECT_EQ(tool->role(), ROLE_SYSTEM_GROUPING);
    EXPECT_EQ(tool->place(), onScreen(first_.footprint().bounds()));
    EXPECT_EQ(tool->state(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE);
    EXPECT_EQ(tool->parent()->children(), 2);
    EXPECT_EQ(all->at(2)->name(), "Stencil 2");
    EXPECT_EQ(all->at(3), nullptr);
    // By its parent too.
    BSTR name = nullptr;
    EXPECT_EQ((*all)->get_accName(child(2), &name), S_OK);
    EXPECT_STREQ(name, L"Stencil 2");
    SysFreeString(name);
}

TEST_F(AccessibleTree, HasTheGripsAsChildrenOfTheirTool) {
    const auto tool = whole()->at(1);
    ASSERT_EQ(tool->children(), stencilGripCount);
    const auto center = tool->at(1);
    EXPECT_EQ(center->name(), "Stencil 1, center grip");
    EXPECT_EQ(center->value(), "X = 249  Y = 149");
    EXPECT_EQ(center->role(), ROLE_SYSTEM_GRIP);
    const int index = indexOfStencilGrip(StencilGripKind::move, 0);
    EXPECT_EQ(center->place(), onScreen(first_.grips()[index].pixels()));
    EXPECT_EQ(tool->at(stencilGripCount)->name(), "Stencil 1, top left rotation grip");
    EXPECT_EQ(tool->at(stencilGripCount + 1), nullptr);
    sheet_.window().setClickable(false);
    EXPECT_EQ(tool->children(), 0);
    EXPECT_EQ(center->answer(), E_INVALIDARG);
}

TEST_F(AccessibleTree, IsWalkedFromNeighbourToNeighbour) {
    const auto all = whole();
    const auto tool = all->step(NAVDIR_FIRSTCHILD);
    ASSERT_TRUE(tool);
    EXPECT_EQ(tool->name(), "Stencil 1");
    const auto next = tool->step(NAVDIR_NEXT);
    ASSERT_TRUE(next);
    EXPECT_EQ(next->name(), "Stencil 2");
    EXPECT_EQ(next->parent()->children(), 2);
    EXPECT_EQ(next->step(NAVDIR_NEXT), nullptr);
    const auto grip = tool->step(NAVDIR_FIRSTCHILD);
    ASSERT_TRUE(grip);
    EXPECT_EQ(grip->step(NAVDIR_NEXT)->name(), "Stencil 1, top side grip");
    EXPECT_EQ(grip->step(NAVDIR_PREVIOUS), nullptr);
    EXPECT_EQ(grip->step(NAVDIR_LEFT), nullptr);
}

TEST_F(AccessibleTree, TellsWhatLiesAtAPoint) {
    const auto all = whole();
    const int index = indexOfStencilGrip(StencilGripKind::move, 0);
    const PixelRect grip = onScreen(first_.grips()[index].pixels());
    const auto tool = all->hit(grip.left + 5, grip.top + 5);
    ASSERT_TRUE(tool);
    EXPECT_EQ(tool->name(), "Stencil 1");
    EXPECT_EQ(tool->hit(grip.left + 5, grip.top + 5)->name(), "Stencil 1, center grip");
    const PixelRect beside = onScreen({150, 70, 151, 71});
    EXPECT_EQ(tool->hit(beside.left, beside.top)->name(), "Stencil 1");
    EXPECT_EQ(all->at(2)->hit(beside.left, beside.top), nullptr);
    const PixelRect empty = onScreen({600, 20, 601, 21});
    EXPECT_EQ(all->hit(empty.left, empty.top)->role(), ROLE_SYSTEM_CLIENT);
    const PixelRect outside = onScreen({700, 20, 701, 21});
    EXPECT_EQ(all->hit(outside.left, outside.top), nullptr);
}

TEST_F(AccessibleTree, AnObjectTakesFocusAndSelectionAndIsMovedByTheArrowKeys) {
    const auto all = whole();
    const auto tool = all->at(1);
    ASSERT_EQ((*tool)->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, child(0)), S_OK);
    EXPECT_TRUE(first_.HasFocus());
    EXPECT_EQ(tool->state(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE |
                                 STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED);
    ASSERT_TRUE(all->focus());
    EXPECT_EQ(all->focus()->name(), "Stencil 1");
    EXPECT_EQ(all->selection()->name(), "Stencil 1");
    EXPECT_EQ(all->at(2)->focus(), nullptr);
    const auto grip = tool->at(1);
    const PixelRect place = grip->place();
    SendMessageW(window(), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(tool->value(), "X = 250  Y = 149");
    EXPECT_EQ(grip->value(), "X = 250  Y = 149");
    EXPECT_EQ(grip->place().left, place.left + 1);
    EXPECT_EQ((*tool)->accSelect(SELFLAG_ADDSELECTION, child(0)), E_INVALIDARG);
    EXPECT_EQ((*tool)->accSelect(SELFLAG_TAKEFOCUS, child(1)), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessibleTree, LeavesHiddenToolsOut) {
    const auto held = whole()->at(1);
    sheet_.window().sheet().setVisible(first_, false);
    EXPECT_EQ(whole()->children(), 1);
    EXPECT_EQ(whole()->at(1)->name(), "Stencil 2");
    EXPECT_EQ(held->answer(), CO_E_OBJNOTCONNECTED);
    sheet_.window().sheet().setVisible(first_, true);
    EXPECT_EQ(held->answer(), S_OK);
}

TEST_F(AccessibleTree, AnObjectOutlivesItsTool) {
    const auto all = whole();
    const auto tool = all->at(2);
    const auto grip = tool->at(1);
    sheet_.window().sheet().RemoveControl(second_);
    EXPECT_EQ(tool->answer(), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(grip->answer(), CO_E_OBJNOTCONNECTED);
    long count = 0;
    EXPECT_EQ((*tool)->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ((*tool)->accSelect(SELFLAG_TAKEFOCUS, child(0)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(tool->hit(0, 0), nullptr);
    EXPECT_EQ(all->children(), 1);
    // Another one in its place is another one.
    sheet_.addStencil(secondRect, 0, plain::black);
    EXPECT_EQ(tool->answer(), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(all->at(2)->name(), "Stencil 2");
}

TEST_F(AccessibleTree, AnObjectOutlivesItsWindow) {
    std::unique_ptr<Met> all;
    std::unique_ptr<Met> tool;
    {
        TestSheet other({300, 200});
        other.addStencil({20, 20, 100, 100}, 0, plain::black);
        all = meet(other.window().handle());
        tool = all->at(1);
        EXPECT_EQ(tool->answer(), S_OK);
    }
    EXPECT_EQ(all->answer(), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(tool->answer(), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessibleTree, AQuestionOfAnotherProgramIsNotFollowed) {
    // No pointer of this program.
    constexpr LPARAM anything = 0x10;
    EXPECT_EQ(SendMessageW(window(), accessiblePartsMessage, 0, anything), 0);
    EXPECT_EQ(SendMessageW(window(), accessibleFactsMessage, 0, anything), 0);
    EXPECT_NE(IsWindow(window()), FALSE);
}

TEST_F(AccessibleTree, AnswersOnAnyThread) {
    const auto tool = whole()->at(2);
    std::atomic<bool> told = false;
    std::string name;
    std::thread asking([&] {
        name = tool->name();
        told = true;
    });
    EXPECT_TRUE(test::waitUntil([&] { return told.load(); }));
    asking.join();
    EXPECT_EQ(name, "Stencil 2");
}

/// An event that a screen reader hears.
struct Heard {
    DWORD event;
    /// What it finds by the event's numbers, if it is told of a tool that is there.
    std::string name;

    bool operator==(const Heard&) const = default;
};

class AccessibleEvents : public AccessibleTree {
  protected:
    AccessibleEvents() {
        heard().clear();
        hook_ = SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_VALUECHANGE, nullptr,
                                &AccessibleEvents::hear, GetCurrentProcessId(), 0,
                                WINEVENT_OUTOFCONTEXT);
        EXPECT_NE(hook_, nullptr);
        // All that has happened until now is told with the first news.
        first_.keyDown(key::right, 0);
        EXPECT_TRUE(hears({EVENT_OBJECT_SHOW, "Stencil 2"}));
        forget();
    }
    ~AccessibleEvents() override { UnhookWinEvent(hook_); }

    static bool hears(const Heard& wanted) {
        return test::waitUntil([&] { return count(wanted) > 0; });
    }
    [[nodiscard]] static int count(const Heard& wanted) {
        return static_cast<int>(std::ranges::count(heard(), wanted));
    }
    static void forget() { heard().clear(); }

  private:
    static std::vector<Heard>& heard() {
        static std::vector<Heard> events;
        return events;
    }
    static void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG part,
                              DWORD, DWORD) {
        if (object != OBJID_CLIENT || part == CHILDID_SELF) {
            return;
        }
        IAccessible* found = nullptr;
        VARIANT which{};
        std::string name;
        if (AccessibleObjectFromEvent(window, static_cast<DWORD>(object), static_cast<DWORD>(part),
                                      &found, &which) == S_OK) {
            name = Met(found, which.lVal).name();
        }
        heard().push_back({event, name});
    }

    HWINEVENTHOOK hook_ = nullptr;
};

TEST_F(AccessibleEvents, TellTheFocusAndWhatTheArrowKeysDo) {
    const auto tool = whole()->at(2);
    ASSERT_EQ((*tool)->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, child(0)), S_OK);
    EXPECT_TRUE(hears({EVENT_OBJECT_FOCUS, "Stencil 2"}));
    EXPECT_EQ(count({EVENT_OBJECT_SELECTION, "Stencil 2"}), 1);
    forget();
    SendMessageW(window(), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_TRUE(hears({EVENT_OBJECT_VALUECHANGE, "Stencil 2"}));
    EXPECT_EQ(count({EVENT_OBJECT_LOCATIONCHANGE, "Stencil 2"}), 1);
    EXPECT_EQ(count({EVENT_OBJECT_DESCRIPTIONCHANGE, "Stencil 2"}), 0);
    EXPECT_EQ(count({EVENT_OBJECT_VALUECHANGE, "Stencil 1"}), 0);
    forget();
    SendMessageW(window(), WM_KEYDOWN, VK_PRIOR, 0);
    EXPECT_TRUE(hears({EVENT_OBJECT_DESCRIPTIONCHANGE, "Stencil 2"}));
}

TEST_F(AccessibleEvents, TellADragOnceAtItsEnd) {
    const Point grip = first_.grips()[indexOfStencilGrip(StencilGripKind::move, 0)].center();
    const auto x = static_cast<int>(grip.x);
    const auto y = static_cast<int>(grip.y);
    sheet_.mouse(WM_MOUSEMOVE, 0, x, y);
    sheet_.mouse(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
    EXPECT_TRUE(hears({EVENT_OBJECT_FOCUS, "Stencil 1"}));
    for (int step = 1; step <= 20; ++step) {
        sheet_.mouse(WM_MOUSEMOVE, MK_LBUTTON, x + step, y);
        test::pause(test::milliseconds{1});
    }
    EXPECT_EQ(count({EVENT_OBJECT_VALUECHANGE, "Stencil 1"}), 0);
    sheet_.mouse(WM_LBUTTONUP, 0, x + 20, y);
    EXPECT_TRUE(hears({EVENT_OBJECT_VALUECHANGE, "Stencil 1"}));
    // What comes after it is told after it.
    second_.keyDown(key::left, 0);
    EXPECT_TRUE(hears({EVENT_OBJECT_VALUECHANGE, "Stencil 2"}));
    EXPECT_EQ(count({EVENT_OBJECT_VALUECHANGE, "Stencil 1"}), 1);
}

TEST_F(AccessibleEvents, TellOfToolsThatComeAndGo) {
    sheet_.addStencil({10, 10, 60, 60}, 0, plain::black);
    EXPECT_TRUE(hears({EVENT_OBJECT_SHOW, "Stencil 3"}));
    EXPECT_EQ(count({EVENT_OBJECT_CREATE, "Stencil 3"}), 1);
    forget();
    sheet_.window().sheet().RemoveControl(second_);
    EXPECT_TRUE(hears({EVENT_OBJECT_NAMECHANGE, "Stencil 2"}));
    // Nobody finds the tool any more.
    EXPECT_EQ(count({EVENT_OBJECT_HIDE, {}}), 1);
    EXPECT_EQ(count({EVENT_OBJECT_DESTROY, {}}), 1);
}

}  // namespace
}  // namespace ormala
