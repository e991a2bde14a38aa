#include "platform/win/Accessible.h"

#include <oleacc.h>

#include <atomic>
#include <memory>
#include <optional>
#include <utility>

#include "platform/win/SystemLibrary.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

// The import library's own constant of that name is another number.
const IID accessibleInterface = __uuidof(IAccessible);

BSTR newText(const std::string& text) {
    return text.empty() ? nullptr : SysAllocString(wide(text).c_str());
}

/// An interface pointer that is released at the end.
template <typename T>
class ComPointer {
  public:
    explicit ComPointer(T* pointer) : pointer_(pointer) {}
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() {
        if (pointer_ != nullptr) {
            pointer_->Release();
        }
    }

    T* operator->() const { return pointer_; }
    [[nodiscard]] T* get() const { return pointer_; }

  private:
    T* pointer_;
};

// COM objects are destroyed by their last release and never through a base; the system's interfaces
// have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The system's own object for a client area, with the control's facts laid over it. It owns itself
/// until its references, which COM counts, are used up.
class AccessibleControl final : public IAccessible {
  public:
    AccessibleControl(HWND window, IAccessible* plain) : window_(window), plain_(plain) {}

    /// With one reference, which is the caller's.
    static IAccessible* make(HWND window, IAccessible* plain) {
        const auto made = std::make_shared<AccessibleControl>(window, plain);
        made->self_ = made;
        return made.get();
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
            IsEqualIID(id, accessibleInterface)) {
            *object = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        const auto last = left == 0 ? std::move(self_) : nullptr;
        return left;
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
            return plain_->get_accRole(child, role);
        }
        role->vt = VT_I4;
        role->lVal = known->role;
        return S_OK;
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        const HRESULT result = plain_->get_accState(child, state);
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
        return plain_->get_accParent(parent);
    }
    STDMETHODIMP get_accChildCount(long* count) override {
        return plain_->get_accChildCount(count);
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        return plain_->get_accChild(child, object);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
        return plain_->get_accDescription(child, text);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) override {
        return plain_->get_accHelp(child, text);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return plain_->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return plain_->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return plain_->get_accSelection(children);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) override {
        return plain_->accSelect(flags, child);
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override {
        return plain_->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override {
        return plain_->accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override {
        return plain_->accHitTest(x, y, child);
    }
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
        return plain_->put_accName(child, name);
    }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return plain_->put_accValue(child, value);
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return plain_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return plain_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override {
        return plain_->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
        return plain_->Invoke(member, id, locale, flags, parameters, result, exception, argument);
    }

  private:
    /// Nothing for a child of the control, and nothing once the window is gone.
    [[nodiscard]] std::optional<AccessibleFacts> facts(const VARIANT& child) const {
        AccessibleFacts asked;
        if (child.vt == VT_I4 && child.lVal == CHILDID_SELF &&
            SendMessageW(window_, accessibleFactsMessage, 0, reinterpret_cast<LPARAM>(&asked)) ==
                TRUE) {
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
    ComPointer<IAccessible> plain_;
    std::atomic<ULONG> references_ = 1;
    std::shared_ptr<AccessibleControl> self_;
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
    // The number comes as 32 bits, whose sign may not have been carried on.
    if (static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT)) {
        return std::nullopt;
    }
    static const SystemLibrary library(L"oleacc.dll");
    auto* const makeStandard =
        library.function<decltype(CreateStdAccessibleObject)>("CreateStdAccessibleObject");
    auto* const handOver = library.function<decltype(LresultFromObject)>("LresultFromObject");
    IAccessible* plain = nullptr;
    void** const receiver = reinterpret_cast<void**>(&plain);
    if (makeStandard == nullptr || handOver == nullptr ||
        FAILED(makeStandard(window, OBJID_CLIENT, accessibleInterface, receiver))) {
        return std::nullopt;
    }
    const ComPointer<IAccessible> control(AccessibleControl::make(window, plain));
    return handOver(accessibleInterface, wParam, control.get());
}

}  // namespace ormala
