#include "platform/win/ComAccessible.h"

#include "platform/win/SystemLibrary.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

// The import library's own constant of that name is another number.
const IID accessibleInterface = __uuidof(IAccessible);

const SystemLibrary& accessibilityLibrary() {
    static const SystemLibrary accessibility(L"oleacc.dll");
    return accessibility;
}

}  // namespace

BSTR newText(const std::string& text) {
    return text.empty() ? nullptr : SysAllocString(wide(text).c_str());
}

STDMETHODIMP ComAccessible::QueryInterface(REFIID id, void** object) {
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
        IsEqualIID(id, accessibleInterface)) {
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) ComAccessible::Release() {
    const ULONG left = --references_;
    const auto last = left == 0 ? std::move(self_) : nullptr;
    return left;
}

STDMETHODIMP ComAccessible::Invoke(DISPID member, REFIID /*id*/, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argument) {
    ITypeInfo* described = nullptr;
    const HRESULT found = plain_->GetTypeInfo(0, locale, &described);
    if (FAILED(found)) {
        return found;
    }
    const ComPointer<ITypeInfo> info(described);
    // The description is the system's, the answers are this object's.
    return info->Invoke(static_cast<IAccessible*>(this), member, flags, parameters, result,
                        exception, argument);
}

bool asksForClient(LPARAM lParam) {
    // The number comes as 32 bits, whose sign may not have been carried on.
    return static_cast<LONG>(lParam) == static_cast<LONG>(OBJID_CLIENT);
}

IAccessible* plainAccessible(HWND window) {
    auto* const make = accessibilityLibrary().function<decltype(CreateStdAccessibleObject)>(
        "CreateStdAccessibleObject");
    void* plain = nullptr;
    const bool made =
        make != nullptr && SUCCEEDED(make(window, OBJID_CLIENT, accessibleInterface, &plain));
    return made ? static_cast<IAccessible*>(plain) : nullptr;
}

LRESULT handOver(WPARAM wParam, IAccessible& object) {
    auto* const give =
        accessibilityLibrary().function<decltype(LresultFromObject)>("LresultFromObject");
    return give != nullptr ? give(accessibleInterface, wParam, &object) : 0;
}

}  // namespace ormala
