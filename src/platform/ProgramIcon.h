#pragma once

#include "platform/Image.h"

#include <optional>
#include <string_view>

namespace quillon {

/// The picture that stands for the program: the asset if the program came with it, else a symbol if
/// the host has that.
inline std::optional<Image> programIcon(const Images& images, std::string_view symbol,
                                        std::string_view accessibilityDescription) {
    auto asset = images.named("QuillonIcon");
    return asset ? asset : images.symbol(symbol, accessibilityDescription);
}

} // namespace quillon
