#include "stencil/PatternPage.h"

#include "stencil/PatternRotations.h"
#include "stencil/PatternTable.h"

namespace ormala {

PatternPageLook PatternPage::look() const {
    const bool exists = setting_->Pattern >= 0;
    return {setting_->Pattern, rowOfRotation(setting_->PreRotation), exists, allowNoSelection_};
}

void PatternPage::choosePattern(int index) {
    if (index < 0 || index >= PatternTable::count()) {
        return;
    }
    setting_->Pattern = index;
    change.raise();
}

void PatternPage::chooseNoPattern() {
    if (!allowNoSelection_) {
        return;
    }
    setting_->Pattern = -1;
    change.raise();
}

void PatternPage::chooseRotation(int row) {
    const auto rotation = rotationOfRow(row);
    if (!rotation || setting_->Pattern < 0) {
        return;
    }
    setting_->PreRotation = *rotation;
    change.raise();
}

}  // namespace ormala
