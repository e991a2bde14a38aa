#include "e2e/support/MessageBoxWindow.h"

#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

constexpr std::string_view dialogClass = "#32770";
/// The system's control ID of the text in a message box.
constexpr int textId = 65535;

}  // namespace

MessageBoxWindow MessageBoxWindow::waitFor(DWORD processId, std::string_view title,
                                           milliseconds deadline) {
    return MessageBoxWindow(waitForTopLevel(processId, dialogClass, title, deadline));
}

bool MessageBoxWindow::isShown(DWORD processId, std::string_view title) {
    return findTopLevel(processId, dialogClass, title).isVisible();
}

std::string MessageBoxWindow::text() const {
    return window_.item(textId).text();
}

void MessageBoxWindow::answer(int id) const {
    if (!hasButton(id)) {
        failStage("no button " + std::to_string(id) + " in the message box");
    }
    window_.post(WM_COMMAND, static_cast<WPARAM>(id));
    window_.waitUntilClosed();
}

}  // namespace ormala::test
