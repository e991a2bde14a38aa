#include "storage/win/timeText.h"

#include <array>
#include <cstdio>

namespace ormala {

std::string timeText(const SYSTEMTIME& time) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.wYear,
                  time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond);
    return text.data();
}

std::string presentTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return timeText(now);
}

}  // namespace ormala
