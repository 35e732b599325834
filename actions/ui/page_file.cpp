#include "actions/ui/page_file.h"

#include "document/page.h"
#include "platform/asking.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

std::optional<std::string> askPageFile()
{
    FileDialog question;
    question.defaultExtension = "ODS";
    question.filter = "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*";
    question.initialDirectory = editing().curdir;
    question.entersDirectory = false; // a name is chosen: Save writes where it did
    return asking().fileDialog ? asking().fileDialog(question) : std::nullopt;
}

void addBrowse(Fields &fields, const char *name, QLineEdit &field)
{
    QObject::connect(addButtonBeside(fields, name, "Browse"), &QPushButton::clicked, &field, [&field] {
        const auto path = askPageFile();
        if (!path)
            return;
        const std::string file = fileNamePart(*path);
        const auto stop = file.find('.');
        if (stop == std::string::npos)
            return;
        field.setText(toQString(file.substr(0, stop)));
        editing().curdir = directoryPart(*path);
        field.setFocus();
    });
}

} // namespace corvanta
