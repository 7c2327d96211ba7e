#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillon::desktop {

/// A segment of memory that another process of the same user can attach to.
///
/// The system frees it when the last process that is attached lets go of it, once it has been
/// marked: nothing is left behind then, not even after a kill.
class SharedMemory {
public:
    /// Nothing when the system gives none.
    static std::optional<SharedMemory> ofSize(std::size_t bytes);

    ~SharedMemory();
    SharedMemory(SharedMemory&& other) noexcept;
    SharedMemory& operator=(SharedMemory&&) = delete;

    /// By which the other process finds it.
    std::uint32_t id() const { return static_cast<std::uint32_t>(m_id); }
    std::span<const std::uint8_t> bytes() const { return m_bytes; }

    /// Marks the segment to be freed after its last use. To be called once the other process is
    /// attached; without it the destructor does so.
    void freeAfterLastUse();

private:
    SharedMemory(int id, std::span<const std::uint8_t> bytes)
        : m_id(id)
        , m_bytes(bytes) {}

    int m_id;
    std::span<const std::uint8_t> m_bytes;
    bool m_isMarked = false;
};

} // namespace quillon::desktop
