#pragma once

#include <exception>
#include <functional>
#include <string>

namespace ormala {

/// The message about a failure that ends the program: what is missing, and what the system says of
/// it. `systemText` gives the words for an error number of the system.
std::string programFailureText(const std::exception& failure,
                               const std::function<std::string(int)>& systemText);

}  // namespace ormala
