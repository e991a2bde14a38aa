#include "widgets/win/CheckButton.h"

#include "widgets/win/OptionGroup.h"

namespace ormala {

CheckButton::CheckButton(HWND parent, int id, std::string_view name)
    : ZelvikButtonXP(parent, id, name) {
    setControlType(1);
    dressButton(*this);
    setSign(ButtonSign::tick);
    toggling_ = Click.subscribe([this] {
        setChecked(!checked());
        Change.raise();
    });
}

void CheckButton::setChecked(bool checked) {
    setValue(checked);
    dressButton(*this, checked);
}

}  // namespace ormala
