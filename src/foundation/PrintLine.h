#pragma once

#include <iostream>
#include <string_view>

namespace quillon {

/// Prints `text` and a line end on standard output, and flushes, so that a reader at the other end
/// of a pipe sees the line at once. This is the only log of the system.
inline void printLine(std::string_view text) {
    std::cout << text << std::endl;
}

} // namespace quillon
