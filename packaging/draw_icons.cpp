#include "shell/ui/icons.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>

#include <filesystem>

// draw_icons FOLDER SIZE...: writes the program's icon as FOLDER/SIZE.png.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    std::filesystem::create_directories(folder.toStdString());
    for (int i = 2; i < argc; ++i) {
        const QString size = QString::fromLocal8Bit(argv[i]);
        const QPixmap picture = corvanta::programIcon().pixmap(size.toInt(), size.toInt());
        if (!picture.save(folder + '/' + size + QStringLiteral(".png")))
            return 1;
    }
    return 0;
}
