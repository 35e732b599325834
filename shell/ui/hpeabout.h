#pragma once

#include <QDialog>

namespace corvanta {

// The about box.
class Hpeabout : public QDialog {
public:
    Hpeabout();
};

void showAbout();

} // namespace corvanta
