#pragma once

#include "page/page_properties.h"
#include "platform/qt/tied_text.h"

#include <QDialog>

#include <string>
#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace corvanta {

// The dialog pgprops over the fields of the process-wide page.
class PageDialog : public QDialog {
public:
    PageDialog();

private:
    using Text = std::string PagePropertyFields::*;

    struct TiedField {
        TiedText control;
        Text member;
    };
    struct TiedFlag {
        QCheckBox *box;
        bool PagePropertyFields::*member;
    };

    template <class Control> Control *tie(Control *control, Text member)
    {
        texts.push_back({TiedText(*control), member});
        return control;
    }
    void addBackground(QBoxLayout &layout);
    void addSound(QBoxLayout &layout);
    void addPlainGroup(QBoxLayout &layout, const char *name, const QString &caption, const char *field, Text member);
    void addPageType(QBoxLayout &layout);
    void addConnection(QBoxLayout &layout);
    void addDatabase(QBoxLayout &layout);
    void addFlags(QBoxLayout &layout);
    void enableSize(bool typed);
    void showForType(int pageType);
    void generateStatement();
    void load();
    void confirm();

    PagePropertyFields values;
    std::vector<TiedField> texts;
    std::vector<TiedFlag> flags;
    QLineEdit *bkght = nullptr, *bkgwd = nullptr;
    QComboBox *types = nullptr;
    QGroupBox *database = nullptr;
    QLineEdit *deftbl = nullptr;
    QPlainTextEdit *statement = nullptr;
    QPushButton *generate = nullptr;
};

} // namespace corvanta
