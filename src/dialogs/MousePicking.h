#pragma once

#include <string>

#include "modAPI/PixelRect.h"

namespace ormala {

/// What the left button does to a control on which the user picks something: it goes down, moves
/// and comes up again. A double click comes between its second press and the release that ends it,
/// and is told by that release. Places are pixels of the control.
class MousePicking {
  public:
    virtual ~MousePicking() = default;

    virtual void press(PixelPoint point) = 0;
    virtual void move(PixelPoint /*point*/) {}
    virtual void doubleClick() = 0;
    /// May end with the control destroyed.
    virtual void release(PixelPoint point) = 0;
    /// The button is lost without a release.
    virtual void cancel() = 0;

    /// What is picked, as screen readers are told of it.
    [[nodiscard]] virtual std::string valueText() const = 0;
};

}  // namespace ormala
