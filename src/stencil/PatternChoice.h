#pragma once

#include "stencil/PatternPage.h"
#include "stencil/StencilState.h"

namespace ormala {

/// The rules of `frmPatternSelect`: a working copy of the five slots, of which one tab at a time is
/// open. Nothing but `store` reaches the stencil.
class PatternChoice {
  public:
    /// A tab that there isn't opens the nearest one.
    PatternChoice(const PatternList& patterns, int tab);
    PatternChoice(const PatternChoice&) = delete;
    PatternChoice& operator=(const PatternChoice&) = delete;

    [[nodiscard]] int tab() const { return tab_; }
    /// The first tab must have a pattern: it decides the size of a new stencil.
    void openTab(int tab);
    /// Of the open tab.
    [[nodiscard]] PatternPage& page() { return page_; }

    /// All slots, for the preview, and one of them alone, for the picture of its tab.
    [[nodiscard]] const PatternList& patterns() const { return working_; }
    [[nodiscard]] PatternList patternsOfTab(int tab) const;

    /// The user has pressed OK.
    void confirm() { cancelled_ = false; }
    [[nodiscard]] bool Cancelled() const { return cancelled_; }
    /// Whether the user has confirmed; only then both take what has been chosen.
    bool store(PatternList& patterns, int& tab) const;

  private:
    PatternList working_;
    int tab_ = 0;
    PatternPage page_;
    bool cancelled_ = true;
};

}  // namespace ormala
