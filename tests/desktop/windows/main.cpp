#include "desktop/support/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const quillon::test::VirtualDesktop desktop(
        {.width = 900, .height = 600, .hasCompositor = false, .hasWindowManager = false});
    for (const auto& [name, value] : desktop.environment()) {
        qputenv(name.c_str(), QByteArray::fromStdString(value));
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
