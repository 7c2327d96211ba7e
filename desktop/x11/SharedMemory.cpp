#include "desktop/x11/SharedMemory.h"

#include <sys/ipc.h>
#include <sys/shm.h>

#include <utility>

namespace quillon::desktop {

namespace {

/// What `shmat` answers instead of an address.
bool isAddress(const void* memory) {
    return reinterpret_cast<std::intptr_t>(memory) != -1;
}

} // namespace

std::optional<SharedMemory> SharedMemory::ofSize(std::size_t bytes) {
    // For this user alone: a server of another user, or one across the network to which the number
    // means another segment, must not get at it.
    const int id = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (id < 0) {
        return std::nullopt;
    }
    void* memory = shmat(id, nullptr, SHM_RDONLY);
    if (!isAddress(memory)) {
        shmctl(id, IPC_RMID, nullptr);
        return std::nullopt;
    }
    return SharedMemory(id, {static_cast<const std::uint8_t*>(memory), bytes});
}

SharedMemory::SharedMemory(SharedMemory&& other) noexcept
    : m_id(other.m_id)
    , m_bytes(std::exchange(other.m_bytes, {}))
    , m_isMarked(std::exchange(other.m_isMarked, true)) {}

SharedMemory::~SharedMemory() {
    if (m_bytes.data()) {
        shmdt(m_bytes.data());
    }
    freeAfterLastUse();
}

void SharedMemory::freeAfterLastUse() {
    if (!std::exchange(m_isMarked, true)) {
        shmctl(m_id, IPC_RMID, nullptr);
    }
}

} // namespace quillon::desktop
