#include "app/win/shell/timeOfSaving.h"

#include <windows.h>

#include <cwchar>
#include <iterator>

#include "platform/win/text.h"

namespace ormala {

std::string timeOfSaving() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    wchar_t text[32];
    swprintf(text, std::size(text), L"%04d-%02d-%02d %02d:%02d:%02d", now.wYear, now.wMonth,
             now.wDay, now.wHour, now.wMinute, now.wSecond);
    return narrow(text);
}

}  // namespace ormala
