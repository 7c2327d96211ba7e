#include "settings/SettingsTest.h"

namespace quillon::test {

namespace {

struct About : SettingsTest {
    AboutPage page() {
        view.select(SettingsTab::about);
        return std::get<AboutPage>(view.content());
    }
};

} // namespace

TEST_F(About, it_tells_the_name_the_purpose_and_three_facts) {
    EXPECT_EQ(page().navigationTitle, "About");
    EXPECT_EQ(page().name, "Quillon Mark");
    EXPECT_EQ(page().purpose, "Screen Annotation & Presentation Tool");
    EXPECT_EQ(page().lines, (std::vector<AboutLine>{{"Built with SwiftUI & AppKit", "swift"},
                                                    {"macOS 15.1.1+ (Sequoia)", "macwindow"},
                                                    {"Menu Bar Utility", "app.badge"}}));
}

TEST_F(About, the_icon_is_the_asset_when_the_program_came_with_one) {
    host.images.assets = {"QuillonIcon"};
    ASSERT_TRUE(page().icon);
    EXPECT_EQ(page().icon->kind, Image::Kind::asset);
    EXPECT_EQ(page().icon->name, "QuillonIcon");
    EXPECT_EQ(page().icon->size, (CGSize{64, 64}));
}

TEST_F(About, without_the_asset_the_symbol_of_the_tray_stands_for_it) {
    ASSERT_TRUE(page().icon);
    EXPECT_EQ(page().icon->kind, Image::Kind::symbol);
    EXPECT_EQ(page().icon->name, "pencil.and.outline");
    EXPECT_EQ(page().icon->size, (CGSize{64, 64}));
}

TEST_F(About, without_any_picture_the_page_stands_all_the_same) {
    host.images.hasSymbols = false;
    EXPECT_FALSE(page().icon);
    EXPECT_EQ(page().lines.size(), 3U);
}

TEST(AboutPage, its_parts_stand_further_apart_than_its_facts) {
    EXPECT_EQ(AboutPage::spacing, 24);
    EXPECT_EQ(AboutPage::lineSpacing, 8);
}

TEST(ColorPickerRow, it_is_a_circle_with_a_thin_ring) {
    EXPECT_EQ(ColorPickerRow::circleSize, (CGSize{24, 24}));
    EXPECT_EQ(ColorPickerRow::ringWidth, 1);
    EXPECT_EQ(ColorPickerRow::ringOpacity, 0.5);
}

} // namespace quillon::test
