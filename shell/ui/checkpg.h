#pragma once

class QWidget;

namespace corvanta {

// "Check Page": the faults of the page in a window that stays open beside the canvas. A double click on a fault makes
// its object current. Showing it again checks again.
void showPageCheck(QWidget *owner);

} // namespace corvanta
