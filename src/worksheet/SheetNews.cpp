#include "worksheet/SheetNews.h"

#include <algorithm>
#include <utility>

namespace ormala {

namespace {

void compare(std::vector<PartNews>& news, int tool, const AccessiblePart& former,
             const AccessiblePart& present) {
    if (present.name != former.name) {
        news.push_back({PartEvent::renamed, tool});
    }
    if (present.place != former.place) {
        news.push_back({PartEvent::moved, tool});
    }
    if (present.value != former.value) {
        news.push_back({PartEvent::valueChanged, tool});
    }
    if (present.description != former.description) {
        news.push_back({PartEvent::descriptionChanged, tool});
    }
}

/// Tells of a tool that is the one now.
void tellIfOther(std::vector<PartNews>& news, PartEvent event, int& former, int present) {
    if (std::exchange(former, present) != present && present != 0) {
        news.push_back({event, present});
    }
}

}  // namespace

std::vector<PartNews> SheetNews::take() {
    std::vector<PartNews> news;
    std::map<int, AccessiblePart> present;
    for (const int tool : parts_.tools()) {
        if (auto part = parts_.part({tool, 0})) {
            present.emplace(tool, std::move(*part));
        }
    }
    for (const auto& [tool, part] : known_) {
        if (!present.contains(tool)) {
            news.push_back({PartEvent::destroyed, tool});
        }
    }
    for (const auto& [tool, part] : present) {
        const auto former = known_.find(tool);
        if (former == known_.end()) {
            news.push_back({PartEvent::created, tool});
        } else {
            compare(news, tool, former->second, part);
        }
    }
    known_ = std::move(present);
    tellIfOther(news, PartEvent::selected, selected_, parts_.selectedTool());
    tellIfOther(news, PartEvent::focused, focused_, parts_.focusedTool());
    std::ranges::stable_sort(news, {}, &PartNews::event);
    return news;
}

}  // namespace ormala
