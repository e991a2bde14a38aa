#pragma once

#include <map>
#include <vector>

#include "scene/AccessibleParts.h"

namespace ormala {

/// What has happened to a tool, for those who can't see it.
enum class PartEvent {
    created,
    destroyed,
    renamed,
    moved,
    valueChanged,
    descriptionChanged,
    selected,
    focused
};

struct PartNews {
    PartEvent event = PartEvent::created;
    int tool = 0;

    bool operator==(const PartNews&) const = default;
};

/// Finds out what is new on the worksheet by what it was at the last time.
class SheetNews {
  public:
    /// The parts must outlive it.
    explicit SheetNews(const AccessibleParts& parts) : parts_(parts) {}

    /// Since the last call, in the order of the events above.
    std::vector<PartNews> take();
    /// The window has got the keyboard, which is told of it and not of its tool.
    void windowGotFocus() { focused_ = 0; }

  private:
    const AccessibleParts& parts_;
    std::map<int, AccessiblePart> known_;
    int selected_ = 0;
    int focused_ = 0;
};

}  // namespace ormala
