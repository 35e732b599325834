#include "shell/ui/aniply.h"

#include "canvas/player.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "platform/qt/window_switch.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvanta {

void showPlayer(QWidget *owner)
{
    QDialog dialog;
    QVBoxLayout *contents = startDialog(dialog, "aniply", "Animation Player");
    Fields fields = addFields(*contents);
    QLabel *playtext = addInfoRow(fields, "playtext", "");
    QPushButton *stopbut = addButtons(dialog, {{"stopbut", "&Stop", [&dialog] { dialog.reject(); }}}).front();
    const PlayerTexts texts = openPlayer();
    playtext->setText(toQString(texts.playtext));
    if (!texts.stopbut.empty())
        stopbut->setText(toQString(texts.stopbut));
    CentreDialog(dialog, owner);
    stayInFront(dialog);
    dialog.exec();
    closePlayer();
}

} // namespace corvanta
