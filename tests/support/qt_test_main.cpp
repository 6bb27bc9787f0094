// GoogleTest with a Qt event loop, for the tests that use real sockets.

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
