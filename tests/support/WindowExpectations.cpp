#include "support/WindowExpectations.h"

#include <gtest/gtest.h>

namespace quillon::test {

void expectToFloatTransparently(const Window& window) {
    EXPECT_EQ(window.styleMask(), WindowStyleMask::borderless);
    EXPECT_EQ(window.backingType(), BackingStoreType::buffered);
    EXPECT_FALSE(window.defersCreation());
    EXPECT_FALSE(window.isOpaque());
    EXPECT_EQ(window.backgroundColor(), Color::clear);
    EXPECT_EQ(window.level(), 3);
    EXPECT_EQ(window.collectionBehavior(), 0x1U | 0x100U | 0x40U);
    EXPECT_FALSE(window.hasShadow());
    EXPECT_FALSE(window.isReleasedWhenClosed());
}

} // namespace quillon::test
