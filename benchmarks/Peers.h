#pragma once

#include <functional>
#include <string>

namespace quillon::bench {

/// Whether a program stands on the path.
bool isInstalled(const std::string& name);

/// A round of one subject.
struct Round {
    std::string subject;
    int number = 1;
};

/// Measures another program beside this one, if it is installed. When it fails it is missing in the
/// rows of this round, and nothing else is; a note on standard error tells so:
/// "- lens: without xzoom in round 2, for xzoom did not come up".
void measurePeer(const std::string& name, const Round& round, const std::function<void()>& measure);

} // namespace quillon::bench
