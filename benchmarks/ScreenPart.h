#pragma once

#include "desktop/support/XConnection.h"

#include <cstdint>
#include <vector>

namespace quillon::bench {

/// A part of the screen as it is seen, with everything composed over it: rows from the top, four
/// bytes a pixel, the last of which is always nought. Throws when the screen cannot be read.
std::vector<std::uint8_t> screenPart(const test::XConnection& connection, int x, int y, int width,
                                     int height);

} // namespace quillon::bench
