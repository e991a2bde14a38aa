#include "support/win/onlyUnderWine.h"

#include <windows.h>

namespace ormala::test {

bool runsUnderWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll"), "wine_get_version") != nullptr;
}

std::string withoutThose(const std::string& filter) {
    // What follows the first minus is left out, in as many parts as there are colons.
    std::string result = filter;
    char before = result.find('-') == std::string::npos ? '-' : ':';
    for (const OnlyUnderWine& each : onlyUnderWine) {
        result += before;
        result += each.tests;
        before = ':';
    }
    return result;
}

std::string filterForThisSystem(const std::string& filter) {
    return runsUnderWine() ? filter : withoutThose(filter);
}

}  // namespace ormala::test
