#include "desktop/qt/QtImages.h"

#include <QFile>

namespace quillon::desktop {

namespace {

QString path(Image::Kind kind, std::string_view name) {
    const auto file = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    return (kind == Image::Kind::symbol ? QStringLiteral(":/symbols/") : QStringLiteral(":/")) +
           file + QStringLiteral(".svg");
}

} // namespace

std::optional<Image> QtImages::named(std::string_view name) const {
    if (!QFile::exists(path(Image::Kind::asset, name))) {
        return std::nullopt;
    }
    return Image{Image::Kind::asset, std::string(name), {}, {}};
}

std::optional<Image> QtImages::symbol(std::string_view name,
                                      std::string_view accessibilityDescription) const {
    if (!QFile::exists(path(Image::Kind::symbol, name))) {
        return std::nullopt;
    }
    return Image{Image::Kind::symbol, std::string(name), std::string(accessibilityDescription), {}};
}

QIcon QtImages::icon(const Image& image, SymbolTint tint) {
    return SymbolIcon::make(path(image.kind, image.name),
                            image.kind == Image::Kind::symbol ? tint : SymbolTint::none);
}

} // namespace quillon::desktop
