// The least that a program with two windows and a line of text in each does: what the editor's start is held against.
#include "shell/ui/pause_watch.h"

#include <QApplication>
#include <QLabel>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    corvanta::watchFirstPaint(2);
    QLabel main("Main window"), canvas("Canvas window");
    main.resize(720, 80);
    canvas.resize(600, 420);
    main.show();
    canvas.show();
    return QApplication::exec();
}
