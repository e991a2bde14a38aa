#include "support/win/Picture.h"

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace ormala::test {

namespace {

constexpr int channel(Color color, unsigned index) {
    return static_cast<int>((color >> (8U * index)) & 0xFFU);
}

}  // namespace

int channelDifference(Color a, Color b) {
    int largest = 0;
    for (unsigned index = 0; index < 3; ++index) {
        largest = std::max(largest, std::abs(channel(a, index) - channel(b, index)));
    }
    return largest;
}

Color blended(Color front, Color back, int alpha) {
    Color mixed = 0;
    for (unsigned index = 0; index < 3; ++index) {
        const int sum = channel(front, index) * alpha + channel(back, index) * (255 - alpha);
        mixed |= static_cast<Color>((sum + 127) / 255) << (8U * index);
    }
    return mixed;
}

std::ostream& operator<<(std::ostream& out, ShownColor shown) {
    const auto flags = out.flags();
    out << '#' << std::hex << std::setfill('0');
    for (unsigned index = 0; index < 3; ++index) {
        out << std::setw(2) << channel(shown.color, index);
    }
    out.flags(flags);
    return out << std::setfill(' ');
}

Picture::Picture(const ScreenRect& rect, std::vector<Color> pixels)
    : rect_(rect), pixels_(std::move(pixels)) {
    const auto expected =
        static_cast<std::size_t>(rect.width()) * static_cast<std::size_t>(rect.height());
    if (pixels_.size() != expected) {
        throw std::invalid_argument("a picture needs a colour for each of its pixels");
    }
}

Color Picture::at(ScreenPoint point) const {
    if (!rect_.contains(point)) {
        throw std::out_of_range("a place outside of the picture");
    }
    const ScreenPoint inside = point - rect_.origin();
    return pixels_[static_cast<std::size_t>(inside.y) * static_cast<std::size_t>(rect_.width()) +
                   static_cast<std::size_t>(inside.x)];
}

Picture Picture::part(const ScreenRect& rect) const {
    std::vector<Color> pixels;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            pixels.push_back(at({x, y}));
        }
    }
    return {rect, std::move(pixels)};
}

std::vector<ScreenPoint> Picture::find(Color color, int tolerance) const {
    std::vector<ScreenPoint> places;
    for (int y = rect_.top; y < rect_.bottom; ++y) {
        for (int x = rect_.left; x < rect_.right; ++x) {
            if (channelDifference(at({x, y}), color) <= tolerance) {
                places.push_back({x, y});
            }
        }
    }
    return places;
}

ScreenRect boundingBox(const std::vector<ScreenPoint>& places) {
    if (places.empty()) {
        return {};
    }
    ScreenRect box{places[0].x, places[0].y, places[0].x + 1, places[0].y + 1};
    for (const ScreenPoint place : places) {
        box.left = std::min(box.left, place.x);
        box.top = std::min(box.top, place.y);
        box.right = std::max(box.right, place.x + 1);
        box.bottom = std::max(box.bottom, place.y + 1);
    }
    return box;
}

Difference difference(const Picture& a, const Picture& b, int tolerance) {
    const ScreenRect& from = a.rect();
    const ScreenRect& to = b.rect();
    if (from.width() != to.width() || from.height() != to.height()) {
        throw std::invalid_argument("pictures of different sizes cannot be compared");
    }
    Difference found;
    for (int y = 0; y < to.height(); ++y) {
        for (int x = 0; x < to.width(); ++x) {
            const ScreenPoint place = to.origin() + ScreenPoint{x, y};
            const int size =
                channelDifference(a.at(from.origin() + ScreenPoint{x, y}), b.at(place));
            found.largest = std::max(found.largest, size);
            if (size > tolerance) {
                found.places.push_back(place);
            }
        }
    }
    found.box = boundingBox(found.places);
    return found;
}

std::ostream& operator<<(std::ostream& out, const Difference& difference) {
    return out << difference.places.size() << " places differ, within " << difference.box
               << ", by at most " << difference.largest;
}

}  // namespace ormala::test
