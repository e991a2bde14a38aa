#pragma once

#include <string>

#include "app/version.h"

namespace ormala {

/// The options file in the user's application-data folder (without a backslash at its end).
inline std::string optionsFilePath(const std::string& applicationData) {
    return applicationData + "\\" + applicationTitle + "\\" + applicationTitle + ".ini";
}

/// The automatic file beside it, which keeps the tools of the last run.
inline std::string toolsFilePath(const std::string& applicationData) {
    return applicationData + "\\" + applicationTitle + "\\" + applicationTitle + " Tools.ini";
}

}  // namespace ormala
