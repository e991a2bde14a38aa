#pragma once

#include <string>

#include "support/win/Picture.h"

namespace ormala::test {

/// How far a picture may be from its golden one: letters are drawn a little differently by each
/// version of the system.
struct GoldenTolerance {
    /// A pixel counts as different if one of its channels differs by more than this.
    int channel = 24;
    /// The part of all pixels that may be different.
    double share = 0.01;
};

/// What is wrong with a picture that should look like `golden`, nothing if they agree.
std::string pictureComplaint(const Picture& picture, const Picture& golden,
                             const GoldenTolerance& tolerance = {});

/// Compares with tests/golden/NAME.png and answers what is wrong, nothing if they agree. The
/// picture that failed is left in the temporary folder, and the answer says where.
///
/// To remake the golden pictures, look at them and commit them with the change:
///     ORMALA_UPDATE_GOLDEN=1 ./test Golden
std::string goldenComplaint(const Picture& picture, const std::string& name,
                            const GoldenTolerance& tolerance = {});

}  // namespace ormala::test
