#include "shell/AnnotationMode.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace quillon::test {

TEST(AnnotationMode, drawing_is_enabled_in_every_mode_but_disabled) {
    EXPECT_FALSE(isDrawingEnabled(AnnotationMode::disabled));
    EXPECT_TRUE(isDrawingEnabled(AnnotationMode::drawing));
    EXPECT_TRUE(isDrawingEnabled(AnnotationMode::whiteboard));
}

TEST(AnnotationMode, only_whiteboard_is_the_whiteboard) {
    EXPECT_FALSE(isWhiteboard(AnnotationMode::disabled));
    EXPECT_FALSE(isWhiteboard(AnnotationMode::drawing));
    EXPECT_TRUE(isWhiteboard(AnnotationMode::whiteboard));
}

TEST(AnnotationMode, modes_have_an_order_and_a_hash) {
    EXPECT_LT(AnnotationMode::disabled, AnnotationMode::drawing);
    EXPECT_LT(AnnotationMode::drawing, AnnotationMode::whiteboard);
    const std::unordered_set<AnnotationMode> modes{
        AnnotationMode::disabled, AnnotationMode::whiteboard, AnnotationMode::disabled};
    EXPECT_EQ(modes.size(), 2U);
}

} // namespace quillon::test
