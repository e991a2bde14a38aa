#pragma once

#include <type_traits>
#include <utility>

namespace ormala {

/// Keeps the exception that is being handled, unless one is kept already, and tells the message
/// loops of the thread to end. To be called in a catch clause.
void keepFailure() noexcept;

/// Throws what has been kept on this thread, once.
void throwKeptFailure();

/// Runs what the system calls back: an exception must not pass through the system's own code. What
/// the work throws is kept for the end of the message loop, and the result is the given one.
template <typename Work>
std::invoke_result_t<Work> guarded(std::invoke_result_t<Work> otherwise, Work&& work) noexcept {
    try {
        return std::forward<Work>(work)();
    } catch (...) {
        keepFailure();
        return otherwise;
    }
}

}  // namespace ormala
