#pragma once

#include <gtest/gtest.h>

#include <array>

#include "support/ToolPlayer.h"

namespace ormala {

/// In how many moves a hand may cover a way, from a jump to a crawl.
constexpr std::array handMoves{1, 2, 7, 50};
constexpr int modifierSets = 8;

/// Drags from `from` by `by` in that many moves. `restless`: by a detour, with other modifiers on
/// the way; only the last move holds `shift`.
inline void dragInMoves(ToolPlayer& player, const Point& from, const Point& by, int shift,
                        int moves, bool restless) {
    player.press(from, restless ? 0 : shift);
    for (int i = 1; i < moves; ++i) {
        const double share = static_cast<double>(i) / moves;
        const Point aside = restless ? Point{(i * 37) % 90 - 45.0, (i * 53) % 70 - 35.0} : Point{};
        player.dragTo({from.x + by.x * share + aside.x, from.y + by.y * share + aside.y},
                      restless ? i % modifierSets : shift);
    }
    const Point to{from.x + by.x, from.y + by.y};
    player.dragTo(to, shift);
    player.release(to);
}

}  // namespace ormala
