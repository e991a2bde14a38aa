#include "language/LanguageSupport.h"

#include "language/MlStringModule.h"

namespace ormala {

void LanguageSupport::ChangeLanguage(int LanguageId) const {
    MlSetLanguage(LanguageId, "");
    LanguageChange.raise();
}

}  // namespace ormala
