#include "toolkit/win/PanelControlStore.h"

#include <algorithm>
#include <utility>

#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"

namespace ormala {

namespace {

/// One for a panel of either kind.
constexpr std::size_t enough = 2;

}  // namespace

PanelControlStore::PanelControlStore(HWND parent, Event<int>& fontSizeChange)
    : fontSizeChange_(fontSizeChange.subscribe([this](int points) {
          fontSize_ = points;
          waiting_.clear();
      })),
      languageChange_(GetLanguageSupport().LanguageChange.subscribe([this] { waiting_.clear(); })) {
    WindowDesign design;
    design.className = L"PanelControlStore";
    design.style = WS_CHILD;
    design.owner = parent;
    create(design);
}

PanelControlStore::~PanelControlStore() {
    // Before the window that they are children of.
    waiting_.clear();
    destroy();
}

std::unique_ptr<PanelControls> PanelControlStore::take(const PanelDesign& design, HWND panel) {
    const auto at =
        std::ranges::find_if(waiting_, [&](const std::unique_ptr<PanelControls>& controls) {
            return &controls->design() == &design;
        });
    if (at == waiting_.end()) {
        auto made = std::make_unique<PanelControls>(panel, design);
        if (fontSize_) {
            made->setFontSize(*fontSize_);
        }
        return made;
    }
    std::unique_ptr<PanelControls> taken = std::move(*at);
    waiting_.erase(at);
    taken->setParent(panel);
    return taken;
}

void PanelControlStore::giveBack(std::unique_ptr<PanelControls> controls) {
    controls->retire();
    controls->setParent(handle());
    waiting_.push_back(std::move(controls));
}

bool PanelControlStore::hasTooMany() const {
    return waiting_.size() > enough;
}

void PanelControlStore::thinOut() {
    if (hasTooMany()) {
        waiting_.erase(waiting_.begin());
    }
}

std::optional<LRESULT> PanelControlStore::onMessage(UINT /*message*/, WPARAM /*wParam*/,
                                                    LPARAM /*lParam*/) {
    return std::nullopt;
}

}  // namespace ormala
