#pragma once

#include <cstdint>
#include <vector>

#include "scene/PixelView.h"

namespace ormala {

// The worksheet while only its tools are seen. A system may cut its window out of the screen as a
// shape of rectangles, as many as a row of pixels has runs between what is seen through; some can
// carry no more than 32,000 of them, and end the program that asks for more.

/// So many runs may be left to the system; with a good distance to what ends it.
inline constexpr int mostRunsOfShape = 16000;

/// A pixel of no colour that is all but clear, by one step of 255. It parts no two runs.
inline constexpr std::uint32_t allButClear = 1U << 24U;

/// What of a picture is seen where one colour is seen through.
struct VisibleRuns {
    /// Of neighbouring pixels in a row that have another colour.
    int count = 0;
    /// Of the gaps between two runs of a row, by their width: so many are that wide.
    std::vector<int> gapsOfWidth;

    bool operator==(const VisibleRuns&) const = default;
};

/// The opacity of `key` and of the pixels counts for nothing.
VisibleRuns visibleRunsOf(const PixelView& picture, std::uint32_t key);

/// The width from which on a gap can stay open if there are to be at most so many runs, all
/// narrower ones being closed; 1 if all can. A row keeps one run at the least.
int narrowestOpenGap(const VisibleRuns& runs, int mostRuns);

/// How one colour of a picture is made clear.
struct SeeThrough {
    /// 0xRRGGBB.
    std::uint32_t key = 0;
    /// 0 to 255, of what has another colour.
    int opacity = 255;
    /// A narrower gap between two runs of a row becomes `allButClear`,
    /// unless everything is clear.
    int narrowestOpenGap = 1;

    bool operator==(const SeeThrough&) const = default;
};

/// Fills the rows from `top` to before `bottom` of `to` with those of `from`, which has the same
/// size: as 0xAARRGGBB, the colours being multiplied by their opacity.
void makeSeeThrough(const PixelView& from, const PixelView& to, int top, int bottom,
                    const SeeThrough& how);

}  // namespace ormala
