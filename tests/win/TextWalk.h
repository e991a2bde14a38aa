#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "modAPI/PixelRect.h"

namespace ormala {

/// A walk over a window and all that it shows, which finds texts that are cut off, controls that
/// stick out of their parents, and controls that lie over each other. The window itself may be
/// hidden.
class TextWalk {
  public:
    /// `dpi` is the resolution that the window is laid out for.
    TextWalk(HWND window, int dpi);

    /// Empty if all is well.
    [[nodiscard]] const std::vector<std::string>& complaints() const { return complaints_; }
    /// How many texts it has measured.
    [[nodiscard]] int texts() const { return texts_; }

  private:
    struct Child {
        HWND window;
        PixelRect box;
    };

    [[nodiscard]] static std::vector<Child> shownChildren(HWND parent);
    void visit(HWND parent);
    void lookAtTexts(HWND control);
    void lookAtEdges(HWND parent, const Child& child);
    void lookAtPair(const Child& one, const Child& other);
    void complain(HWND control, const std::string& what);

    int dpi_;
    int texts_ = 0;
    std::vector<std::string> complaints_;
};

}  // namespace ormala
