#include "win/TestAccessible.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include "platform/win/Accessible.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

/// The object that answers for a window, for the time of one question.
class Asked {
  public:
    explicit Asked(HWND window) {
        void* object = nullptr;
        EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                             __uuidof(IAccessible), &object),
                  S_OK);
        object_ = static_cast<IAccessible*>(object);
    }
    Asked(const Asked&) = delete;
    Asked& operator=(const Asked&) = delete;
    ~Asked() {
        if (object_ != nullptr) {
            object_->Release();
        }
    }

    [[nodiscard]] std::string text(HRESULT (IAccessible::*question)(VARIANT, BSTR*)) const {
        BSTR answer = nullptr;
        if (object_ == nullptr || FAILED((object_->*question)(self(), &answer))) {
            ADD_FAILURE() << "no answer";
            return {};
        }
        std::string text = narrow(answer != nullptr ? answer : L"");
        SysFreeString(answer);
        return text;
    }
    [[nodiscard]] long role() const {
        VARIANT answer{};
        if (object_ == nullptr || FAILED(object_->get_accRole(self(), &answer))) {
            ADD_FAILURE() << "no answer";
        }
        return answer.lVal;
    }

  private:
    static VARIANT self() {
        VARIANT child{};
        child.vt = VT_I4;
        child.lVal = CHILDID_SELF;
        return child;
    }

    AccessibleThread thread_;
    IAccessible* object_ = nullptr;
};

}  // namespace

std::string accessibleNameOf(HWND window) {
    return Asked(window).text(&IAccessible::get_accName);
}

std::string accessibleValueOf(HWND window) {
    return Asked(window).text(&IAccessible::get_accValue);
}

long accessibleRoleOf(HWND window) {
    return Asked(window).role();
}

}  // namespace ormala
