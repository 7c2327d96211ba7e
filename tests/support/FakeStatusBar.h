#pragma once

#include "platform/StatusBar.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

/// A status area with room for one item, whose last state can be read back.
class FakeStatusBar : public StatusBar {
public:
    std::unique_ptr<StatusItem> statusItemWithLength(CGFloat newLength) override {
        length = newLength;
        return std::make_unique<Item>(*this);
    }

    std::optional<CGFloat> length;
    std::optional<Image> image;
    std::string action;
    std::optional<Menu> menu;
    /// Whether the item is made with a button.
    bool hasButton = true;

private:
    class Item : public StatusItem, public StatusBarButton {
    public:
        explicit Item(FakeStatusBar& bar)
            : m_bar(bar) {}
        StatusBarButton* button() override { return m_bar.hasButton ? this : nullptr; }
        void setMenu(const Menu& newMenu) override { m_bar.menu = newMenu; }
        void setImage(const Image& newImage) override { m_bar.image = newImage; }
        void setAction(std::string selector) override { m_bar.action = std::move(selector); }

    private:
        FakeStatusBar& m_bar;
    };
};

/// The pictures that a test says there are.
class FakeImages : public Images {
public:
    std::optional<Image> named(std::string_view name) const override {
        if (std::ranges::find(assets, name) == assets.end()) {
            return std::nullopt;
        }
        return Image{Image::Kind::asset, std::string(name), {}, {}};
    }
    std::optional<Image> symbol(std::string_view name,
                                std::string_view description) const override {
        if (!hasSymbols) {
            return std::nullopt;
        }
        return Image{Image::Kind::symbol, std::string(name), std::string(description), {}};
    }

    std::vector<std::string> assets;
    bool hasSymbols = true;
};

} // namespace quillon::test
