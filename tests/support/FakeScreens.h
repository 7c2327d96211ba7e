#pragma once

#include "platform/Screens.h"

#include <vector>

namespace quillon::test {

/// Screens that a test lays out; the first is the main one.
class FakeScreens : public Screens {
public:
    std::vector<NSScreen> screens() const override { return all; }
    std::optional<NSScreen> mainScreen() const override {
        return all.empty() ? std::nullopt : std::optional(all.front());
    }

    std::vector<NSScreen> all{{{0, 0, 1920, 1080},
                               {0, 0, 1920, 1050},
                               1,
                               "Screen",
                               {{"NSScreenNumber", std::int64_t{1}}}}};
};

} // namespace quillon::test
