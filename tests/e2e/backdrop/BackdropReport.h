#pragma once

#include <string>
#include <string_view>

#include "support/win/ScreenGeometry.h"

namespace ormala::test {

/// The window class of the backdrop, and its registered messages: the one sets the counts to 0, the
/// other also paints it anew with another look, a pattern in wParam and a colour in lParam.
inline constexpr const wchar_t* backdropClass = L"OrmalaBackdrop";
inline constexpr const wchar_t* backdropResetMessage = L"OrmalaBackdropReset";
inline constexpr const wchar_t* backdropLookMessage = L"OrmalaBackdropLook";

/// What has reached the backdrop since its start or the last reset. It is the backdrop's window
/// text, as "name=value" pairs. Places are screen pixels.
struct BackdropReport {
    int painted = 0;
    int leftDown = 0;
    int leftUp = 0;
    int rightDown = 0;
    int rightUp = 0;
    int middleDown = 0;
    int middleUp = 0;
    /// Second presses of double clicks, which count as presses too.
    int doubleClicks = 0;
    int moves = 0;
    int dragMoves = 0;
    int x = 0;
    int y = 0;
    int downX = 0;
    int downY = 0;
    int upX = 0;
    int upY = 0;
    /// The bits of Modifiers that were held at the last press.
    int downModifiers = 0;
    /// Notches, those towards the user negative.
    int wheel = 0;
    int wheelModifiers = 0;
    int keyDown = 0;
    int keyUp = 0;
    /// The last key's virtual-key code and the modifiers at that time.
    int lastKey = 0;
    int keyModifiers = 0;
    /// The last character that was typed, a UTF-16 unit.
    int lastCharacter = 0;
    /// The button that answered the question, 0 before.
    int answer = 0;

    bool operator==(const BackdropReport&) const = default;

    int clicks() const { return leftUp + rightUp + middleUp; }
    ScreenPoint lastDown() const { return {downX, downY}; }
    ScreenPoint lastUp() const { return {upX, upY}; }
    ScreenPoint lastPlace() const { return {x, y}; }
};

std::string textOf(const BackdropReport& report);
/// Pairs that are missing keep their default.
BackdropReport reportFromText(std::string_view text);

}  // namespace ormala::test
