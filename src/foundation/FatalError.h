#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace quillon {

/// Ends the program at a broken assumption, after one line on standard error that gives the reason.
[[noreturn]] inline void fatalError(std::string_view reason) {
    std::cerr << "quillon-mark: " << reason << std::endl;
    std::abort();
}

} // namespace quillon
