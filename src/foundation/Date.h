#pragma once

#include <chrono>

namespace quillon {

/// A point in time, counted in seconds since 1 January 2001 00:00:00 UTC.
struct Date {
    double secondsSinceReferenceDate = 0;

    static Date now() {
        using namespace std::chrono_literals;
        constexpr std::chrono::sys_days reference = 2001y / 1 / 1;
        const auto elapsed = std::chrono::system_clock::now() - reference;
        return {std::chrono::duration<double>(elapsed).count()};
    }

    friend auto operator<=>(const Date&, const Date&) = default;
};

} // namespace quillon
