#include "desktop/storage/DatabaseFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string>
#include <system_error>

namespace quillon::desktop {

namespace fs = std::filesystem;

namespace {

constexpr std::array kLogs{"-journal", "-wal", "-shm"};

fs::path logOf(fs::path file, const char* log) {
    return file += log;
}

/// Also true for a link to nowhere.
bool isTaken(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

bool hasLogs(const fs::path& file) {
    return std::ranges::any_of(kLogs, [&](const char* log) { return isTaken(logOf(file, log)); });
}

bool moveIfThere(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (isTaken(from)) {
        fs::rename(from, to, error);
    }
    return !error;
}

} // namespace

bool makePrivateFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::create_directories(folder, error)) {
        fs::permissions(folder, fs::perms::owner_all, error);
    }
    return fs::is_directory(folder, error);
}

void makePrivateFile(const fs::path& file) {
    // One that exists is not opened: to close it would drop the locks that this process holds on
    // it.
    const int descriptor =
        ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

bool hasOrphanedLogs(const fs::path& file) {
    std::error_code error;
    const bool hasContents = fs::file_size(file, error) > 0 && !error;
    return !hasContents && hasLogs(file);
}

std::optional<fs::path> setAside(const fs::path& file) {
    fs::path aside;
    for (int number = 1; aside.empty() || isTaken(aside) || hasLogs(aside); ++number) {
        aside = file;
        aside += ".damaged-" + std::to_string(number);
    }
    bool isMoved = moveIfThere(file, aside);
    for (const char* log : kLogs) {
        isMoved = moveIfThere(logOf(file, log), logOf(aside, log)) && isMoved;
    }
    return isMoved ? std::optional(aside) : std::nullopt;
}

} // namespace quillon::desktop
