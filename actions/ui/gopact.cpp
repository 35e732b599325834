#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/page_file.h"
#include "actions/ui/parameter_fields.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QLineEdit>

namespace corvanta {

void showGopact()
{
    ActionDialog dialog("gopact");
    ParameterFields parameters(dialog.result);
    dialog.result = withTopPage(dialog.result);
    Fields fields = dialog.addParameters().fields;
    QLineEdit *pagnam = parameters.addLine(fields, "pagnam", "Go to page:");
    if (trimmed(toBytes(pagnam->text())).empty())
        pagnam->setText("TOP");
    addBrowse(fields, "Browse", *pagnam);
    selectWholeText(*pagnam);
    dialog.requireText(*pagnam);
    dialog.run(*pagnam, [&parameters] { return parameters.text(); });
}

} // namespace corvanta
