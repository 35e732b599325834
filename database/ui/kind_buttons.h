#pragma once

#include "document/kinds.h"

#include <QIcon>
#include <QWidget>

#include <functional>
#include <vector>

class QFrame;
class QLabel;
class QTimer;
class QToolButton;

namespace corvanta {

// The row of kind buttons butobj0 to butobj8, exactly one of them pressed, with the tip that names the button under the
// pointer. They are drag sources of their kinds too.
class KindButtons : public QWidget {
public:
    KindButtons(const std::function<QIcon(Kind)> &pictureOf, QWidget *parent);

    // The pointer has moved within the window, on the screen: over a button the tip comes, elsewhere it goes.
    void pointerMoved(QPoint pointer);
    void hideTip();
    void press(std::size_t index);

private:
    void addButton(std::size_t index, const QIcon &picture);
    void showTip(std::size_t index, QPoint pointer);
    void checkTip();

    std::vector<QToolButton *> buttons;
    QFrame *picbut;
    QLabel *txtbut;
    QTimer *timer; // its tag is the index of the button with the tip
};

} // namespace corvanta
