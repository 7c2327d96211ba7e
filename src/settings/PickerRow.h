#pragma once

#include "foundation/Binding.h"
#include "model/RawRepresentable.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// How a picker stands in its row: with its own title, or after a text with room between them, as a
/// menu of its natural size.
enum class PickerStyle { automatic, menu };

/// A choice of one of several entries.
struct PickerRow {
    std::string title;
    /// What the entries show, in order.
    std::vector<std::string> entries;
    /// The number of the entry that is chosen.
    std::function<std::size_t()> selection;
    std::function<void(std::size_t)> select;
    PickerStyle style = PickerStyle::automatic;

    /// One entry for each case of an enumeration, in order.
    template <RawRepresentable E>
    static PickerRow of(std::string title, const Binding<E>& binding,
                        std::function<std::string(E)> text,
                        PickerStyle style = PickerStyle::automatic) {
        static constexpr auto cases = allCases<E>();
        PickerRow row{std::move(title), {}, {}, {}, style};
        for (const E value : cases) {
            row.entries.push_back(text(value));
        }
        row.selection = [binding] {
            const auto* found = std::ranges::find(cases, binding.get());
            return static_cast<std::size_t>(found - cases.begin());
        };
        row.select = [binding](std::size_t index) { binding.set(cases.at(index)); };
        return row;
    }
};

} // namespace quillon
