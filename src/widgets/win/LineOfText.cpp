#include "widgets/win/LineOfText.h"

#include <oleacc.h>

namespace ormala {

void LineOfText::setText(std::string_view text) {
    if (text_ != text) {
        text_ = text;
        setCaption(text);
        invalidate();
    }
}

void LineOfText::tellFacts(AccessibleFacts& facts) const {
    facts.name = text_;
    facts.role = ROLE_SYSTEM_STATICTEXT;
    facts.state = STATE_SYSTEM_READONLY;
}

}  // namespace ormala
