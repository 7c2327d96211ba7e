#include "desktop/support/TemporaryFolder.h"

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace quillon::test {

TemporaryFolder::TemporaryFolder()
    : m_path(std::filesystem::temp_directory_path() / "quillon-test-XXXXXX") {
    if (!mkdtemp(m_path.data())) {
        throw std::runtime_error("no temporary folder could be made");
    }
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

} // namespace quillon::test
