#include "widgets/win/labeling.h"

#include "language/MlStringModule.h"
#include "platform/win/text.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/ctlSlider.h"

namespace ormala {

void label(HWND window, int textId) {
    if (const std::string text = MlString(textId, ""); !text.empty()) {
        SetWindowTextW(window, wide(text).c_str());
    }
}

void label(ZelvikButtonXP& button, int textId) {
    if (const std::string text = MlString(textId, ""); !text.empty()) {
        button.setCaption(text);
    }
}

void label(ctlSlider& slider, int textId) {
    if (const std::string text = MlString(textId, ""); !text.empty()) {
        slider.setCaption(text);
    }
}

void label(Label& readOut, int textId) {
    if (const std::string text = MlString(textId, ""); !text.empty()) {
        readOut.setText(text);
    }
}

}  // namespace ormala
