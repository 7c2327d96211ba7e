#include "shortcuts/HotkeyShortcutFormatter.h"

#include "platform/CarbonModifiers.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quillon {

namespace {

struct ModifierName {
    std::uint32_t bit;
    std::string_view symbol;
};

/// In the order in which they are written.
constexpr ModifierName kModifierNames[] = {
    {cmdKey, "⌘"},
    {shiftKey, "⇧"},
    {optionKey, "⌥"},
    {controlKey, "⌃"},
};

struct KeyName {
    std::uint32_t code;
    std::string_view name;
};

constexpr KeyName kKeyNames[] = {
    {0, "A"},  {1, "S"},       {2, "D"},       {3, "F"},  {4, "H"},  {5, "G"},    {6, "Z"},
    {7, "X"},  {8, "C"},       {9, "V"},       {11, "B"}, {12, "Q"}, {13, "W"},   {14, "E"},
    {15, "R"}, {16, "Y"},      {17, "T"},      {18, "1"}, {19, "2"}, {20, "3"},   {21, "4"},
    {22, "6"}, {23, "5"},      {24, "="},      {25, "9"}, {26, "7"}, {27, "-"},   {28, "8"},
    {29, "0"}, {30, "]"},      {31, "O"},      {32, "U"}, {33, "["}, {34, "I"},   {35, "P"},
    {37, "L"}, {38, "J"},      {36, "Return"}, {39, "'"}, {40, "K"}, {41, ";"},   {42, "\\"},
    {43, ","}, {44, "/"},      {45, "N"},      {46, "M"}, {47, "."}, {48, "Tab"}, {49, "Space"},
    {50, "`"}, {51, "Delete"}, {53, "Esc"},
};

} // namespace

std::string HotkeyShortcutFormatter::label(const HotkeyConfig& config) {
    return modifierLabel(config.modifiers) + keyCodeLabel(config.keyCode);
}

std::uint32_t HotkeyShortcutFormatter::carbonModifiers(std::uint64_t flags) {
    return quillon::carbonModifiers(flags & NSEventModifierFlags::deviceIndependentMask);
}

std::string HotkeyShortcutFormatter::modifierLabel(std::uint32_t mask) {
    std::string label;
    for (const auto& [bit, symbol] : kModifierNames) {
        label += (mask & bit) != 0 ? symbol : "";
    }
    return label;
}

std::string HotkeyShortcutFormatter::keyCodeLabel(std::uint32_t code) {
    const auto* found = std::ranges::find(kKeyNames, code, &KeyName::code);
    return found == std::end(kKeyNames) ? "Key(" + std::to_string(code) + ")"
                                        : std::string(found->name);
}

} // namespace quillon
