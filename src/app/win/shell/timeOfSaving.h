#pragma once

#include <string>

namespace ormala {

/// The local time in the form of the settings files, "2024-01-31 23:05:09".
std::string timeOfSaving();

}  // namespace ormala
