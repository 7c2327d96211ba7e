#include "architecture/Architecture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

using namespace quillon::test;

namespace {

const std::filesystem::path kRoot = QUILLON_ROOT;

/// Hands over each file of these trees, by its path from the root.
void forEachFile(
    const std::vector<std::string>& trees,
    const std::function<void(const std::filesystem::path& path, const std::string& text)>& visit) {
    for (const std::string& tree : trees) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / tree)) {
            if (entry.is_regular_file()) {
                std::ifstream file(entry.path(), std::ios::binary);
                visit(entry.path().lexically_relative(kRoot),
                      std::string(std::istreambuf_iterator<char>(file), {}));
            }
        }
    }
}

bool isSource(const std::filesystem::path& path) {
    return path.extension() == ".h" || path.extension() == ".cpp";
}

} // namespace

TEST(Architecture, every_include_keeps_to_the_levels) {
    int files = 0;
    forEachFile({"src", "desktop", "tests", "benchmarks"}, [&](const auto& path, const auto& text) {
        if (isSource(path)) {
            ++files;
            for (const std::string& rule : brokenRules(path.string(), text)) {
                ADD_FAILURE() << rule;
            }
        }
    });
    EXPECT_GT(files, 100) << "the walk must reach the sources";
}

TEST(Architecture, the_list_of_standard_headers_has_no_stale_entry) {
    std::set<std::string> stale = standardHeaders();
    forEachFile({"src"}, [&](const auto& path, const auto& text) {
        if (isSource(path)) {
            for (const Include& include : includesOf(text)) {
                stale.erase(include.name);
            }
        }
    });
    for (const std::string& name : stale) {
        ADD_FAILURE() << name << " is on the list and nowhere in src/";
    }
}

TEST(Architecture, only_the_host_finds_its_packages) {
    int files = 0;
    const auto visit = [&](const std::filesystem::path& path, const std::string& text) {
        if (path.filename() == "CMakeLists.txt" || path.extension() == ".cmake") {
            ++files;
            for (const std::string& rule : brokenBuildRules(path.string(), text)) {
                ADD_FAILURE() << rule;
            }
        }
    };
    forEachFile({"src", "desktop", "tests", "benchmarks", "cmake"}, visit);
    std::ifstream root(kRoot / "CMakeLists.txt");
    visit("CMakeLists.txt", std::string(std::istreambuf_iterator<char>(root), {}));
    EXPECT_GT(files, 10) << "the walk must reach the build files";
}
