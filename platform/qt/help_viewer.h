#pragma once

#include <QString>

namespace corvanta {

// The help collection, beside the program ("help/corvanta.qhc") or where it is installed
// ("../share/corvanta/help/corvanta.qhc"). The path of the first when there is none.
QString helpCollection();

// Makes helpCommand() show a collection in the help window `helpviewer`. Nothing is opened before the first
// command; then the collection is read in place and never written. A missing one is told to the user.
// Context numbers are identifiers of the collection's keywords; an unknown one shows the contents page.
void installHelp(const QString &collection = helpCollection());

} // namespace corvanta
