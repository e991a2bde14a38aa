#pragma once

#include "base/Event.h"

namespace ormala {

/// Changes the language and lets every subscriber relabel itself. There is one, see
/// `GetLanguageSupport`.
class LanguageSupport {
  public:
    /// Raised after the language has changed and before `ChangeLanguage` returns, in no certain
    /// order.
    Event<> LanguageChange;

    void ChangeLanguage(int LanguageId) const;
};

}  // namespace ormala
