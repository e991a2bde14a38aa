#pragma once

#include <initializer_list>
#include <utility>

#include "e2e/support/SettingsFile.h"

namespace ormala::test {

using Keys = std::initializer_list<std::pair<const char*, const char*>>;

/// An options file with those keys too.
inline SettingsFile withKeys(SettingsFile options, Keys keys) {
    for (const auto& [key, value] : keys) {
        options.set("Options", key, value);
    }
    return options;
}

inline SettingsFile withKeys(Keys keys) {
    return withKeys(SettingsFile{}, keys);
}

}  // namespace ormala::test
