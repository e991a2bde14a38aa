#include "app/programFailure.h"

#include <array>
#include <new>
#include <string_view>
#include <system_error>

#include "language/MlStringModule.h"

namespace ormala {

namespace {

/// The two parts, with whatever separates a thing from its explanation; one alone if that is all.
std::string explained(const std::string& thing, const std::string& explanation) {
    constexpr std::string_view between = ": ";
    return explanation.empty() ? thing : thing + std::string(between) + explanation;
}

std::string whatIsMissing(const std::exception& failure,
                          const std::function<std::string(int)>& systemText) {
    if (const auto* const system = dynamic_cast<const std::system_error*>(&failure)) {
        // Its own words would hold the explanation in the system's 8-bit code page.
        const std::string all = system->what();
        return explained(all.substr(0, all.find(": ")), systemText(system->code().value()));
    }
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) {
        return MlString(581, "Memory");
    }
    return failure.what();
}

}  // namespace

std::string programFailureText(const std::exception& failure,
                               const std::function<std::string(int)>& systemText) {
    const std::array<std::string, 1> missing{whatIsMissing(failure, systemText)};
    return MlFormat(MlString(580,
                             "Ormala has to quit, since something that it needs is missing:"
                             "%n%0"),
                    missing);
}

}  // namespace ormala
