#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "storage/MessagePresenter.h"

namespace ormala {

/// Message boxes above all other windows.
class WindowsMessagePresenter : public MessagePresenter {
  public:
    explicit WindowsMessagePresenter(std::string title) : title_(std::move(title)) {}
    /// Their title is the caption that the window has at the time.
    explicit WindowsMessagePresenter(HWND window) : window_(window) {}

    void showError(const std::string& text) override;

  private:
    friend class QuietMessages;
    [[nodiscard]] std::wstring title() const;

    std::string title_;
    HWND window_ = nullptr;
    bool quiet_ = false;
};

/// For its lifetime a presenter shows nothing, if so wished.
class QuietMessages {
  public:
    QuietMessages(WindowsMessagePresenter& presenter, bool quiet)
        : presenter_(presenter), former_(std::exchange(presenter.quiet_, quiet)) {}
    ~QuietMessages() { presenter_.quiet_ = former_; }
    QuietMessages(const QuietMessages&) = delete;
    QuietMessages& operator=(const QuietMessages&) = delete;

  private:
    WindowsMessagePresenter& presenter_;
    bool former_;
};

}  // namespace ormala
