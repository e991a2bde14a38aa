#pragma once

#include <windows.h>

#include <string>

#include "storage/MessagePresenter.h"

namespace ormala {

/// Message boxes above all other windows.
class WindowsMessagePresenter : public MessagePresenter {
  public:
    /// Their title is the program's.
    WindowsMessagePresenter() = default;
    /// Their title is the caption that the window has at the time.
    explicit WindowsMessagePresenter(HWND window) : window_(window) {}

    void showError(const std::string& text) override;

  private:
    [[nodiscard]] std::wstring title() const;

    HWND window_ = nullptr;
};

}  // namespace ormala
