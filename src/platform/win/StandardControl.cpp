#include "platform/win/StandardControl.h"

#include <commctrl.h>

#include <system_error>

#include "platform/win/Accessible.h"
#include "platform/win/Window.h"
#include "platform/win/callbackGuard.h"
#include "platform/win/controlName.h"
#include "platform/win/darkControls.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

constexpr UINT_PTR subclassId = 1;

}  // namespace

void StandardControl::create(HWND parent, const ControlDesign& design) {
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(design.id));
    handle_ = CreateWindowExW(0, design.className, wide(design.text).c_str(),
                              design.style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, id,
                              GetModuleHandleW(nullptr), nullptr);
    if (handle_ == nullptr) {
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category(),
                                narrow(design.className));
    }
    setControlName(handle_, design.name);
    ownsTheme_ = true;
    darkenControl(handle_);
    attach(handle_);
}

void StandardControl::attach(HWND existing) {
    handle_ = existing;
    SetWindowSubclass(handle_, &StandardControl::dispatch, subclassId,
                      reinterpret_cast<DWORD_PTR>(this));
}

void StandardControl::destroy() {
    if (handle_ != nullptr) {
        const HWND handle = handle_;
        handle_ = nullptr;
        removeControlName(handle);
        RemoveWindowSubclass(handle, &StandardControl::dispatch, subclassId);
        DestroyWindow(handle);
    }
}

LRESULT CALLBACK StandardControl::dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR id, DWORD_PTR object) {
    auto& control = *reinterpret_cast<StandardControl*>(object);
    if (message == WM_NCDESTROY) {
        removeControlName(handle);
        RemoveWindowSubclass(handle, &StandardControl::dispatch, id);
        control.handle_ = nullptr;
        return DefSubclassProc(handle, message, wParam, lParam);
    }
    if (OwnQuestion::isForged(message, lParam)) {
        return 0;
    }
    const auto handled = [&] { return control.handleMessage(message, wParam, lParam); };
    if (const auto result = guarded(std::nullopt, handled)) {
        return *result;
    }
    return DefSubclassProc(handle, message, wParam, lParam);
}

std::optional<LRESULT> StandardControl::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (tip_ && isMouseMessage(message)) {
        tip_->relay(message, wParam, lParam);
    }
    if (message == WM_SYSCOLORCHANGE && ownsTheme_) {
        darkenControl(handle_);
    }
    if (const auto answer = accessibleMessage(message, wParam, lParam)) {
        return answer;
    }
    return onMessage(message, wParam, lParam);
}

std::optional<LRESULT> StandardControl::accessibleMessage(UINT message, WPARAM wParam,
                                                          LPARAM lParam) const {
    if (accessibleName_.empty()) {
        return std::nullopt;
    }
    if (message == WM_GETOBJECT) {
        return answerAccessible(handle_, wParam, lParam);
    }
    if (message == accessibleFactsMessage) {
        AccessibleFacts& facts = wantedFacts(lParam);
        facts.name = accessibleName_;
        facts.role = accessibleRole_;
        facts.value = text();
        return TRUE;
    }
    return std::nullopt;
}

std::optional<LRESULT> StandardControl::onMessage(UINT /*message*/, WPARAM /*wParam*/,
                                                  LPARAM /*lParam*/) {
    return std::nullopt;
}

LRESULT StandardControl::standardHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefSubclassProc(handle_, message, wParam, lParam);
}

std::string StandardControl::text() const {
    return textOf(handle_);
}

void StandardControl::setText(std::string_view text) {
    SetWindowTextW(handle_, wide(text).c_str());
}

void StandardControl::setAccessible(const std::string& name, long role) {
    accessibleName_ = name;
    accessibleRole_ = role;
}

void StandardControl::SetTooltip(const std::string& text) {
    if (!tip_) {
        tip_.emplace(handle_);
    }
    tip_->setText(text);
}

std::string textOf(HWND window) {
    const auto length = static_cast<std::size_t>(GetWindowTextLengthW(window));
    std::wstring text(length + 1, L'\0');
    const auto copied = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(copied));
    return narrow(text);
}

}  // namespace ormala
