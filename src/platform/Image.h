#pragma once

#include "foundation/Geometry.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// A picture by name: a symbol glyph, tinted where it is shown, or an asset with colours of its
/// own.
struct Image {
    enum class Kind { asset, symbol };

    Kind kind = Kind::symbol;
    std::string name;
    std::string accessibilityDescription;
    /// In points; nothing leaves the size to the place where the picture is shown.
    std::optional<CGSize> size;

    friend bool operator==(const Image&, const Image&) = default;
};

/// The pictures that the host has.
class Images {
public:
    virtual ~Images() = default;

    /// The asset of that name, or nothing when the program came without it.
    virtual std::optional<Image> named(std::string_view name) const = 0;
    /// The symbol of that name, or nothing when there is none.
    virtual std::optional<Image> symbol(std::string_view name,
                                        std::string_view accessibilityDescription) const = 0;
};

} // namespace quillon
