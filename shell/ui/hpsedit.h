#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace corvanta {

class Editform;
class Menus;
class Strip;

// The main window: menu bar and toolbar strip. Only its width can change.
class Hpsedit : public QMainWindow {
public:
    Hpsedit();

    // The canvas window that follows this one's state; while it carries the tag "IN INPOPTS" it does not.
    void setCanvas(Editform *window);

    void buildAddMenu(); // Add submenu and object tools, once the kinds are registered
    void refreshCommands();
    void refreshFile();
    // Comes to the front and opens a menu by its access key.
    void openMenu(char letter);

    std::function<bool()> mayClose; // asked before the window closes
    std::function<void()> closed;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    bool isNormal() const;
    void snapToStrip();
    void followState();
    void forwardToCanvas(const QKeyEvent &event);

    Menus *menus;
    Strip *strip;
    QPointer<Editform> canvas;
    QTimer settling; // the window system has not told the window's state yet when it tells its size
};

} // namespace corvanta
