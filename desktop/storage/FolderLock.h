#pragma once

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

namespace quillon::desktop {

/// Keeps other processes that ask for the same lock waiting while it lives. Where the file system
/// knows no locks it does nothing.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& folder)
        : m_descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (m_descriptor >= 0) {
            ::flock(m_descriptor, LOCK_EX);
        }
    }
    ~FolderLock() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int m_descriptor;
};

} // namespace quillon::desktop
