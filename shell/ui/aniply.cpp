#include "shell/ui/aniply.h"

#include "canvas/player.h"
#include "platform/placement.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace corvanta {

namespace {

Area areaOf(const QRect &r) { return {double(r.x()), double(r.y()), double(r.width()), double(r.height())}; }

void moveOff(QDialog &dialog, const QWidget &canvas)
{
    const QRect frame(dialog.pos(), dialog.size() + frameOf(dialog));
    const Area place =
        movedOff(areaOf(frame), areaOf(canvas.frameGeometry()), areaOf(dialog.screen()->availableGeometry()));
    dialog.move(int(place.left), int(place.top));
}

} // namespace

void showPlayer(QWidget &owner, const QWidget &canvas)
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
    CentreDialog(dialog, &owner);
    moveOff(dialog, canvas);
    dialog.exec();
    closePlayer();
}

} // namespace corvanta
