#include "shell/ShellTest.h"
#include "shell/StatusMenu.h"

namespace quillon::test {

namespace {

using StatusItemTest = ShellTest;

Image symbol(const char* name) {
    return {Image::Kind::symbol, name, "Orvalis Clone", {}};
}

const Image sizedAsset{Image::Kind::asset, "QuillonIcon", {}, CGSize{16, 16}};

} // namespace

TEST_F(StatusItemTest, it_has_variable_length_the_menu_and_an_action) {
    launch();
    EXPECT_EQ(host.statusBar.length, NSVariableStatusItemLength);
    EXPECT_EQ(host.statusBar.menu, statusMenu());
    EXPECT_EQ(host.statusBar.action, "menuBarButtonClicked");
}

TEST_F(StatusItemTest, without_the_asset_a_first_launch_shows_the_outlined_pencil) {
    launch();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline"));
}

TEST_F(StatusItemTest, it_shows_the_outlined_pencil_until_the_stored_mode_takes_effect) {
    host.userDefaults.setBool("isAnnotationEnabled", true);
    delegate->applicationDidFinishLaunching();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline"));
    host.mainQueue.run();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline.fill"));
}

TEST_F(StatusItemTest, the_pencil_is_filled_while_annotation_is_on) {
    launch();
    delegate->toggleAnnotation();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline.fill"));
    delegate->toggleAnnotation();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline"));
}

TEST_F(StatusItemTest, the_picture_follows_the_setting_one_turn_later) {
    launch();
    settings().isAnnotationEnabled = true;
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline"));
    host.mainQueue.run();
    EXPECT_EQ(host.statusBar.image, symbol("pencil.and.outline.fill"));
}

TEST_F(StatusItemTest, the_asset_is_shown_sixteen_points_wide_whatever_the_mode) {
    host.images.assets = {"QuillonIcon"};
    launch();
    EXPECT_EQ(host.statusBar.image, sizedAsset);
    delegate->toggleAnnotation();
    EXPECT_EQ(host.statusBar.image, sizedAsset);
}

TEST_F(StatusItemTest, a_host_without_asset_and_symbols_leaves_the_item_without_a_picture) {
    host.images.hasSymbols = false;
    launch();
    delegate->toggleAnnotation();
    EXPECT_FALSE(host.statusBar.image);
    EXPECT_TRUE(host.statusBar.menu);
}

TEST_F(StatusItemTest, an_item_without_a_button_still_has_its_menu) {
    host.statusBar.hasButton = false;
    launch();
    delegate->toggleAnnotation();
    EXPECT_FALSE(host.statusBar.image);
    EXPECT_EQ(host.statusBar.action, "");
    EXPECT_EQ(host.statusBar.menu, statusMenu());
}

TEST_F(StatusItemTest, the_menu_does_not_change_with_the_mode) {
    launch();
    delegate->toggleWhiteboard();
    host.mainQueue.run();
    EXPECT_EQ(host.statusBar.menu, statusMenu());
}

TEST_F(StatusItemTest, without_a_status_item_an_update_of_its_picture_ends_the_program) {
    EXPECT_DEATH(delegate->toggleAnnotation(), "there is no status item");
}

} // namespace quillon::test
