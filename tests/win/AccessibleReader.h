#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

namespace ormala {

/// A control as a screen reader meets it.
class AccessibleReader {
  public:
    explicit AccessibleReader(HWND window);
    AccessibleReader(const AccessibleReader&) = delete;
    AccessibleReader& operator=(const AccessibleReader&) = delete;
    ~AccessibleReader();

    [[nodiscard]] bool found() const { return object_ != nullptr; }
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string shortcut() const;
    [[nodiscard]] long role() const;
    [[nodiscard]] long state() const;
    [[nodiscard]] HRESULT act() const { return object_->accDoDefaultAction(self_); }

  private:
    IAccessible* object_ = nullptr;
    VARIANT self_{};
};

}  // namespace ormala
