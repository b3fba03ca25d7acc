// The tests of the window, on the platform without a screen.
#include <gtest/gtest.h>

#include <QApplication>

#include "desktop_application.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    swiftroll::ui::SetUpToolkit();
    return RUN_ALL_TESTS();
}
