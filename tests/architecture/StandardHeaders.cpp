#include "architecture/Architecture.h"

namespace quillon::test {

const std::set<std::string>& standardHeaders() {
    static const std::set<std::string> headers = {
        "algorithm",   "any",       "array",   "charconv", "chrono",     "cmath",
        "cstddef",     "cstdint",   "cstdio",  "cstdlib",  "functional", "initializer_list",
        "iostream",    "iterator",  "limits",  "map",      "memory",     "numbers",
        "numeric",     "optional",  "random",  "span",     "string",     "string_view",
        "type_traits", "typeindex", "utility", "variant",  "vector",
    };
    return headers;
}

} // namespace quillon::test
