#include "app/win/view/CopiedText.h"

#include <utility>

#include "platform/win/clipboard.h"

namespace ormala {

void CopiedText::put(TextCopy copy) {
    copy_ = std::move(copy);
    patientUntil_ = GetTickCount64() + clipboardPatience;
    timer_.start(control_, clipboardInterval);
    tick();
}

void CopiedText::tick() {
    const ClipboardAnswer answer = putTextOnClipboard(control_, copy_.text);
    if (answer != ClipboardAnswer::held || GetTickCount64() >= patientUntil_) {
        timer_.stop();
        told.raise(copyNote(answer, copy_));
    }
}

}  // namespace ormala
