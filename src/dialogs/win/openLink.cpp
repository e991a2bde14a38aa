#include "dialogs/win/openLink.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/win/text.h"

namespace ormala {

void openLink(const std::string& link) {
    ShellExecuteW(nullptr, nullptr, wide(link).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace ormala
