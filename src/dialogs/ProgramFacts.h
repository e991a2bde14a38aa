#pragma once

#include <functional>
#include <string>

namespace ormala {

/// What the about box tells of the program, in UTF-8.
struct ProgramFacts {
    std::string title;
    /// Such as "1.0.0".
    std::string version;
    /// Empty if there are none.
    std::string webAddress;
    std::string mailAddress;
};

/// With the addresses of the current language's texts.
ProgramFacts programFacts(std::string title, std::string version);

/// The link that begins a mail about this version to the mail address.
std::string mailLink(const ProgramFacts& facts);

/// Opens a link with the program that the user has for it.
using LinkOpener = std::function<void(const std::string& link)>;

}  // namespace ormala
