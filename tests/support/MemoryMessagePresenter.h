#pragma once

#include <string>
#include <vector>

#include "storage/MessagePresenter.h"

namespace ormala {

/// Keeps the messages that a user would have seen.
class MemoryMessagePresenter : public MessagePresenter {
  public:
    std::vector<std::string> errors;

    void showError(const std::string& text) override { errors.push_back(text); }
};

}  // namespace ormala
