#include "actions/action_kinds.h"
#include "document/kinds.h"
#include "platform/qt/fonts.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

// The offscreen platform says these of every window.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.contains("This plugin does not support") && !text.contains("grabbing the keyboard"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(printMessage);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir state; // what tests leave is no author's
    for (const char *folder : {"XDG_STATE_HOME", "XDG_DATA_HOME"})
        qputenv(folder, state.path().toUtf8());
    corvanta::registerFontSubstitutions();
    corvanta::BuildActionKinds();
    corvanta::buildKindRegistry();
    return RUN_ALL_TESTS();
}
