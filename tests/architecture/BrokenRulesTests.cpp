#include "architecture/Architecture.h"

#include <gtest/gtest.h>

using namespace quillon::test;

namespace {

bool isBroken(const std::string& path, const std::string& include) {
    return !brokenRules(path, "#include " + include + "\n").empty();
}

} // namespace

TEST(IncludesOf, reads_every_spelling) {
    const std::vector<Include> expected = {{Include::Form::angleBrackets, "vector"},
                                           {Include::Form::quotes, "model/AppSettings.h"},
                                           {Include::Form::angleBrackets, "QWidget"},
                                           {Include::Form::other, "CONFIGURED_HEADER"}};
    EXPECT_EQ(includesOf("#include <vector>\n"
                         "  #  include \"model/AppSettings.h\" // why\n"
                         "#include<QWidget>\r\n"
                         "#include CONFIGURED_HEADER\n"),
              expected);
}

TEST(IncludesOf, passes_over_comments_and_texts) {
    EXPECT_TRUE(
        includesOf("// #include <QWidget>\nconst char* a = \"#include <QWidget>\";").empty());
}

TEST(BrokenRules, names_the_file_the_header_and_the_reason) {
    EXPECT_EQ(
        brokenRules("src/model/A.h", "#include <QWidget>\n"),
        std::vector<std::string>{"src/model/A.h: QWidget is not on the list of standard headers"});
}

TEST(BrokenRules, the_system_includes_no_toolkit_display_or_database) {
    for (const char* header : {"<QWidget>", "<QtCore/QString>", "<xcb/xcb.h>", "<X11/Xlib.h>",
                               "<sqlite3.h>", "<unistd.h>", "<wayland-client.h>", "MACRO"}) {
        EXPECT_TRUE(isBroken("src/shell/A.cpp", header)) << header;
    }
    EXPECT_FALSE(isBroken("src/shell/A.cpp", "<vector>"));
}

TEST(BrokenRules, a_standard_header_that_is_not_listed_is_refused_in_the_system) {
    EXPECT_TRUE(isBroken("src/model/A.cpp", "<thread>"));
}

TEST(BrokenRules, the_json_library_has_one_door) {
    EXPECT_FALSE(isBroken("src/foundation/JSON.h", "<nlohmann/json.hpp>"));
    EXPECT_TRUE(isBroken("src/foundation/JSON.cpp", "<nlohmann/json.hpp>"));
    EXPECT_TRUE(isBroken("src/model/ModelJSON.h", "<nlohmann/json.hpp>"));
    EXPECT_TRUE(isBroken("tests/model/JSONTests.cpp", "<nlohmann/json.hpp>"));
}

TEST(BrokenRules, the_system_never_includes_the_host) {
    EXPECT_TRUE(isBroken("src/shell/A.cpp", "\"desktop/qt/QtWindow.h\""));
    EXPECT_TRUE(isBroken("src/shell/A.cpp", "\"../desktop/qt/QtWindow.h\""));
    EXPECT_TRUE(isBroken("src/shell/A.cpp", "\"StatusMenu.h\""));
}

TEST(BrokenRules, an_include_goes_to_the_same_folder_or_a_lower_level) {
    EXPECT_FALSE(isBroken("src/model/A.h", "\"model/AppSettings.h\""));
    EXPECT_FALSE(isBroken("src/model/A.h", "\"platform/Host.h\""));
    EXPECT_FALSE(isBroken("src/annotation/A.h", "\"foundation/Geometry.h\""));
    EXPECT_TRUE(isBroken("src/foundation/A.h", "\"platform/Host.h\""));
    EXPECT_TRUE(isBroken("src/platform/A.h", "\"model/AppSettings.h\""));
    EXPECT_TRUE(isBroken("src/model/A.h", "\"annotation/AnnotationCanvas.h\""));
    EXPECT_TRUE(isBroken("src/cursor/A.h", "\"shell/OrvalisCloneApp.h\""));
}

TEST(BrokenRules, a_feature_is_reached_through_its_chief_header) {
    EXPECT_FALSE(isBroken("src/annotation/A.cpp", "\"annotation/StrokePath.h\""));
    for (const char* from :
         {"src/toolbar/A.cpp", "src/shell/A.cpp", "desktop/qt/A.cpp", "tests/shell/A.cpp"}) {
        EXPECT_FALSE(isBroken(from, "\"annotation/AnnotationCanvas.h\"")) << from;
        EXPECT_TRUE(isBroken(from, "\"annotation/StrokePath.h\"")) << from;
    }
}

TEST(BrokenRules, a_folder_without_a_level_includes_nothing_of_the_system) {
    EXPECT_TRUE(isBroken("src/extras/A.h", "\"foundation/Geometry.h\""));
    EXPECT_TRUE(isBroken("src/shell/A.h", "\"extras/A.h\""));
}

TEST(BrokenRules, the_system_is_compiled_under_no_condition) {
    for (const char* line : {"#ifdef __linux__", "  # if defined(Q_OS_LINUX)", "#ifndef _WIN32",
                             "#elif __has_include(<QWidget>)"}) {
        EXPECT_FALSE(brokenRules("src/shell/A.cpp", line).empty()) << line;
        EXPECT_TRUE(brokenRules("desktop/qt/A.cpp", line).empty()) << line;
    }
}

TEST(BrokenRules, each_library_of_the_host_has_its_folder) {
    EXPECT_FALSE(isBroken("desktop/qt/A.cpp", "<QWidget>"));
    EXPECT_FALSE(isBroken("desktop/main.cpp", "<QApplication>"));
    EXPECT_FALSE(isBroken("desktop/qt/A.cpp", "<xcb/xcb.h>"));
    EXPECT_FALSE(isBroken("desktop/storage/A.h", "<sqlite3.h>"));
    EXPECT_TRUE(isBroken("desktop/x11/A.cpp", "<QWidget>"));
    EXPECT_TRUE(isBroken("desktop/storage/A.cpp", "<QtCore/QString>"));
    EXPECT_TRUE(isBroken("desktop/qt/A.cpp", "<sqlite3.h>"));
    EXPECT_TRUE(isBroken("desktop/storage/A.cpp", "<xcb/xcb.h>"));
}

TEST(BrokenRules, a_test_stands_where_its_folder_stands) {
    EXPECT_FALSE(isBroken("tests/annotation/A.cpp", "\"annotation/StrokePath.h\""));
    EXPECT_FALSE(isBroken("tests/annotation/A.cpp", "\"support/FakeHost.h\""));
    EXPECT_FALSE(isBroken("tests/annotation/A.cpp", "<gtest/gtest.h>"));
    EXPECT_FALSE(isBroken("tests/annotation/A.cpp", "<thread>"));
    EXPECT_FALSE(isBroken("tests/support/A.h", "\"platform/Host.h\""));
    EXPECT_TRUE(isBroken("tests/annotation/A.cpp", "<QImage>"));
    EXPECT_TRUE(isBroken("tests/annotation/A.cpp", "<sqlite3.h>"));
    EXPECT_TRUE(isBroken("tests/annotation/A.cpp", "\"shell/OverlayWindow.h\""));
    EXPECT_TRUE(isBroken("tests/model/A.cpp", "\"desktop/qt/QtBitmap.h\""));
    EXPECT_TRUE(isBroken("tests/support/A.h", "\"model/AppSettings.h\""));
}

TEST(BrokenRules, tests_of_the_host_and_benchmarks_are_free) {
    EXPECT_FALSE(isBroken("tests/desktop/painting/A.cpp", "<QImage>"));
    EXPECT_FALSE(isBroken("benchmarks/A.cpp", "<xcb/xcb.h>"));
}

TEST(BrokenBuildRules, the_packages_of_the_host_are_found_in_its_trees_alone) {
    for (const char* command :
         {"find_package(Qt6 REQUIRED)", "FIND_PACKAGE ( Qt6 )", "set(CMAKE_AUTOMOC ON)",
          "find_package(SQLite3)", "pkg_check_modules(XCB xcb)"}) {
        EXPECT_FALSE(brokenBuildRules("src/shell/CMakeLists.txt", command).empty()) << command;
        EXPECT_FALSE(brokenBuildRules("CMakeLists.txt", command).empty()) << command;
        EXPECT_TRUE(brokenBuildRules("desktop/CMakeLists.txt", command).empty()) << command;
    }
    EXPECT_TRUE(
        brokenBuildRules("CMakeLists.txt", "# find_package(Qt6)\nfind_package(GTest)").empty());
}
