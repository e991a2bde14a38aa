#include "platform/win/Accessible.h"

#include <oleacc.h>

#include <memory>
#include <optional>

#include "platform/win/ComAccessible.h"

namespace ormala {

namespace {

// COM objects are destroyed by their last release and never through a base; the system's interfaces
// have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The system's own object for a client area, with the control's facts laid over it.
class AccessibleControl final : public ComAccessible {
  public:
    AccessibleControl(HWND window, IAccessible* plain) : ComAccessible(plain), window_(window) {}

    /// With one reference, which is the caller's.
    static IAccessible* make(HWND window, IAccessible* plain) {
        return owned(std::make_shared<AccessibleControl>(window, plain));
    }

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return give(child, &AccessibleFacts::name, name);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return give(child, &AccessibleFacts::value, value);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return give(child, &AccessibleFacts::shortcut, shortcut);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return give(child, &AccessibleFacts::action, action);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        const auto known = facts(child);
        if (!known) {
            return plain()->get_accRole(child, role);
        }
        role->vt = VT_I4;
        role->lVal = known->role;
        return S_OK;
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        const HRESULT result = plain()->get_accState(child, state);
        if (const auto known = facts(child); known && SUCCEEDED(result)) {
            state->lVal |= known->state;
        }
        return result;
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        const auto known = facts(child);
        if (!known || known->actionMessage == 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        // Not sent: the action may open a dialog, and the caller must not wait for its end.
        return PostMessageW(window_, known->actionMessage, 0, 0) != FALSE ? S_OK : E_FAIL;
    }

    STDMETHODIMP get_accParent(IDispatch** parent) override {
        return plain()->get_accParent(parent);
    }
    STDMETHODIMP get_accChildCount(long* count) override {
        return plain()->get_accChildCount(count);
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        return plain()->get_accChild(child, object);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
        return plain()->get_accDescription(child, text);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) override {
        return plain()->get_accHelp(child, text);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return plain()->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return plain()->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return plain()->get_accSelection(children);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) override {
        return plain()->accSelect(flags, child);
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override {
        return plain()->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override {
        return plain()->accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override {
        return plain()->accHitTest(x, y, child);
    }
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
        return plain()->put_accName(child, name);
    }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return plain()->put_accValue(child, value);
    }

  private:
    /// Nothing for a child of the control, and nothing once the window is gone.
    [[nodiscard]] std::optional<AccessibleFacts> facts(const VARIANT& child) const {
        AccessibleFacts asked;
        const OwnQuestion question(&asked);
        if (child.vt == VT_I4 && child.lVal == CHILDID_SELF &&
            SendMessageW(window_, accessibleFactsMessage, 0, question.parameter()) == TRUE) {
            return asked;
        }
        return std::nullopt;
    }
    HRESULT give(const VARIANT& child, std::string AccessibleFacts::*member, BSTR* text) const {
        const auto known = facts(child);
        *text = known ? newText((*known).*member) : nullptr;
        return *text != nullptr ? S_OK : S_FALSE;
    }

    HWND window_;
};

#pragma GCC diagnostic pop

}  // namespace

AccessibleFacts& wantedFacts(LPARAM lParam) {
    return *reinterpret_cast<AccessibleFacts*>(lParam);
}

AccessibleThread::AccessibleThread()
    : ready_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

AccessibleThread::~AccessibleThread() {
    if (ready_) {
        CoUninitialize();
    }
}

std::optional<LRESULT> answerAccessible(HWND window, WPARAM wParam, LPARAM lParam) {
    if (!asksForClient(lParam)) {
        return std::nullopt;
    }
    IAccessible* const plain = plainAccessible(window);
    if (plain == nullptr) {
        return std::nullopt;
    }
    const ComPointer<IAccessible> control(AccessibleControl::make(window, plain));
    return handOver(wParam, *control.get());
}

}  // namespace ormala
