#include "platform/win/callbackGuard.h"

#include <windows.h>

#include <exception>

namespace ormala {

namespace {

constexpr int failureCode = 1;

std::exception_ptr& keptFailure() {
    thread_local std::exception_ptr kept;
    return kept;
}

}  // namespace

void keepFailure() noexcept {
    if (keptFailure() == nullptr) {
        keptFailure() = std::current_exception();
    }
    PostQuitMessage(failureCode);
}

void throwKeptFailure() {
    if (const auto kept = std::exchange(keptFailure(), nullptr)) {
        // A message about the failure would be over as soon as it is shown.
        MSG message{};
        while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE) {
        }
        std::rethrow_exception(kept);
    }
}

}  // namespace ormala
