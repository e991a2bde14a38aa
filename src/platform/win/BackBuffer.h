#pragma once

#include "platform/win/handles.h"
#include "scene/PixelRect.h"

namespace ormala {

/// A bitmap of the screen's format with a device context of its own, to paint on out of sight.
class BackBuffer {
  public:
    /// Gives it that size; the content is lost when the size changes. A bitmap that is a little too
    /// large is kept, so that a window that is being sized needs no new one each time. False if the
    /// system has no memory for it, in which case the buffer is empty.
    bool resize(PixelSize size);

    [[nodiscard]] HDC context() const { return context_.get(); }
    [[nodiscard]] PixelSize size() const { return size_; }

  private:
    MemoryContext context_;
    BitmapHandle bitmap_;
    PixelSize size_;
    PixelSize room_;
};

}  // namespace ormala
