#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/page_file.h"
#include "actions/ui/parameter_fields.h"
#include "database/sql.h"
#include "platform/asking.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace corvanta {

namespace {

void generate(QPlainTextEdit &statement)
{
    const SqlText generated = GenerateSelect(page(), trimmed(toBytes(statement.toPlainText())));
    statement.setPlainText(toQString(generated.text));
    if (generated.error.empty())
        return;
    showExclamation(generated.error, "Error");
    returnToField(*statement.window(), "selstmt");
}

void addPage(ActionDialog &dialog, ParameterFields &parameters, const char *name, const char *caption,
             const char *browseName)
{
    Group group = addGroup(dialog.contents(), (std::string(name) + "group").c_str(), caption);
    QLineEdit *field = parameters.addLine(group.fields, name, {});
    addBrowse(group.fields, browseName, *field);
}

} // namespace

void showSelpact()
{
    ActionDialog dialog("selpact");
    ParameterFields parameters(dialog.result);
    Group select = addGroup(dialog.contents(), "selstmtgroup", "Select Statement");
    QPlainTextEdit *selstmt = parameters.addStatement(select.fields, "selstmt");
    addButtonRow(*select.contents, {{"generate", "Generate", [selstmt] { generate(*selstmt); }}});
    addPage(dialog, parameters, "hlistpage", "Hit List Page", "hbrowse");
    addPage(dialog, parameters, "qryviewpage", "Query View Page", "qbrowse");
    selectWholeText(*selstmt);
    dialog.run(*selstmt, [&parameters] { return parameters.text(); });
}

} // namespace corvanta
