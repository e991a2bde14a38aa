#pragma once

#include <windows.h>

#include <oleacc.h>

#include <atomic>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace ormala {

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
    /// One more reference to the same, for someone else.
    [[nodiscard]] T* shared() const {
        pointer_->AddRef();
        return pointer_;
    }

  private:
    T* pointer_;
};

/// Null for an empty text. Whoever gets it frees it.
BSTR newText(const std::string& text);

/// What an answer is worth that could not be made for want of memory; no exception may reach COM.
template <typename Answer>
HRESULT answered(Answer&& answer) noexcept {
    try {
        return std::forward<Answer>(answer)();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

// COM objects are destroyed by their last release and never through a base; the system's interfaces
// have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// What all accessible objects have in common, beside the system's own object for their window. It
/// owns itself until its references, which COM counts, are used up.
class ComAccessible : public IAccessible {
  public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return plain_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return plain_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override {
        return plain_->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* argument) override;

  protected:
    /// Takes the reference to the system's object.
    explicit ComAccessible(IAccessible* plain) : plain_(plain) {}

    /// With one reference, which is the caller's.
    template <typename Object>
    static IAccessible* owned(std::shared_ptr<Object> made) {
        ComAccessible& base = *made;
        base.self_ = std::move(made);
        return &base;
    }
    [[nodiscard]] const ComPointer<IAccessible>& plain() const { return plain_; }

  private:
    ComPointer<IAccessible> plain_;
    std::atomic<ULONG> references_ = 1;
    std::shared_ptr<void> self_;
};

#pragma GCC diagnostic pop

/// Whether WM_GETOBJECT with this parameter asks for the client area.
bool asksForClient(LPARAM lParam);
/// The system's own object for a client area, with a reference for the caller; null without the
/// library for it.
IAccessible* plainAccessible(HWND window);
/// The answer to WM_GETOBJECT: the object for whoever asked.
LRESULT handOver(WPARAM wParam, IAccessible& object);

}  // namespace ormala
