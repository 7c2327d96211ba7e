#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::test {

/// One `#include`, without its brackets or quotes.
struct Include {
    enum class Form { angleBrackets, quotes, other };

    Form form = Form::other;
    std::string name;

    friend bool operator==(const Include&, const Include&) = default;
};

/// Every `#include` of a source, in order.
std::vector<Include> includesOf(std::string_view text);

/// What of this source breaks the walls of the house, as sentences; nothing when it keeps them.
///
/// `path` is relative to the root of the repository, and says which rules hold:
/// - `src/`: angle brackets only around headers of the standard library (`standardHeaders()`), but
///   `nlohmann/json.hpp` in `src/foundation/JSON.h`; quotes only to the same folder, to a lower
///   level, or to the chief header of a feature; no conditional compilation.
/// - `desktop/`: a feature is reached through its chief header; Qt stands in `qt/` and `main.cpp`,
///   SQLite in `storage/`, xcb not in `storage/`.
/// - `tests/NAME/`: what `src/NAME/` may include, `src/NAME/` itself and `tests/support/`.
/// - `tests/support/`: ports and foundation.
/// - `tests/desktop/` and `benchmarks/`: free.
std::vector<std::string> brokenRules(const std::string& path, std::string_view text);

/// The same for a CMake file: Qt's package, its code generators, and the packages of the display
/// and the database are the host's alone.
std::vector<std::string> brokenBuildRules(const std::string& path, std::string_view text);

/// The headers of the standard library that `src/` uses, all of them and no others.
const std::set<std::string>& standardHeaders();

} // namespace quillon::test
