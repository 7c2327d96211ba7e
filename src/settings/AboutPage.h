#pragma once

#include "foundation/Geometry.h"
#include "platform/Image.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A fact with the symbol in front of it.
struct AboutLine {
    std::string text;
    std::string symbol;

    friend bool operator==(const AboutLine&, const AboutLine&) = default;
};

/// A page without controls, from the top: the icon in the accent colour, the name in a bold title,
/// what it is in a headline, a divider, and a few facts, left-aligned.
struct AboutPage {
    static constexpr CGFloat spacing = 24;
    static constexpr CGFloat lineSpacing = 8;
    static constexpr CGSize iconSize{64, 64};

    std::string navigationTitle;
    /// Nothing when the host has no such picture; its room stays.
    std::optional<Image> icon;
    std::string name;
    std::string purpose;
    std::vector<AboutLine> lines;
};

} // namespace quillon
