#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/page_file.h"
#include "actions/ui/parameter_fields.h"
#include "document/page.h"
#include "platform/qt/code_page_text.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

namespace {

// Offers the Image DB objects, and shows the stored name whether it is one of theirs or a file's.
QComboBox *addObjectChoice(Fields &fields, const std::string &stored)
{
    QComboBox *fileobj = addComboRow(fields, "fileobj", {});
    fileobj->setEditable(true);
    fileobj->setInsertPolicy(QComboBox::NoInsert);
    fileobj->setCompleter(nullptr);
    keepInCodePage(*fileobj->lineEdit());
    fileobj->lineEdit()->setObjectName("fileobjtext");
    fileobj->lineEdit()->setAccessibleName(fileobj->accessibleName());
    for (const ObjectRecord &object : page().objects)
        if (kindOf(object.kind) == Kind::ImageDb)
            fileobj->addItem(toQString(object.ctlname));
    const int found = stored.empty() ? -1 : fileobj->findText(toQString(stored));
    if (found >= 0)
        fileobj->setCurrentIndex(found);
    else if (!stored.empty())
        fileobj->setEditText(toQString(stored));
    return fileobj;
}

void chooseFile(QComboBox &fileobj)
{
    if (const auto path = askPageFile()) {
        fileobj.setEditText(toQString(fileNamePart(*path)));
        editing().curdir = directoryPart(*path);
    }
}

} // namespace

void showDwnlpact()
{
    ActionDialog dialog("dwnlpact");
    ParameterFields parameters(dialog.result);
    Group group = addGroup(dialog.contents(), "fileobjgroup", "File/ImageDb Object");
    QComboBox *fileobj = addObjectChoice(group.fields, parameters.nextValue());
    parameters.add([fileobj] { return toBytes(fileobj->currentText()); });
    QObject::connect(addButtonBeside(group.fields, "select", "&Select"), &QPushButton::clicked, fileobj,
                     [fileobj] { chooseFile(*fileobj); });
    selectWholeText(*fileobj->lineEdit());
    dialog.run(*fileobj, [&parameters] { return parameters.text(); });
}

} // namespace corvanta
