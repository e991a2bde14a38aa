#pragma once

#include "base/Event.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// Takes the worksheet's mouse events to the tool that they belong to and tells every tool where
/// the mouse is. While a button is held, the item that was pressed keeps the mouse.
class SheetMouse {
  public:
    explicit SheetMouse(Sheet& sheet);
    SheetMouse(const SheetMouse&) = delete;
    SheetMouse& operator=(const SheetMouse&) = delete;

    void press(const MouseInput& input);
    void move(const MouseInput& input);
    /// `input.button` is the released one, `stillHeld` are the others.
    void release(const MouseInput& input, int stillHeld);
    /// The mouse was taken away in the middle of a drag.
    void lost();
    /// The modifiers that are held now, after one of their keys went down, up or repeated itself. A
    /// drag goes on with them from where the mouse is.
    void modifiersHeld(int shift);
    /// Where the mouse is outside the worksheet, with no button.
    void outside(float x, float y, bool heldByOther);

    [[nodiscard]] bool holding() const { return holder_ != nullptr || background_; }

    /// What no tool took.
    Event<const MouseInput&> backgroundDown;
    Event<const MouseInput&> backgroundMove;
    Event<const MouseInput&> backgroundUp;
    /// The mouse was taken away from the background.
    Event<> backgroundLost;
    /// A tool has handled a release.
    Event<> toolUp;
    /// All tools have heard where the mouse is.
    Event<> broadcast;

  private:
    [[nodiscard]] OverlayItem* itemAt(const MouseInput& input) const;
    [[nodiscard]] MouseSource sourceOf(OverlayItem* item) const;
    void BroadcastMouseMove(const MouseInput& input, const MouseSource& source);
    /// The tool has left the sheet: what is held of it falls to the background.
    void forget(const OverlayItem& item);
    void letGo();

    Sheet& sheet_;
    /// The mouse as it was last told of, with all buttons that are held.
    MouseInput last_;
    OverlayItem* holder_ = nullptr;
    /// The background holds the mouse.
    bool background_ = false;
    Subscription withdrawn_;
};

}  // namespace ormala
