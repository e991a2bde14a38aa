#pragma once

namespace ormala::bench {

/// Of this process, in milliseconds; Wine does not know that of another one.
double processorTime();

/// Handles messages as the program does, without polling.
void idleFor(unsigned milliseconds);

}  // namespace ormala::bench
