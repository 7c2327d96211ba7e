#pragma once

#include <chrono>

namespace quillon {

/// A point in time, counted in seconds since 1 January 2001 00:00:00 UTC.
struct Date {
    double secondsSinceReferenceDate = 0;

    static Date now() {
        using namespace std::chrono;
        constexpr sys_days reference = year{2001} / January / 1;
        return {duration<double>(system_clock::now() - reference).count()};
    }

    friend auto operator<=>(const Date&, const Date&) = default;
};

} // namespace quillon
