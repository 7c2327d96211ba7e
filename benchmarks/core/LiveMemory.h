#pragma once

#include <cstddef>

namespace quillon::bench {

/// How many bytes of the heap are in use, of all that `new` has handed out in this program.
std::size_t liveBytes();

} // namespace quillon::bench
