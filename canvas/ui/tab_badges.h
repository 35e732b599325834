#pragma once

#include <QWidget>

namespace corvanta {

// The tab numbers of all objects, shown over the page while they are given by clicking.
class TabBadges : public QWidget {
public:
    explicit TabBadges(QWidget &area);

    void showNumbers(bool shown); // again after each new number

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corvanta
