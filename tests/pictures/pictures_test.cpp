#include "pictures/pictures.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <set>

#include <gtest/gtest.h>

#include "scene/pixelImages.h"

namespace ormala {
namespace {

constexpr std::array sizes = {16, 20, 22, 24, 32, 48, 64};

PixelImage square(Picture picture, int side) {
    return drawPicture(picture, {side, side});
}

std::vector<Picture> allPictures() {
    std::vector<Picture> pictures;
    pictures.reserve(pictureCount);
    for (int index = 0; index < pictureCount; ++index) {
        pictures.push_back(static_cast<Picture>(index));
    }
    return pictures;
}

/// Each pixel of `image` taken from its mirror image.
PixelImage mirrored(PixelImage image) {
    for (int y = 0; y < image.size.height; ++y) {
        const auto row = image.argb.begin() + static_cast<std::ptrdiff_t>(y) * image.size.width;
        std::reverse(row, row + image.size.width);
    }
    return image;
}

PixelImage turnedClockwise(const PixelImage& image) {
    PixelImage turned = image;
    const int side = image.size.width;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            turned.argb[static_cast<std::size_t>(y * side + x)] = pixelAt(image, {y, side - 1 - x});
        }
    }
    return turned;
}

int part(std::uint32_t argb, int shift) {
    return static_cast<int>((argb >> shift) & 0xFFU);
}

int brightness(std::uint32_t argb) {
    return (part(argb, 16) * 54 + part(argb, 8) * 183 + part(argb, 0) * 19) / 256;
}

bool reddish(std::uint32_t argb) {
    return part(argb, 24) > 0 && part(argb, 16) > 2 * part(argb, 8);
}

/// Sharp rows and columns have no half covered pixels where a line runs along them.
int softPixelsOfRow(const PixelImage& image, int y) {
    int soft = 0;
    for (int x = 0; x < image.size.width; ++x) {
        const int alpha = part(pixelAt(image, {x, y}), 24);
        soft += alpha > 0 && alpha < 255 ? 1 : 0;
    }
    return soft;
}

/// The strongest difference of two pictures in opacity. Where an edge passes right through a sample
/// a few of its sixteen may fall to the other side.
int difference(const PixelImage& one, const PixelImage& other) {
    int strongest = 0;
    for (std::size_t i = 0; i < one.argb.size(); ++i) {
        strongest = std::max(strongest, std::abs(part(one.argb[i], 24) - part(other.argb[i], 24)));
    }
    return strongest;
}

constexpr int fourSamples = 64;

TEST(Pictures, EveryPictureHasTheSizeAskedFor) {
    for (const Picture picture : allPictures()) {
        const PixelImage image = drawPicture(picture, {30, 17});
        EXPECT_EQ(image.size, (PixelSize{30, 17}));
        EXPECT_EQ(image.argb.size(), 30U * 17U);
    }
}

TEST(Pictures, ASideBelowOneGivesNoPixels) {
    EXPECT_TRUE(drawPicture(Picture::help, {0, 16}).argb.empty());
    EXPECT_TRUE(drawPicture(Picture::help, {16, -1}).argb.empty());
}

TEST(Pictures, APictureLiesInTheMiddleOfItsRoom) {
    const PixelImage image = drawPicture(Picture::grid, {30, 16});
    const PixelImage alone = square(Picture::grid, 16);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 30; ++x) {
            const bool within = x >= 7 && x < 23;
            EXPECT_EQ(pixelAt(image, {x, y}), within ? pixelAt(alone, {x - 7, y}) : 0U);
        }
    }
}

TEST(Pictures, NoTwoLookTheSameAtAnySize) {
    for (const int side : sizes) {
        std::set<std::vector<std::uint32_t>> seen;
        for (const Picture picture : allPictures()) {
            EXPECT_TRUE(seen.insert(square(picture, side).argb).second)
                << static_cast<int>(picture) << " at " << side;
        }
    }
}

TEST(Pictures, EachHasDarkAndLightPartsSoThatItStandsOutOnAnyGround) {
    const auto dark = [](auto argb) { return part(argb, 24) > 160 && brightness(argb) < 80; };
    const auto light = [](auto argb) { return part(argb, 24) > 250 && brightness(argb) > 140; };
    for (const int side : sizes) {
        for (const Picture picture : allPictures()) {
            const PixelImage image = square(picture, side);
            EXPECT_GT(std::ranges::count_if(image.argb, dark), side * side / 32)
                << static_cast<int>(picture) << " at " << side;
            if (picture != Picture::logo) {
                EXPECT_GT(std::ranges::count_if(image.argb, light), side * side / 16)
                    << static_cast<int>(picture) << " at " << side;
            }
        }
    }
}

TEST(Pictures, OnlyRemovingIsRed) {
    for (const Picture picture : allPictures()) {
        const PixelImage image = square(picture, 32);
        EXPECT_EQ(std::ranges::any_of(image.argb, reddish), picture == Picture::remove)
            << static_cast<int>(picture);
    }
}

TEST(Pictures, LevelAndUprightLinesAreSharpAtEverySize) {
    for (int side = 16; side <= 64; ++side) {
        const PixelImage image = square(Picture::grid, side);
        for (int y = side / 4; y < side * 3 / 4; ++y) {
            EXPECT_EQ(softPixelsOfRow(image, y), 0) << "row " << y << " at " << side;
        }
    }
}

TEST(Pictures, TheLinesOfTheGridLieEvenly) {
    for (const int side : sizes) {
        const PixelImage image = square(Picture::grid, side);
        EXPECT_EQ(mirrored(image).argb, image.argb) << side;
        EXPECT_EQ(turnedClockwise(image).argb, image.argb) << side;
    }
}

TEST(Pictures, OppositeCommandsAreMirrorImages) {
    for (const int side : sizes) {
        EXPECT_LE(difference(mirrored(square(Picture::undo, side)), square(Picture::redo, side)),
                  fourSamples);
        EXPECT_LE(difference(mirrored(square(Picture::rotateCounterclockwise, side)),
                             square(Picture::rotateClockwise, side)),
                  fourSamples);
    }
}

TEST(Pictures, TheArrowsAreOneArrowTurned) {
    constexpr std::array<std::array<Picture, 2>, 6> turns = {{
        {Picture::moveLeft, Picture::moveUp},
        {Picture::moveUp, Picture::moveRight},
        {Picture::moveRight, Picture::moveDown},
        {Picture::leftBorderLeft, Picture::topBorderUp},
        {Picture::topBorderUp, Picture::rightBorderRight},
        {Picture::increaseWidth, Picture::increaseHeight},
    }};
    for (const int side : sizes) {
        for (const auto& [from, to] : turns) {
            EXPECT_LE(difference(turnedClockwise(square(from, side)), square(to, side)),
                      fourSamples)
                << static_cast<int>(from) << " at " << side;
        }
    }
}

TEST(Pictures, TheArrowToTheLeftPointsThere) {
    const PixelImage image = square(Picture::moveLeft, 24);
    EXPECT_EQ(part(pixelAt(image, {4, 11}), 24), 255);
    EXPECT_EQ(part(pixelAt(image, {4, 6}), 24), 0);
    EXPECT_EQ(part(pixelAt(image, {10, 6}), 24), 255);
    EXPECT_EQ(part(pixelAt(image, {20, 6}), 24), 0);
}

TEST(Pictures, ABorderThatMovesOutHasItsArrowOutside) {
    const PixelImage image = square(Picture::leftBorderLeft, 24);
    EXPECT_GT(brightness(pixelAt(image, {5, 12})), 200);
    EXPECT_EQ(pixelAt(image, {19, 12}), 0U);
}

}  // namespace
}  // namespace ormala
