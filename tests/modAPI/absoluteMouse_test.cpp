#include "modAPI/absoluteMouse.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(AbsoluteMouseCoordinate, ComesBackAsTheSamePixelOnEveryScreen) {
    for (const int size : {800, 1280, 1366, 1920, 2560, 3200, 3840, 5760, 7680}) {
        for (const int origin : {0, -1280, 640}) {
            for (int pixel = 0; pixel < size; ++pixel) {
                const long long absolute = absoluteMouseCoordinate(pixel + origin, origin, size);
                ASSERT_GE(absolute, 0);
                ASSERT_LT(absolute, 65536);
                ASSERT_EQ(absolute * size / 65536, pixel) << size;
                ASSERT_EQ((absolute * size + 32768) / 65536, pixel) << "rounded, " << size;
            }
        }
    }
}

}  // namespace
}  // namespace ormala
