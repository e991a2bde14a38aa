#include "platform/win/AccessibleTree.h"

#include <array>
#include <functional>

#include "platform/win/ComAccessible.h"

namespace ormala {

namespace {

using PartsQuestion = std::function<void(AccessibleParts&)>;
using TextQuestion = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

VARIANT childNumber(int number) {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

std::optional<PartStep> stepOf(long direction) {
    switch (direction) {
        case NAVDIR_NEXT:
            return PartStep::next;
        case NAVDIR_PREVIOUS:
            return PartStep::previous;
        case NAVDIR_FIRSTCHILD:
            return PartStep::firstChild;
        case NAVDIR_LASTCHILD:
            return PartStep::lastChild;
        default:
            return std::nullopt;
    }
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// A window with parts, or one of its tools. Of the window as a whole the system's own object tells
/// all but what concerns the parts.
class AccessibleNode final : public ComAccessible {
  public:
    AccessibleNode(HWND window, int tool, IAccessible* plain, IAccessible* parent)
        : ComAccessible(plain), window_(window), tool_(tool), parent_(parent) {}

    static IAccessible* make(HWND window, IAccessible* plain) {
        return owned(std::make_shared<AccessibleNode>(window, 0, plain, nullptr));
    }

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return text(child, &AccessiblePart::name, &IAccessible::get_accName, name);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return text(child, &AccessiblePart::value, &IAccessible::get_accValue, value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override {
        return text(child, &AccessiblePart::description, &IAccessible::get_accDescription,
                    description);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override;

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(long* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accFocus(VARIANT* child) override {
        return toolWhich(&AccessibleParts::focusedTool, &IAccessible::get_accFocus, child);
    }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return toolWhich(&AccessibleParts::selectedTool, nullptr, children);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override;

    // Tools and grips have none of these.
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        return text(child, nullptr, &IAccessible::get_accHelp, help);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return isWhole(child) ? plain()->get_accHelpTopic(file, child, topic)
                              : DISP_E_MEMBERNOTFOUND;
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return text(child, nullptr, &IAccessible::get_accKeyboardShortcut, shortcut);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return text(child, nullptr, &IAccessible::get_accDefaultAction, action);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        return isWhole(child) ? plain()->accDoDefaultAction(child) : DISP_E_MEMBERNOTFOUND;
    }
    STDMETHODIMP put_accName(VARIANT /*child*/, BSTR /*name*/) override {
        return DISP_E_MEMBERNOTFOUND;
    }
    STDMETHODIMP put_accValue(VARIANT /*child*/, BSTR /*value*/) override {
        return DISP_E_MEMBERNOTFOUND;
    }

  private:
    struct Found {
        PartId id;
        AccessiblePart part;
    };
    using ToolQuestion = int (AccessibleParts::*)() const;
    using ChildQuestion = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT*);

    /// Asks on the window's thread. An error if window or tool are gone, else what `question`
    /// answers.
    HRESULT ask(const std::function<HRESULT(AccessibleParts&)>& question) const;
    HRESULT find(const VARIANT& child, Found& found) const;
    HRESULT text(const VARIANT& child, std::string AccessiblePart::*member, TextQuestion plainly,
                 BSTR* answer);
    HRESULT toolWhich(ToolQuestion question, ChildQuestion plainly, VARIANT* child);
    HRESULT take(AccessibleParts& parts, int tool, bool focus) const;
    /// A tool as an object, itself or a grip as a number; both as an answer.
    HRESULT give(PartId part, VARIANT* child);
    [[nodiscard]] bool isWhole(const VARIANT& child) const {
        return tool_ == 0 && child.vt == VT_I4 && child.lVal == CHILDID_SELF;
    }
    [[nodiscard]] PartId self() const { return {tool_, 0}; }
    [[nodiscard]] IAccessible* newTool(int tool) {
        IAccessible* const whole = tool_ == 0 ? this : parent_.get();
        whole->AddRef();
        return owned(std::make_shared<AccessibleNode>(window_, tool, plain().shared(), whole));
    }

    HWND window_;
    int tool_;
    /// The object of the window; null for itself.
    ComPointer<IAccessible> parent_;
};

#pragma GCC diagnostic pop

HRESULT AccessibleNode::ask(const std::function<HRESULT(AccessibleParts&)>& question) const {
    return answered([&] {
        HRESULT result = CO_E_OBJNOTCONNECTED;
        const PartsQuestion asked = [&](AccessibleParts& parts) {
            if (tool_ == 0 || childOf(parts, {}, -tool_)) {
                result = question(parts);
            }
        };
        const OwnQuestion sent(&asked);
        SendMessageW(window_, accessiblePartsMessage, 0, sent.parameter());
        return result;
    });
}

HRESULT AccessibleNode::find(const VARIANT& child, Found& found) const {
    if (child.vt != VT_I4) {
        return E_INVALIDARG;
    }
    return ask([&](AccessibleParts& parts) {
        const auto id = childOf(parts, self(), child.lVal);
        found.id = id.value_or(PartId{});
        found.part = parts.part(found.id).value_or(AccessiblePart{});
        return id ? S_OK : E_INVALIDARG;
    });
}

HRESULT AccessibleNode::text(const VARIANT& child, std::string AccessiblePart::*member,
                             TextQuestion plainly, BSTR* answer) {
    *answer = nullptr;
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK) {
        return result;
    }
    if (found.id == PartId{}) {
        return (plain().get()->*plainly)(child, answer);
    }
    if (member == nullptr) {
        return DISP_E_MEMBERNOTFOUND;
    }
    return answered([&] {
        *answer = newText(found.part.*member);
        return *answer != nullptr ? S_OK : S_FALSE;
    });
}

STDMETHODIMP AccessibleNode::get_accRole(VARIANT child, VARIANT* role) {
    *role = {};
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK || found.id == PartId{}) {
        return result != S_OK ? result : plain()->get_accRole(child, role);
    }
    *role = childNumber(found.id.grip == 0 ? ROLE_SYSTEM_GROUPING : ROLE_SYSTEM_GRIP);
    return S_OK;
}

STDMETHODIMP AccessibleNode::get_accState(VARIANT child, VARIANT* state) {
    *state = {};
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK || found.id == PartId{}) {
        return result != S_OK ? result : plain()->get_accState(child, state);
    }
    const AccessiblePart& part = found.part;
    RECT client{};
    GetClientRect(window_, &client);
    const bool inSight = part.place.meets({0, 0, client.right, client.bottom});
    const std::array<std::pair<bool, int>, 6> states{{
        {part.focusable, STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE},
        {part.focused, STATE_SYSTEM_FOCUSED},
        {part.selected, STATE_SYSTEM_SELECTED},
        {part.pressed, STATE_SYSTEM_PRESSED},
        {!inSight, STATE_SYSTEM_OFFSCREEN},
        {IsWindowVisible(window_) == FALSE, STATE_SYSTEM_INVISIBLE},
    }};
    int all = 0;
    for (const auto& [is, bits] : states) {
        all |= is ? bits : 0;
    }
    *state = childNumber(all);
    return S_OK;
}

STDMETHODIMP AccessibleNode::accLocation(long* left, long* top, long* width, long* height,
                                         VARIANT child) {
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK || found.id == PartId{}) {
        return result != S_OK ? result : plain()->accLocation(left, top, width, height, child);
    }
    POINT corner{found.part.place.left, found.part.place.top};
    ClientToScreen(window_, &corner);
    *left = corner.x;
    *top = corner.y;
    *width = found.part.place.width();
    *height = found.part.place.height();
    return S_OK;
}

STDMETHODIMP AccessibleNode::get_accParent(IDispatch** parent) {
    *parent = nullptr;
    if (tool_ == 0) {
        return plain()->get_accParent(parent);
    }
    *parent = parent_.shared();
    return S_OK;
}

STDMETHODIMP AccessibleNode::get_accChildCount(long* count) {
    *count = 0;
    return ask([&](AccessibleParts& parts) {
        const auto part = parts.part(self());
        *count = part ? part->parts : static_cast<long>(parts.tools().size());
        return S_OK;
    });
}

STDMETHODIMP AccessibleNode::get_accChild(VARIANT child, IDispatch** object) {
    *object = nullptr;
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK) {
        return result;
    }
    if (found.id.grip != 0) {
        return S_FALSE;
    }
    VARIANT given{};
    const HRESULT made = give(found.id, &given);
    if (given.vt == VT_DISPATCH) {
        *object = given.pdispVal;
    } else if (made == S_OK) {
        AddRef();
        *object = this;
    }
    return made;
}

HRESULT AccessibleNode::give(PartId part, VARIANT* child) {
    return answered([&] {
        if (part.tool == tool_) {
            *child = childNumber(part.grip);
        } else {
            child->pdispVal = newTool(part.tool);
            child->vt = VT_DISPATCH;
        }
        return S_OK;
    });
}

HRESULT AccessibleNode::toolWhich(ToolQuestion question, ChildQuestion plainly, VARIANT* child) {
    *child = {};
    int tool = 0;
    const HRESULT result = ask([&](AccessibleParts& parts) {
        tool = (parts.*question)();
        return S_OK;
    });
    if (result != S_OK) {
        return result;
    }
    if (tool != 0 && (tool_ == 0 || tool == tool_)) {
        return give({tool, 0}, child);
    }
    return tool_ == 0 && plainly != nullptr ? (plain().get()->*plainly)(child) : S_FALSE;
}

STDMETHODIMP AccessibleNode::accSelect(long flags, VARIANT child) {
    if (isWhole(child)) {
        return plain()->accSelect(flags, child);
    }
    constexpr long known = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
    if (flags == 0 || (flags & ~known) != 0) {
        return E_INVALIDARG;
    }
    Found found;
    const HRESULT result = find(child, found);
    if (result != S_OK || found.id.grip != 0) {
        return result != S_OK ? result : DISP_E_MEMBERNOTFOUND;
    }
    return ask([&](AccessibleParts& parts) {
        return take(parts, found.id.tool, (flags & SELFLAG_TAKEFOCUS) != 0);
    });
}

HRESULT AccessibleNode::take(AccessibleParts& parts, int tool, bool focus) const {
    if (IsWindowVisible(window_) == FALSE || IsWindowEnabled(window_) == FALSE) {
        return S_FALSE;
    }
    if (focus) {
        SetFocus(window_);
    }
    return parts.choose(tool, focus) ? S_OK : S_FALSE;
}

STDMETHODIMP AccessibleNode::accNavigate(long direction, VARIANT start, VARIANT* end) {
    *end = {};
    const bool beside = direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD;
    if (isWhole(start) && beside) {
        return plain()->accNavigate(direction, start, end);
    }
    Found found;
    const HRESULT result = find(start, found);
    const auto step = stepOf(direction);
    if (result != S_OK || !step) {
        return result != S_OK ? result : DISP_E_MEMBERNOTFOUND;
    }
    std::optional<PartId> reached;
    ask([&](AccessibleParts& parts) {
        reached = neighbourOf(parts, found.id, *step);
        return S_OK;
    });
    return reached ? give(*reached, end) : S_FALSE;
}

STDMETHODIMP AccessibleNode::accHitTest(long x, long y, VARIANT* child) {
    *child = {};
    POINT point{x, y};
    RECT client{};
    ScreenToClient(window_, &point);
    GetClientRect(window_, &client);
    const PixelPoint at{static_cast<int>(point.x), static_cast<int>(point.y)};
    std::optional<PartId> hit;
    const HRESULT result = ask([&](AccessibleParts& parts) {
        const PartId foremost = parts.partAt(at);
        const auto own = parts.part(self());
        const bool mine = tool_ == 0 || foremost.tool == tool_;
        if (PtInRect(&client, point) != FALSE && (mine || (own && own->place.contains(at)))) {
            hit = mine ? foremost : self();
        }
        return S_OK;
    });
    if (result != S_OK || !hit) {
        return result != S_OK ? result : S_FALSE;
    }
    // A grip is for its tool to tell.
    return give(tool_ == 0 ? PartId{hit->tool, 0} : *hit, child);
}

}  // namespace

LRESULT answerPartsQuestion(AccessibleParts& parts, LPARAM lParam) {
    (*reinterpret_cast<const PartsQuestion*>(lParam))(parts);
    return TRUE;
}

std::optional<LRESULT> answerAccessibleTree(HWND window, WPARAM wParam, LPARAM lParam) {
    IAccessible* const plain = asksForClient(lParam) ? plainAccessible(window) : nullptr;
    if (plain == nullptr) {
        return std::nullopt;
    }
    const ComPointer<IAccessible> whole(AccessibleNode::make(window, plain));
    return handOver(wParam, *whole.get());
}

}  // namespace ormala
