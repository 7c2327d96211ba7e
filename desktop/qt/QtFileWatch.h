#pragma once

#include "desktop/x11/FileWatch.h"

namespace quillon::desktop {

/// A watch kept by the toolkit's loop.
FileWatch qtFileWatch();

} // namespace quillon::desktop
