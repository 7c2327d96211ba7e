#pragma once

#include "settings/SettingsView.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace quillon::test {

/// The titles of a form from the top: each section's in brackets, then its rows'.
inline std::vector<std::string> outline(const Form& form) {
    struct Label {
        std::string operator()(const ToggleRow& row) const { return row.label; }
        std::string operator()(const PickerRow& row) const { return row.title; }
        std::string operator()(const SliderRow& row) const { return row.label; }
        std::string operator()(const SwatchRow& row) const { return row.label; }
        std::string operator()(const ColorPickerRow& row) const { return row.title; }
        std::string operator()(const ShortcutRow& row) const { return row.label; }
    };
    std::vector<std::string> titles;
    for (const auto& section : form.sections) {
        titles.push_back("[" + section.title + "]");
        for (const auto& row : section.rows) {
            titles.push_back(std::visit(Label(), row));
        }
    }
    return titles;
}

/// A settings view on a fresh host.
struct SettingsTest : testing::Test {
    AppSettings& settings() { return AppSettings::shared(); }
    Form form() { return std::get<Form>(view.content()); }
    Form formOf(SettingsTab tab) {
        view.select(tab);
        return form();
    }
    /// A row of the present form by its place.
    template <typename Row>
    Row row(std::size_t section, std::size_t index) {
        return std::get<Row>(form().sections.at(section).rows.at(index));
    }

    FakeHost host;
    SettingsView view;
};

} // namespace quillon::test
