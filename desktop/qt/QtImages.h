#pragma once

#include "desktop/qt/SymbolIcon.h"
#include "platform/Image.h"

namespace quillon::desktop {

/// The pictures that are compiled into the program: symbols under "symbols/", assets beside it.
class QtImages : public Images {
public:
    std::optional<Image> named(std::string_view name) const override;
    std::optional<Image> symbol(std::string_view name,
                                std::string_view accessibilityDescription) const override;

    /// What stands for `image` on the screen. The tint applies to symbols; an asset keeps its
    /// colours.
    static QIcon icon(const Image& image, SymbolTint tint);
};

} // namespace quillon::desktop
