#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quillon::desktop {

/// Which of the eight real modifiers of the server stand for which modifier key.
///
/// Command is the Super key and option is Alt; shift and control are themselves.
class ModifierMap {
public:
    /// For each real modifier, in the order Shift, Lock, Control, Mod1 to Mod5, what the keys that
    /// are bound to it mean.
    using Symbols = std::array<std::vector<xcb_keysym_t>, 8>;

    explicit ModifierMap(const Symbols& symbols);

    /// What servers have when nobody changed it: Alt is Mod1, Num Lock Mod2, Super Mod4.
    static ModifierMap usual();

    /// The state in which exactly these modifiers are held, or nothing when this keyboard lacks one
    /// of them. Bits of the mask that are no modifier are ignored.
    std::optional<std::uint16_t> state(std::uint32_t modifiers) const;

    /// Which modifiers are held in a state; locks and buttons are left out.
    std::uint32_t modifiers(std::uint16_t state) const;

    /// All the lock modifiers together: Caps Lock, and Num Lock and Scroll Lock where they are
    /// bound.
    std::uint16_t locks() const;

    /// Every state that the lock modifiers can have together, none of them included.
    std::vector<std::uint16_t> lockStates() const;

    friend bool operator==(const ModifierMap&, const ModifierMap&) = default;

private:
    /// A bit of a modifier mask, and what it is in a state.
    using Mask = std::pair<std::uint32_t, std::uint16_t>;
    std::array<Mask, 4> masks() const;

    // Masks; zero where no key is bound to a modifier.
    std::uint16_t m_super = 0;
    std::uint16_t m_alt = 0;
    std::uint16_t m_numLock = 0;
    std::uint16_t m_scrollLock = 0;
};

} // namespace quillon::desktop
