#pragma once

#include <QString>

#include <vector>

class QLineEdit;
class QListWidget;

namespace corvanta {

struct Fields;

// An entry of a list of names. The entry's text is the name alone.
struct NameRow {
    QString name, detail; // the detail stands at the right, in a weaker colour
    QString tip;
    bool key = false; // has the mark of a key
};

// Lets a list show details and marks, and makes long lists quick.
void prepareNameList(QListWidget &list);
void fillNames(QListWidget &list, const std::vector<NameRow> &rows);

// A field above a list that hides the entries that do not hold its text, letter case ignored.
QLineEdit *addNameFilter(Fields &fields, const char *name, const QString &hint);
void filterNames(QLineEdit &filter, QListWidget &list);

// Gives a list the focus; without an entry that is chosen and seen it takes the first that is seen.
void enterNames(QListWidget &list);

} // namespace corvanta
