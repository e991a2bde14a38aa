#include "win/SwallowedFaults.h"

#include <windows.h>

#include <atomic>

namespace ormala::test {

namespace {

std::atomic<int> faults = 0;

bool isOwnCode(const void* address) {
    HMODULE module = nullptr;
    return GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                  GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                              static_cast<LPCWSTR>(address), &module) != FALSE &&
           module == GetModuleHandleW(nullptr);
}

LONG CALLBACK countFault(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && isOwnCode(record.ExceptionAddress)) {
        ++faults;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

SwallowedFaults::SwallowedFaults() {
    AddVectoredExceptionHandler(1, countFault);
}

void SwallowedFaults::OnTestStart(const testing::TestInfo& /*test*/) {
    faults = 0;
}

void SwallowedFaults::OnTestEnd(const testing::TestInfo& /*test*/) {
    EXPECT_EQ(faults, 0) << "the program has read or written where nothing is";
}

}  // namespace ormala::test
