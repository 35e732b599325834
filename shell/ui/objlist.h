#pragma once

#include "platform/event.h"

#include <QDialog>

class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace corvanta {

// The object list. The main and canvas windows are switched off while it is open.
class Objlist : public QDialog {
public:
    Objlist();
    ~Objlist() override;

    // Fills the list again; the first visible row stays.
    void fill();

protected:
    void changeEvent(QEvent *event) override;

private:
    int selectedRow() const; // object index; -1 for none
    void openProperties();
    void refreshButtons();
    void follow();

    QLineEdit *filter = nullptr;
    EventConnection following; // of the canvas's current object
    QTreeWidget *olist = nullptr;
    QPushButton *propbut = nullptr, *delbut = nullptr;
};

void showObjectList();
Objlist *openObjectList(); // none while it is not open and visible

} // namespace corvanta
