#pragma once

#include <windows.h>

namespace ormala {

class ctlSlider;
class Label;
class ZelvikButtonXP;

// Each gives a control the text of that number, or leaves it its own where the language has none.

void label(HWND window, int textId);
void label(ZelvikButtonXP& button, int textId);
void label(ctlSlider& slider, int textId);
void label(Label& readOut, int textId);

}  // namespace ormala
