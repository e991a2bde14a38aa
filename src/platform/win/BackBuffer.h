#pragma once

#include <cstdint>

#include "modAPI/PixelRect.h"
#include "platform/win/handles.h"
#include "scene/PixelView.h"

namespace ormala {

/// A bitmap of the screen's format with a device context of its own, to paint on out of sight.
class BackBuffer {
  public:
    BackBuffer() = default;
    BackBuffer(BackBuffer&&) = default;
    BackBuffer& operator=(BackBuffer&&) = default;
    ~BackBuffer() { context_.reset(); }

    /// Gives it that size; the content is lost when the size changes. A bitmap that is a little too
    /// large is kept, so that a window that is being sized needs no new one each time. False if the
    /// system has no memory for it, in which case the buffer is empty.
    bool resize(PixelSize size);

    [[nodiscard]] HDC context() const { return context_.get(); }
    [[nodiscard]] PixelSize size() const { return size_; }
    /// The pixels themselves, once all that was drawn before has arrived; good until the next
    /// change of size.
    [[nodiscard]] PixelView view() const;

  private:
    /// Lets go of the bitmap first, which cannot be destroyed while it is selected.
    ContextHandle context_;
    BitmapHandle bitmap_;
    std::uint32_t* pixels_ = nullptr;
    PixelSize size_;
    PixelSize room_;
};

}  // namespace ormala
