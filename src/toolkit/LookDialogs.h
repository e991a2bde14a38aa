#pragma once

#include "modAPI/colors.h"

namespace ormala {

/// The dialogs in which the user chooses the look of a tool. They answer the present value if they
/// are cancelled.
class LookDialogs {
  public:
    virtual ~LookDialogs() = default;

    [[nodiscard]] virtual Color SelectColor(Color present) = 0;
    [[nodiscard]] virtual int SelectLineStyle(int present) = 0;
};

}  // namespace ormala
