#include "base/win/systemMessage.h"

#include <windows.h>

#include <memory>

#include "base/Utf8.h"

namespace ormala {

std::string systemMessage(unsigned long error) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(text, &LocalFree);
    const std::string description = utf8FromUtf16(std::u16string(text, text + length));
    return description.substr(0, description.find_last_not_of("\r\n ") + 1);
}

}  // namespace ormala
