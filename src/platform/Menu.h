#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The modifiers of a key equivalent. The host shows and takes `command` as its desktop's own
/// command modifier.
enum class KeyEquivalentModifiers { command };

/// An entry of a menu: plain data, carried out by sending `action` up the responder chain.
struct MenuItem {
    std::string title;
    std::string action;
    /// The key that triggers the entry while the menu is open; empty for none.
    std::string keyEquivalent;
    KeyEquivalentModifiers keyEquivalentModifiers = KeyEquivalentModifiers::command;
    bool isSeparator = false;

    static MenuItem separator() {
        MenuItem item;
        item.isSeparator = true;
        return item;
    }

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

struct Menu {
    std::string title;
    std::vector<MenuItem> items;

    friend bool operator==(const Menu&, const Menu&) = default;
};

} // namespace quillon
