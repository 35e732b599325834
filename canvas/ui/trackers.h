#pragma once

#include "canvas/geometry.h"

#include <QWidget>

#include <array>
#include <vector>

namespace corvanta {

// A tracker handle or a frame marker: a small box in front of all visuals.
class HandleBox : public QWidget {
public:
    HandleBox(QWidget &pageArea, const QString &name, const QColor &colour);
    void setColour(const QColor &colour);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor edge;
};

// What the selection and the gestures show on the page: the handles "trbox" of the current object, the frame
// markers "trboxf" of the multi-selection, the outline "boxline" and the group frame "multbox".
class Trackers {
public:
    explicit Trackers(QWidget &area);

    // The lowest of these widgets: visuals stay below it.
    QWidget &ceiling() const { return *multbox; }

    void showHandles(const Rect &object);
    void hideHandles();
    bool handlesShown() const { return trbox.front()->isVisible(); }
    const std::array<HandleBox *, handleCount> &handles() const { return trbox; }

    void placeMarkers(int slot, const Rect &object);
    void hideMarkers(int slot);
    // The member of this slot, the one that others line up with, has markers of its own colour; 0 for none.
    void showReference(int slot);
    void hideAll();

    void drawOutline(const Rect &r);
    void hideOutline();
    void showGroupFrame(const Rect &r);
    void hideGroupFrame();
    void drawBand(const Rect &r);
    void hideBand();

private:
    void loadMarkers(int slot);
    void colourMarkers(int slot, const QColor &colour);

    QWidget &pageArea;
    QWidget *multbox, *band;
    int reference = 0; // slot
    std::array<HandleBox *, handleCount> trbox{};
    std::array<QWidget *, 4> boxline{};
    std::vector<HandleBox *> trboxf; // eight for each slot, loaded when the slot is first used
};

} // namespace corvanta
