#include "dialogs/win/frmLineStyle.h"

#include "language/MlStringModule.h"

namespace ormala {

namespace {

constexpr int idLines = 11;

/// In pixels at 96 DPI.
constexpr PixelSize lineClientSize{272, 220};

}  // namespace

frmLineStyle::frmLineStyle() {
    open({L"frmLineStyle", lineClientSize, true});
}

void frmLineStyle::makeControls() {
    setCaption("Select Line Style");
    LineSelect_ = std::make_unique<ctlLineSelect>(handle(), idLines, "LineSelect");
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    ending_ = LineSelect_->DoubleClick.subscribe([this] { accept(); });
}

void frmLineStyle::layOut() {
    LineSelect_->setDpi(dpi());
    place(LineSelect_->handle(), {12, 12, 260, 172});
    place(*cmdOK_, {172, 184, 260, 208});
}

void frmLineStyle::ApplyLanguage() {
    label(handle(), 124);
    label(*cmdOK_, 210);
    LineSelect_->SetTooltip(MlString(43, "Select line width and style"));
}

void frmLineStyle::paint(HDC context) {
    FormFrame_.draw(context, clientRectangle());
}

int frmLineStyle::GetLineStyle(HWND owner, int present) {
    LineSelect_->setLineIndex(present);
    return showModal(owner) ? LineSelect_->LineIndex() : present;
}

}  // namespace ormala
