#pragma once

namespace ormala {

/// The local time of day, to a millisecond.
float secondsSinceMidnight();

}  // namespace ormala
