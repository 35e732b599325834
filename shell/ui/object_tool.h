#pragma once

#include "document/kinds.h"

#include <QToolButton>

namespace corvanta {

// An object tool: a click places an object as the Add submenu does, a drag carries it to the page.
class ObjectTool : public QToolButton {
public:
    ObjectTool(const RegisteredKind &offered, QWidget *parent);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void drag();

    std::int16_t kindCode;
    QPoint pressed;
};

} // namespace corvanta
