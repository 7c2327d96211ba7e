#include "desktop/storage/SqliteDefaults.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace quillon::test {

namespace {

/// Gives a variable of the environment a value, or none, and takes it back.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const char* value)
        : m_name(name) {
        if (const char* former = std::getenv(name)) {
            m_former = former;
        }
        put(value);
    }
    ~ScopedVariable() { put(m_former ? m_former->c_str() : nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    void put(const char* value) const {
        if (value) {
            ::setenv(m_name, value, 1);
        } else {
            ::unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_former;
};

std::string configFolder(const char* xdgConfigHome, const char* home) {
    const ScopedVariable config("XDG_CONFIG_HOME", xdgConfigHome);
    const ScopedVariable homeFolder("HOME", home);
    return desktop::userConfigFolder().string();
}

} // namespace

TEST(UserConfigFolder, the_variable_for_it_comes_first) {
    EXPECT_EQ(configFolder("/somewhere/else", "/home/user"), "/somewhere/else");
}

TEST(UserConfigFolder, it_stands_in_the_home_folder_otherwise) {
    EXPECT_EQ(configFolder(nullptr, "/home/user"), "/home/user/.config");
    EXPECT_EQ(configFolder("", "/home/user"), "/home/user/.config");
}

TEST(UserConfigFolder, a_relative_path_is_passed_over) {
    EXPECT_EQ(configFolder("config", "/home/user"), "/home/user/.config");
}

TEST(UserConfigFolder, it_is_unknown_without_a_home) {
    EXPECT_EQ(configFolder(nullptr, nullptr), "");
    EXPECT_EQ(configFolder("config", "home"), "");
}

} // namespace quillon::test
