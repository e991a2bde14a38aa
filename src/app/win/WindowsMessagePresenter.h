#pragma once

#include <string>

#include "storage/MessagePresenter.h"

namespace ormala {

/// Message boxes with the program's title, above all other windows.
class WindowsMessagePresenter : public MessagePresenter {
  public:
    void showError(const std::string& text) override;
};

}  // namespace ormala
