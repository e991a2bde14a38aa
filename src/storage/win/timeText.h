#pragma once

#include <windows.h>

#include <string>

namespace ormala {

/// In the form of the settings files: "2024-05-17 08:30:12".
std::string timeText(const SYSTEMTIME& time);

/// The local time in that form.
std::string presentTime();

}  // namespace ormala
