#include <QApplication>

#include <gtest/gtest.h>

/// Tests run on real widgets, so all of them get an application; the offscreen platform unless another one is named.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
