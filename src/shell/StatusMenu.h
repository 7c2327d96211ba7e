#pragma once

#include "platform/Menu.h"

namespace quillon {

/// The menu of the status item. Its entries act through the responder chain; none shows a mark, and
/// no title ever changes.
Menu statusMenu();

/// The one menu of the program's own windows.
Menu annotationCommandMenu();

} // namespace quillon
