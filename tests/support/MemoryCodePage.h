#pragma once

#include <string>
#include <string_view>

#include "base/Utf8.h"
#include "storage/CodePage.h"

namespace ormala {

/// The code page whose bytes are the first 256 characters of Unicode.
class MemoryCodePage : public CodePage {
  public:
    std::string bytesFromUtf8(std::string_view text) const override {
        std::string bytes;
        for (const char16_t c : utf16FromUtf8(text)) {
            bytes += c < 0x100 ? static_cast<char>(c) : '?';
        }
        return bytes;
    }

    std::string utf8FromBytes(std::string_view bytes) const override {
        std::u16string text;
        for (const char byte : bytes) {
            text += static_cast<unsigned char>(byte);
        }
        return utf8FromUtf16(text);
    }
};

}  // namespace ormala
