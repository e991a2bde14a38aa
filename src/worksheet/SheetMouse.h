#pragma once

#include <vector>

#include "base/Event.h"
#include "worksheet/Aids.h"
#include "worksheet/MousePort.h"
#include "worksheet/RateLimit.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// Takes the worksheet's mouse events to the tool that they belong to, or to the background with
/// its aids, and tells every tool where the mouse is. While a button is held, who was pressed keeps
/// the mouse.
class SheetMouse {
  public:
    /// All must outlive it.
    SheetMouse(Sheet& sheet, Aids& aids, MousePort& port);
    SheetMouse(const SheetMouse&) = delete;
    SheetMouse& operator=(const SheetMouse&) = delete;

    void press(const MouseInput& input);
    void move(const MouseInput& input);
    /// `input.button` is the released one, `stillHeld` are the others.
    void release(const MouseInput& input, int stillHeld);
    /// The mouse was taken away, perhaps in the middle of a drag.
    void lost();
    /// A key went down, up or repeated itself, and `shift` has the modifiers that are held now. A
    /// drag goes on with other ones from where the mouse is. True for a modifier's key in a drag,
    /// which goes no further.
    bool keyChanged(int key, int shift);
    /// A key went down or repeated itself. While the left button holds a grip, each arrow key moves
    /// the mouse by a pixel, with Ctrl by ten, and Home and Delete do nothing. True if the tool is
    /// not to hear of the key; one that went down in a drag rests until it is let go.
    bool keyPressed(int key, int shift);
    void keyReleased(int key) { std::erase(resting_, key); }
    /// Whatever is let go now, nobody tells of it.
    void keyboardLost() { resting_.clear(); }
    /// How soon `tick` has something to do, in milliseconds; 0 for never, as things are. A
    /// worksheet that is hidden needs none.
    [[nodiscard]] int interval() const;
    /// Looks for a mouse that is outside, ten times a second at most, and less often where it has
    /// rested for a second.
    void tick();

    [[nodiscard]] bool holding() const { return holder_ != nullptr || background_; }

  private:
    [[nodiscard]] OverlayItem* itemAt(const MouseInput& input) const;
    [[nodiscard]] MouseSource sourceOf(OverlayItem* item) const;
    void BroadcastMouseMove(const MouseInput& input, const MouseSource& source);
    void releaseOnBackground(const MouseInput& input);
    void lookOutside();
    /// The tool has left the sheet: what is held of it falls to the background.
    void forget(const OverlayItem& item);
    void letGo();

    Sheet& sheet_;
    Aids& aids_;
    MousePort& port_;
    /// The mouse as it was last told of, with all buttons that are held.
    MouseInput last_;
    OverlayItem* holder_ = nullptr;
    /// The background holds the mouse.
    bool background_ = false;
    /// Keys that went down while a grip was held, and are still down.
    std::vector<int> resting_;
    RateLimit outsideLooks_;
    /// Where the last look has found it, and how many in a row have found it there.
    PixelPoint lastSeen_;
    int looksAtRest_ = 0;
    Subscription withdrawn_;
};

}  // namespace ormala
