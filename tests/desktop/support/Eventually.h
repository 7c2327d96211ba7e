#pragma once

#include <chrono>
#include <functional>

namespace quillon::test {

inline constexpr std::chrono::milliseconds defaultBound{5000};

/// Waits until `condition` holds, looking again every few milliseconds; false when it did not
/// within `bound`.
bool eventually(const std::function<bool()>& condition,
                std::chrono::milliseconds bound = defaultBound);

/// True when `condition` holds now and all through `span`.
bool stays(const std::function<bool()>& condition, std::chrono::milliseconds span);

} // namespace quillon::test
