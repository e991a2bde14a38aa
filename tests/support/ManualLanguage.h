#pragma once

#include "language/MlStringModule.h"

namespace ormala {

/// Sets a language for one test and puts the former one back.
class ManualLanguage {
  public:
    explicit ManualLanguage(int language) { CurrentLanguage() = language; }
    ~ManualLanguage() { CurrentLanguage() = former_; }
    ManualLanguage(const ManualLanguage&) = delete;
    ManualLanguage& operator=(const ManualLanguage&) = delete;

  private:
    int former_ = CurrentLanguage();
};

}  // namespace ormala
