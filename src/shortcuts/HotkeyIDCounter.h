#pragma once

#include <cstdint>

namespace quillon {

/// Hands out ids that are never used twice.
class HotkeyIDCounter {
public:
    explicit HotkeyIDCounter(std::uint32_t next = 1)
        : m_next(next) {}

    /// The id that comes next.
    std::uint32_t next() const { return m_next; }

    /// Uses the next id up. Ends the program when there is no further one to go on to.
    std::uint32_t take();

private:
    std::uint32_t m_next;
};

} // namespace quillon
