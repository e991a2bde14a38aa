#include "platform/win/dayTime.h"

#include <windows.h>

namespace ormala {

float secondsSinceMidnight() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return static_cast<float>((now.wHour * 60 + now.wMinute) * 60 + now.wSecond) +
           static_cast<float>(now.wMilliseconds) / 1000;
}

}  // namespace ormala
