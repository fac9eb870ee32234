#include <gtest/gtest.h>
#include <QApplication>

/// Every test program has an application object, so that widgets and queued calls work in it.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
