#pragma once

namespace ormala {

/// What has become of something on its way to the clipboard. `held`: another program has it open.
enum class ClipboardAnswer { taken, held, refused };

}  // namespace ormala
