#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// The 8-bit character set of settings files. Characters without a counterpart become a similar one
/// or "?" on their way to bytes; no input is a failure.
class CodePage {
  public:
    virtual ~CodePage() = default;

    virtual std::string bytesFromUtf8(std::string_view text) const = 0;
    virtual std::string utf8FromBytes(std::string_view bytes) const = 0;
};

}  // namespace ormala
