#pragma once

#include <optional>

namespace ormala {

/// The height of the list's content, `picInner`, and what a change of it does to the height of the
/// control window. All in pixels.
class PanelLayout {
  public:
    [[nodiscard]] int contentHeight() const { return content_; }

    struct Window {
        /// Of `picOuter` in the client area.
        int listLeft = 0;
        int listTop = 0;
        /// What the window's frame adds to the height of its client area.
        int frameHeight = 0;
        /// From the window's top to the bottom of the screen.
        int room = 0;
        /// The window has its short height, and the mode is template.
        bool standsShort = false;
    };

    /// `UpdatePanelLayout` with a change of heights: takes the content's new height and answers the
    /// outer height that the window is to take, nothing if it stays as it is. It follows the small
    /// changes of a panel that folds lines in or out, and any change with `Force`; panels that come
    /// or go leave it to the scroll bar.
    std::optional<int> UpdatePanelLayout(int content, bool Force, const Window& window);

  private:
    int content_ = 0;
};

/// The places inside `picOuter`, whose inside has this size.
struct ListViewport {
    ListViewport(int insideWidth, int insideHeight, int scrollBarWidth)
        : scrollLeft(insideWidth - scrollBarWidth),
          scrollHeight(insideHeight),
          contentWidth(insideWidth - scrollBarWidth) {}

    /// Of `scrInner`, whose top is 0.
    int scrollLeft;
    int scrollHeight;
    /// Of `picInner`.
    int contentWidth;

    /// Whether `picOuter` is to be visible: not in the short window.
    static bool shows(int height) {
        constexpr int smallest = 2;
        return height >= smallest;
    }
};

}  // namespace ormala
