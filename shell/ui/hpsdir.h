#pragma once

#include "shell/directory.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;

namespace corvanta {

// The Directory dialog: chooses the page directory.
class Hpsdir : public QDialog {
public:
    Hpsdir();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void show(const DirectoryChoice &shown);
    void confirm();
    void open(const QListWidgetItem *row);

    DirectoryChoice choice;
    QLabel *curdirec = nullptr;
    QListWidget *direclist = nullptr;
    QComboBox *drivelist = nullptr;
};

void showDirectory();

} // namespace corvanta
