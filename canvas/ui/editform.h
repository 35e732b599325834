#pragma once

#include "canvas/ui/canvas_input.h"
#include "canvas/ui/page_area.h"
#include "canvas/ui/panels.h"
#include "canvas/ui/tab_badges.h"
#include "canvas/ui/trackers.h"
#include "canvas/ui/visuals.h"
#include "platform/event.h"

#include <QList>
#include <QTimer>
#include <QWidget>

class QScrollArea;

namespace corvanta {

// The canvas window: the page at its pixel size between the mock toolbar and the status panel. While it lives
// it listens to the process-wide document and to the rules of the canvas.
class Editform : public QWidget {
public:
    Editform();
    ~Editform() override;

    EditformCommands commands;

    // Applies the page-wide fields: background, page size and, in the normal window state, the window's size.
    // A page that does not fit on the screen scrolls. A page without a size takes that of the window.
    void applyPageLayout();
    void showMockToolbar(bool shown);
    void showStatusPanel(bool shown);
    void showBindings(bool shown);

    PageArea &pageArea() const { return *area; }
    // Where the window with its frame has room on the screen when it takes a page's size; empty for all of it.
    std::function<QRect()> room;
    // Paints the page and its visuals again, as after loading media.
    void repaintPage();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool isNormal() const; // neither minimised nor maximised
    int frameHeight() const;
    QSize innerSize() const;
    bool isAnswer(const QResizeEvent &event);
    int barWidth() const; // of a scroll bar
    void askFor(QSize wanted);
    void keepInRoom();
    QSize screenRoom() const; // for the page, when the window fills the screen
    void takeMissingSize();
    void takeSizeFromWindow(QSize windowBefore);
    void resizeToPage();
    void arrange();
    void listenToDocument();
    void listenToCanvas();
    void listenToRunning();
    void listenToPictures();
    void paintNow();
    void createVisual(std::int16_t index);
    void objectChanged(std::int16_t index);
    void pageRestored(const Page &before);
    void takeFocus();
    void scrollOn();
    void showReference();
    void scrollToCurrent();
    void drop(QPoint at, const DragPayload &payload);
    void showStatus(std::int16_t pointed);

    MockToolbar *toolbar;
    QScrollArea *scroller;
    PageArea *area;
    StatusPanel *statusPanel;
    Trackers trackers;
    TabBadges *badges;
    Visuals visuals;
    CanvasInput input;
    EventConnections connections; // to the document, the rules of the canvas and what runs
    QTimer objtimer;
    QTimer scrolling;       // runs while a gesture is held at the border of a page that scrolls
    QPoint pointer;         // of that gesture, on the screen
    QList<QSize> asked;     // sizes that the window system may still answer with, in the order of asking
    Size fitted;            // the part of the page that the window showed when it took the page's size
    bool inLayout = false;  // resizes are of the program's making
    QRect normalPlace;      // of the window without its frame, before it was maximised
    bool restoring = false; // the window is normal again but does not stand in its normal place yet
};

} // namespace corvanta
