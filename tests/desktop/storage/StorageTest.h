#pragma once

#include "desktop/storage/SqliteDefaults.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace quillon::test {

namespace fs = std::filesystem;

/// Keeps what is written on standard error while it lives.
class StandardErrorCapture {
public:
    StandardErrorCapture()
        : m_original(::dup(STDERR_FILENO)) {
        std::fflush(stderr);
        ::dup2(::fileno(m_file), STDERR_FILENO);
    }
    ~StandardErrorCapture() {
        std::fflush(stderr);
        ::dup2(m_original, STDERR_FILENO);
        ::close(m_original);
        std::fclose(m_file);
    }
    StandardErrorCapture(const StandardErrorCapture&) = delete;
    StandardErrorCapture& operator=(const StandardErrorCapture&) = delete;

    std::vector<std::string> lines() const {
        std::fflush(stderr);
        std::rewind(m_file);
        std::vector<std::string> result;
        std::string line;
        for (int character = std::fgetc(m_file); character != EOF; character = std::fgetc(m_file)) {
            if (character == '\n') {
                result.push_back(std::exchange(line, {}));
            } else {
                line += static_cast<char>(character);
            }
        }
        if (!line.empty()) {
            result.push_back(line);
        }
        return result;
    }

private:
    std::FILE* m_file = std::tmpfile();
    int m_original;
};

inline std::string contentsOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeFile(const fs::path& file, const std::string& contents) {
    std::ofstream(file, std::ios::binary) << contents;
}

/// A process beside the test that does `body`; it leaves no trace of the test framework.
template <typename Body>
pid_t inAnotherProcess(Body body) {
    const pid_t process = ::fork();
    if (process == 0) {
        ::_exit(body() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    return process;
}

/// The exit status, or 128 + the signal that ended the process.
inline int statusOf(pid_t process) {
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

/// A config folder of its own for each test.
class StorageTest : public testing::Test {
protected:
    StorageTest() {
        std::string name = testing::TempDir() + "quillon-storage-XXXXXX";
        config = ::mkdtemp(name.data());
    }
    ~StorageTest() override {
        std::error_code error;
        fs::remove_all(config, error);
    }

    desktop::SqliteDefaults start() const { return desktop::SqliteDefaults(config); }

    fs::path folder() const { return config / "quillon-mark"; }
    fs::path file() const { return folder() / "settings.sqlite"; }
    fs::path beside(const std::string& suffix) const { return fs::path(file()) += suffix; }

    /// The names in the folder with what the files hold.
    std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> result;
        for (const auto& entry : fs::directory_iterator(folder())) {
            result[entry.path().filename()] = contentsOf(entry.path());
        }
        return result;
    }

    /// Lays down a file in the place of the database or beside it.
    void layDown(const std::string& suffix, const std::string& contents) const {
        fs::create_directories(folder());
        writeFile(beside(suffix), contents);
    }

    fs::path config;
};

} // namespace quillon::test
