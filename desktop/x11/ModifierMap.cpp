#include "desktop/x11/ModifierMap.h"

#include "platform/HotKeys.h"

#include <algorithm>
#include <initializer_list>

namespace quillon::desktop {

namespace {

namespace keysym {
constexpr xcb_keysym_t scrollLock = 0xFF14;
constexpr xcb_keysym_t numLock = 0xFF7F;
constexpr xcb_keysym_t metaLeft = 0xFFE7;
constexpr xcb_keysym_t metaRight = 0xFFE8;
constexpr xcb_keysym_t altLeft = 0xFFE9;
constexpr xcb_keysym_t altRight = 0xFFEA;
constexpr xcb_keysym_t superLeft = 0xFFEB;
constexpr xcb_keysym_t superRight = 0xFFEC;
} // namespace keysym

/// The first of Mod1 to Mod5 that one of the meanings is bound to, or zero.
std::uint16_t maskOf(const ModifierMap::Symbols& symbols,
                     std::initializer_list<xcb_keysym_t> meanings) {
    constexpr std::size_t firstFree = XCB_MAP_INDEX_1;
    for (std::size_t index = firstFree; index < symbols.size(); ++index) {
        if (std::ranges::find_first_of(symbols[index], meanings) != symbols[index].end()) {
            return static_cast<std::uint16_t>(1U << index);
        }
    }
    return 0;
}

} // namespace

ModifierMap::ModifierMap(const Symbols& symbols)
    : m_super(maskOf(symbols, {keysym::superLeft, keysym::superRight}))
    , m_alt(maskOf(symbols, {keysym::altLeft, keysym::altRight}))
    , m_numLock(maskOf(symbols, {keysym::numLock}))
    , m_scrollLock(maskOf(symbols, {keysym::scrollLock})) {
    if (m_alt == 0) {
        m_alt = maskOf(symbols, {keysym::metaLeft, keysym::metaRight});
    }
}

ModifierMap ModifierMap::usual() {
    Symbols symbols;
    symbols[XCB_MAP_INDEX_1] = {keysym::altLeft};
    symbols[XCB_MAP_INDEX_2] = {keysym::numLock};
    symbols[XCB_MAP_INDEX_4] = {keysym::superLeft};
    return ModifierMap(symbols);
}

std::optional<std::uint16_t> ModifierMap::state(std::uint32_t modifiers) const {
    std::uint16_t state = 0;
    for (const auto& [modifier, mask] : masks()) {
        if ((modifiers & modifier) == 0) {
            continue;
        }
        if (mask == 0) {
            return std::nullopt;
        }
        state |= mask;
    }
    return state;
}

std::uint32_t ModifierMap::modifiers(std::uint16_t state) const {
    std::uint32_t held = 0;
    for (const auto& [modifier, mask] : masks()) {
        held |= (state & mask) != 0 ? modifier : 0;
    }
    return held;
}

std::array<ModifierMap::Mask, 4> ModifierMap::masks() const {
    return {{
        {cmdKey, m_super},
        {shiftKey, XCB_MOD_MASK_SHIFT},
        {optionKey, m_alt},
        {controlKey, XCB_MOD_MASK_CONTROL},
    }};
}

std::uint16_t ModifierMap::locks() const {
    return XCB_MOD_MASK_LOCK | m_numLock | m_scrollLock;
}

std::vector<std::uint16_t> ModifierMap::lockStates() const {
    const std::uint16_t all = locks();
    std::vector<std::uint16_t> states;
    // Counting down through the subsets of a mask: subtracting one borrows through the bits that
    // are not in it, which the mask then takes off again.
    for (std::uint16_t subset = all;; subset = static_cast<std::uint16_t>((subset - 1) & all)) {
        states.push_back(subset);
        if (subset == 0) {
            return states;
        }
    }
}

} // namespace quillon::desktop
