#pragma once

#include "storage/CodePage.h"

namespace ormala {

/// The system's 8-bit code page.
class WindowsCodePage : public CodePage {
  public:
    std::string bytesFromUtf8(std::string_view text) const override;
    std::string utf8FromBytes(std::string_view bytes) const override;
};

}  // namespace ormala
