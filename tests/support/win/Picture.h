#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <vector>

#include "support/win/ScreenGeometry.h"

namespace ormala::test {

/// A colour as the system writes it: 0x00BBGGRR.
using Color = std::uint32_t;

/// The largest difference of two colours in one of their three channels, 0 to 255.
int channelDifference(Color a, Color b);

/// `front` with the opacity `alpha` (0 to 255) over `back`, each channel rounded to the nearest.
Color blended(Color front, Color back, int alpha);

/// For messages: "#RRGGBB".
struct ShownColor {
    Color color;
};
std::ostream& operator<<(std::ostream& out, ShownColor shown);

/// A part of the screen as it was at one moment. All places are screen pixels, so that what a test
/// knows of a window can be used as it is.
class Picture {
  public:
    Picture() = default;
    /// `pixels` row by row from the top; as many as the rectangle has.
    Picture(const ScreenRect& rect, std::vector<Color> pixels);

    const ScreenRect& rect() const { return rect_; }
    /// The colour at a place inside `rect()`; throws std::out_of_range elsewhere.
    Color at(ScreenPoint point) const;
    /// The part of this picture that lies in `rect`, which must be inside `rect()`.
    Picture part(const ScreenRect& rect) const;

    /// Every place whose colour differs from `color` by no more than `tolerance` in each channel.
    std::vector<ScreenPoint> find(Color color, int tolerance = 0) const;
    std::size_t count(Color color, int tolerance = 0) const {
        return find(color, tolerance).size();
    }

    bool operator==(const Picture&) const = default;

  private:
    ScreenRect rect_;
    std::vector<Color> pixels_;
};

/// Where two pictures differ.
struct Difference {
    std::vector<ScreenPoint> places;
    /// Bounds `places`; empty if there are none.
    ScreenRect box;
    /// The largest difference in one channel.
    int largest = 0;

    bool empty() const { return places.empty(); }
};

/// The smallest rectangle with all places in it; empty if there are none.
ScreenRect boundingBox(const std::vector<ScreenPoint>& places);

/// The places of the second picture that differ by more than `tolerance` in a channel. The pictures
/// must have the same size; they may show different parts of the screen.
Difference difference(const Picture& a, const Picture& b, int tolerance = 0);

/// Says where and how much, for messages.
std::ostream& operator<<(std::ostream& out, const Difference& difference);

}  // namespace ormala::test
