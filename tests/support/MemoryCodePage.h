#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "base/Utf8.h"
#include "storage/CodePage.h"

namespace ormala {

/// The code page whose bytes are the first 256 characters of Unicode.
class MemoryCodePage : public CodePage {
  public:
    std::string bytesFromUtf8(std::string_view text) const override {
        if (isPlain(text)) {
            return std::string(text);
        }
        std::string bytes;
        for (const char16_t c : utf16FromUtf8(text)) {
            bytes += c < 0x100 ? static_cast<char>(c) : '?';
        }
        return bytes;
    }

    std::string utf8FromBytes(std::string_view bytes) const override {
        if (isPlain(bytes)) {
            return std::string(bytes);
        }
        std::u16string text;
        for (const char byte : bytes) {
            text += static_cast<unsigned char>(byte);
        }
        return utf8FromUtf16(text);
    }

  private:
    /// Nearly all text is, which saves a fuzzer much of its time.
    static bool isPlain(std::string_view text) {
        return std::ranges::all_of(text,
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    }
};

}  // namespace ormala
