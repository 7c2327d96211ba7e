#include "architecture/Architecture.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <regex>
#include <sstream>

namespace quillon::test {

namespace {

struct Layer {
    std::string_view name;
    int level = 0;
    /// The one header by which folders at its side and above reach it; empty: all of them.
    std::string_view chiefHeader;
};

constexpr std::array<Layer, 11> kLayers{{
    {"foundation", 0, ""},
    {"platform", 1, ""},
    {"model", 2, ""},
    {"raster", 2, ""},
    {"annotation", 3, "annotation/AnnotationCanvas.h"},
    {"shortcuts", 3, "shortcuts/HotkeyManager.h"},
    {"toolbar", 3, "toolbar/FloatingToolbarView.h"},
    {"cursor", 3, "cursor/CursorHighlightManager.h"},
    {"spotlight", 3, "spotlight/SpotlightManager.h"},
    {"settings", 4, "settings/SettingsView.h"},
    {"shell", 4, "shell/OrvalisCloneApp.h"},
}};

constexpr int kPortLevel = 1;
constexpr int kHostLevel = 5;

const Layer* layerNamed(std::string_view name) {
    const auto found = std::ranges::find(kLayers, name, &Layer::name);
    return found == kLayers.end() ? nullptr : &*found;
}

/// "annotation" of "annotation/Eraser.h"; empty when there is no folder.
std::string firstFolder(std::string_view path) {
    const auto slash = path.find('/');
    return std::string(slash == std::string_view::npos ? "" : path.substr(0, slash));
}

bool looksLikeStandardHeader(std::string_view name) {
    return !name.empty() && std::ranges::all_of(name, [](unsigned char character) {
        return std::islower(character) || std::isdigit(character) || character == '_';
    });
}

/// Whether code of `folder`, which stands at `level`, may include `name` of the system; the answer
/// is why not.
std::optional<std::string> whyUnreachable(const std::string& name, std::string_view folder,
                                          int level) {
    const Layer* const target = layerNamed(firstFolder(name));
    if (!target) {
        return "is in no folder of src/";
    }
    if (target->name == folder) {
        return std::nullopt;
    }
    if (target->level > level) {
        return "stands on a higher level";
    }
    if (target->chiefHeader.empty()) {
        return target->level < level ? std::nullopt : std::optional("stands on the same level");
    }
    if (name != target->chiefHeader) {
        return "is not " + std::string(target->chiefHeader) + ", which speaks for its folder";
    }
    return std::nullopt;
}

std::optional<std::string> judgeSource(const std::string& path, const std::string& folder,
                                       const Include& include) {
    if (include.form == Include::Form::quotes) {
        const Layer* const layer = layerNamed(folder);
        return layer ? whyUnreachable(include.name, folder, layer->level)
                     : "is included from a folder without a level";
    }
    if (include.name == "nlohmann/json.hpp" && path == "src/foundation/JSON.h") {
        return std::nullopt;
    }
    if (!standardHeaders().contains(include.name)) {
        return "is not on the list of standard headers";
    }
    return std::nullopt;
}

std::optional<std::string> judgeHost(const std::string& folder, const Include& include) {
    if (include.form == Include::Form::quotes) {
        return firstFolder(include.name) == "desktop"
                   ? std::nullopt
                   : whyUnreachable(include.name, "desktop", kHostLevel);
    }
    static const std::regex qt("(Qt[A-Za-z0-9]*/)?Q[A-Z][A-Za-z0-9]*|q[a-z0-9_]*\\.h");
    if (std::regex_match(include.name, qt) && folder != "qt" && !folder.empty()) {
        return "belongs in desktop/qt";
    }
    if (include.name == "sqlite3.h" && folder != "storage") {
        return "belongs in desktop/storage";
    }
    if (include.name.starts_with("xcb/") && folder == "storage") {
        return "belongs in desktop/x11";
    }
    return std::nullopt;
}

std::optional<std::string> judgeTest(const std::string& folder, const Include& include) {
    if (include.form == Include::Form::angleBrackets) {
        const bool isTestLibrary =
            include.name == "gtest/gtest.h" || include.name == "gmock/gmock.h";
        return isTestLibrary || looksLikeStandardHeader(include.name)
                   ? std::nullopt
                   : std::optional("is no header of the standard library");
    }
    const std::string target = firstFolder(include.name);
    if (target == "support" || target == folder) {
        return std::nullopt;
    }
    if (folder == "support") {
        return whyUnreachable(include.name, folder, kPortLevel + 1);
    }
    const Layer* const layer = layerNamed(folder);
    return layer ? whyUnreachable(include.name, folder, layer->level)
                 : "is included from a folder without a level";
}

std::optional<std::string> judge(const std::string& path, const Include& include) {
    const std::string tree = firstFolder(path);
    const std::string folder = firstFolder(std::string_view(path).substr(tree.size() + 1));
    if (include.form == Include::Form::other) {
        return "is neither in angle brackets nor in quotes";
    }
    if (tree == "src") {
        return judgeSource(path, folder, include);
    }
    if (tree == "desktop") {
        return judgeHost(folder, include);
    }
    if (tree == "tests" && folder != "desktop") {
        return judgeTest(folder, include);
    }
    return std::nullopt;
}

bool isHostTree(const std::string& path) {
    return path.starts_with("desktop/") || path.starts_with("tests/desktop/") ||
           path.starts_with("benchmarks/");
}

/// Lower case, without comments and blanks.
std::string normalisedBuildText(std::string_view text) {
    std::string normalised;
    bool isComment = false;
    for (const char character : text) {
        isComment = character == '\n' ? false : isComment || character == '#';
        if (!isComment && !std::isspace(static_cast<unsigned char>(character))) {
            normalised += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        }
    }
    return normalised;
}

} // namespace

std::vector<Include> includesOf(std::string_view text) {
    static const std::regex pattern(R"(^\s*#\s*(?:include|include_next|import)\b\s*(.*?)\s*$)");
    static const std::regex angleBrackets("<([^>]*)>.*");
    static const std::regex quotes("\"([^\"]*)\".*");
    std::vector<Include> includes;
    std::istringstream lines{std::string(text)};
    std::smatch found;
    for (std::string line; std::getline(lines, line);) {
        if (!std::regex_match(line, found, pattern)) {
            continue;
        }
        const std::string what = found[1];
        std::smatch name;
        if (std::regex_match(what, name, angleBrackets)) {
            includes.push_back({Include::Form::angleBrackets, name[1]});
        } else if (std::regex_match(what, name, quotes)) {
            includes.push_back({Include::Form::quotes, name[1]});
        } else {
            includes.push_back({Include::Form::other, what});
        }
    }
    return includes;
}

std::vector<std::string> brokenRules(const std::string& path, std::string_view text) {
    std::vector<std::string> broken;
    for (const Include& include : includesOf(text)) {
        if (const auto reason = judge(path, include)) {
            broken.push_back(path + ": " + include.name + " " + *reason);
        }
    }
    static const std::regex condition(R"(^\s*#\s*(if|ifdef|ifndef|elif)\b.*)");
    std::istringstream lines{std::string(text)};
    for (std::string line; path.starts_with("src/") && std::getline(lines, line);) {
        if (std::regex_match(line, condition)) {
            broken.push_back(path + ": is compiled under a condition: " + line);
        }
    }
    return broken;
}

std::vector<std::string> brokenBuildRules(const std::string& path, std::string_view text) {
    static constexpr std::array<std::string_view, 7> hostCommands = {
        "find_package(qt",  "find_package(sqlite",
        "find_package(x11", "pkg_check_modules(",
        "automoc",          "autouic",
        "autorcc"};
    std::vector<std::string> broken;
    if (isHostTree(path)) {
        return broken;
    }
    const std::string normalised = normalisedBuildText(text);
    for (const std::string_view command : hostCommands) {
        if (normalised.find(command) != std::string::npos) {
            broken.push_back(path + ": " + std::string(command) + " is the host's");
        }
    }
    return broken;
}

} // namespace quillon::test
