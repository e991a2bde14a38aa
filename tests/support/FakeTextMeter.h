#pragma once

#include <algorithm>

#include "scene/Canvas.h"

namespace ormala {

/// A font whose letters are all 6 by 13 pixels, at any resolution.
class FakeTextMeter : public TextMeter {
  public:
    static constexpr int letterWidth = 6;
    static constexpr int lineHeight = 13;

    SheetScale present;

    [[nodiscard]] SheetScale scale() const override { return present; }
    [[nodiscard]] PixelSize measure(std::string_view text, int) const override {
        int longest = 0;
        int lines = 1;
        int length = 0;
        for (const char c : text) {
            if (c == '\n') {
                ++lines;
                length = 0;
            } else if (c != '\r') {
                longest = std::max(longest, ++length);
            }
        }
        return {longest * letterWidth, lines * lineHeight};
    }
};

}  // namespace ormala
