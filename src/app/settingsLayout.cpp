#include "app/settingsLayout.h"

namespace ormala {

namespace {

// At 96 DPI.
constexpr int margin = 4;
constexpr int barHeight = 24;
constexpr int barWidth = 292;
constexpr int groupGap = 16;
constexpr int listHeight = 64;
/// The short window ends this much above the list.
constexpr int cutAboveList = 12;

}  // namespace

SettingsLayout::SettingsLayout(int dpi) {
    const auto scaled = [dpi](int length) { return (length * dpi + 48) / 96; };
    for (int i = 0; i < mode::count; ++i) {
        const int left = margin + i * (barWidth + margin) / mode::count;
        const int right = (i + 1) * (barWidth + margin) / mode::count;
        btnMode[static_cast<std::size_t>(i)] = {scaled(left), scaled(margin), scaled(right),
                                                scaled(margin + barHeight)};
    }
    const int listTop = margin + barHeight + groupGap;
    picOuter = {scaled(margin), scaled(listTop), scaled(margin + barWidth),
                scaled(listTop + listHeight)};
    width = scaled(2 * margin + barWidth);
    shortHeight = scaled(listTop - cutAboveList);
    firstHeight = scaled(listTop + listHeight + margin);
}

}  // namespace ormala
