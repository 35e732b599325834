#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/parameter_fields.h"

#include <QPlainTextEdit>

namespace corvanta {

void showSqlpact()
{
    ActionDialog dialog("sqlpact");
    ParameterFields parameters(dialog.result);
    Group group = addGroup(dialog.contents(), "sqlstmtgroup", "SQL Statement");
    QPlainTextEdit *sqlstmt = parameters.addStatement(group.fields, "sqlstmt");
    selectWholeText(*sqlstmt);
    dialog.run(*sqlstmt, [&parameters] { return parameters.text(); });
}

} // namespace corvanta
