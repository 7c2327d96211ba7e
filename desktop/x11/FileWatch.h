#pragma once

#include "foundation/Cancellable.h"

#include <functional>

namespace quillon::desktop {

/// Calls `whenReadable` on the main thread whenever something can be read from the file, until the
/// result is dropped. The loop that runs the program offers it.
using FileWatch = std::function<Cancellable(int file, std::function<void()> whenReadable)>;

} // namespace quillon::desktop
