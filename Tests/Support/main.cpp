#include <QApplication>

#include <gtest/gtest.h>

#include <csignal>

int main(int argc, char **argv)
{
    std::signal(SIGINT, SIG_DFL); // Shells have it ignored by what they start in the background.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
