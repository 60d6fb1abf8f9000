#include <QApplication>
#include <QStyleFactory>
#include <gtest/gtest.h>

// One style on every machine, so that what a test measures and sees does not depend on the desktop.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
