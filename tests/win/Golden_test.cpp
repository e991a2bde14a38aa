#include "support/win/Golden.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/win/PngFile.h"
#include "support/win/TemporaryFolder.h"

namespace ormala::test {
namespace {

/// Large enough for several blocks of a file.
Picture sample(int width = 300, int height = 100) {
    std::vector<Color> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = static_cast<Color>(i * 977) & 0xFFFFFFU;
    }
    return {{0, 0, width, height}, std::move(pixels)};
}

Picture plain(std::size_t others, Color color) {
    std::vector<Color> pixels(1000, 0x606060U);
    std::fill_n(pixels.begin(), others, color);
    return {{0, 0, 100, 10}, std::move(pixels)};
}

TEST(PngFile, IsReadAsItWasWritten) {
    const TemporaryFolder folder;
    savePng(sample(), folder.path() / "sample.png");
    EXPECT_EQ(loadPng(folder.path() / "sample.png"), sample());
}

TEST(PngFile, ThatIsMissingOrNoPictureIsRefused) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "sample.png";
    EXPECT_THROW(loadPng(path), std::runtime_error);
    savePng(sample(), path);
    std::filesystem::resize_file(path, 20);
    EXPECT_THROW(loadPng(path), std::runtime_error);
    std::ofstream(path) << "no picture";
    EXPECT_THROW(loadPng(path), std::runtime_error);
}

TEST(GoldenPicture, AgreesWithinItsTolerance) {
    EXPECT_EQ(pictureComplaint(plain(0, 0), plain(0, 0)), "");
    EXPECT_EQ(pictureComplaint(plain(900, 0x606078U), plain(0, 0)), "");
    EXPECT_EQ(pictureComplaint(plain(10, 0xFFFFFFU), plain(0, 0)), "");
}

TEST(GoldenPicture, IsMissedByTooManyPixelsOrAnotherSize) {
    EXPECT_NE(pictureComplaint(plain(11, 0xFFFFFFU), plain(0, 0)), "");
    EXPECT_NE(pictureComplaint(plain(11, 0x606079U), plain(0, 0)), "");
    EXPECT_NE(pictureComplaint(plain(0, 0), sample()), "");
}

}  // namespace
}  // namespace ormala::test
