#pragma once

#include <functional>
#include <string>

#include "app/ToolList.h"
#include "base/Event.h"

namespace ormala {

/// The commands of undo and redo: the removal that can be taken back, which is the last one, as
/// long as the tools that there are then stay as they are, and else the history of a tool.
class RemovedTools {
  public:
    /// `tell` shows the user a note; an empty one takes the last away. Both must outlive the
    /// object.
    RemovedTools(ToolList& tools, std::function<void(const std::string& note)> tell)
        : tools_(tools), tell_(std::move(tell)) {}

    /// Panels may go in what follows.
    Event<> bringingBack;

    /// Removes a tool for the user, who is told how it comes back.
    void remove(SettingControl& panel);
    /// All tools have been removed or replaced: the note says so, and `alsoBack` is called after
    /// they have come back.
    void noteSet(const std::string& note, std::function<void()> alsoBack);
    /// False if there is nothing to bring back, or something has been done since: what has been
    /// removed goes for good then.
    [[nodiscard]] bool canBringBack();
    /// If it can.
    void bringBack();
    /// What has been removed goes for good.
    void drop();

    /// Brings back what was removed just now, or goes back in the history of that tool, which may
    /// be null.
    void undo(const OverlayItem* tool);
    void redo(const OverlayItem* tool);

  private:
    /// All that a user can do to the tools: their keys, their histories, and which is selected.
    [[nodiscard]] std::string present() const;
    void step(const OverlayItem* tool, void (SettingControl::*neighbour)());

    ToolList& tools_;
    std::function<void(const std::string&)> tell_;
    std::function<void()> alsoBack_;
    /// After the removal.
    std::string left_;
};

}  // namespace ormala
