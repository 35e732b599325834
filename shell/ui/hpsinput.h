#pragma once

#include <QDialog>

#include <string>

class QLineEdit;
class QPushButton;

namespace corvanta {

// The one-line input dialog. It takes its texts from inputparam and leaves its result there.
class Hpsinput : public QDialog {
public:
    Hpsinput();

private:
    void confirm();

    QLineEdit *inplin = nullptr;
    QPushButton *ok = nullptr;
};

// Shows the dialog; see askText.
std::string showInput(const std::string &parameter);

} // namespace corvanta
