#include "win/AccessibleReader.h"

#include "platform/win/text.h"

namespace ormala {

namespace {

std::string taken(BSTR text) {
    const std::string result = text != nullptr ? narrow(text) : "";
    SysFreeString(text);
    return result;
}

}  // namespace

AccessibleReader::AccessibleReader(HWND window) {
    void* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               &object);
    object_ = static_cast<IAccessible*>(object);
    self_.vt = VT_I4;
    self_.lVal = CHILDID_SELF;
}

AccessibleReader::~AccessibleReader() {
    if (object_ != nullptr) {
        object_->Release();
    }
}

std::string AccessibleReader::name() const {
    BSTR text = nullptr;
    object_->get_accName(self_, &text);
    return taken(text);
}

std::string AccessibleReader::shortcut() const {
    BSTR text = nullptr;
    object_->get_accKeyboardShortcut(self_, &text);
    return taken(text);
}

long AccessibleReader::role() const {
    VARIANT role{};
    object_->get_accRole(self_, &role);
    return role.lVal;
}

long AccessibleReader::state() const {
    VARIANT state{};
    object_->get_accState(self_, &state);
    return state.lVal;
}

}  // namespace ormala
