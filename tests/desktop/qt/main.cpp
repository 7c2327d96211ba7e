#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Two screens, as the file lays them out.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLON_TEST_SCREENS);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
