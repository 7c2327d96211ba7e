#pragma once

#include <filesystem>
#include <optional>

namespace quillon::desktop {

/// Makes a folder, and those above it that are missing, the last one for the user alone. False when
/// it does not stand afterwards.
bool makePrivateFolder(const std::filesystem::path& folder);

/// Makes an empty file for the user alone, unless there is one.
void makePrivateFile(const std::filesystem::path& file);

/// True for logs of a database that is not there, or empty: it could only be begun over them.
bool hasOrphanedLogs(const std::filesystem::path& file);

/// Renames a database, together with the logs that belong to it, to the first of
/// `<file>.damaged-1`, `<file>.damaged-2`, ... of which nothing exists. Answers the new name, or
/// nothing when something could not be moved. The caller keeps other processes away meanwhile.
std::optional<std::filesystem::path> setAside(const std::filesystem::path& file);

} // namespace quillon::desktop
