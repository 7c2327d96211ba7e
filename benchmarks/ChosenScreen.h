#pragma once

#include "desktop/support/VirtualDesktop.h"

#include <string>
#include <vector>

namespace quillon::bench {

/// A desktop as wide and high as `--width` and `--height` say on the command line.
test::VirtualDesktop::Options screenOf(const std::vector<std::string>& arguments);

/// The subject, and behind it the screen when that is not the usual one: "pen, 3840×2160".
std::string subjectOn(const std::string& subject, const test::VirtualDesktop::Options& screen);

} // namespace quillon::bench
