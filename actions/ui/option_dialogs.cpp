#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/parameter_fields.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include <algorithm>

namespace corvanta {

const OptionDialog dwnact{"dwnact", "Caution user:", {"Default", "Always", "Never"}, {0, 1, -1}};
const OptionDialog hlpact{"hlpact", "Type of help:", {"Contents", "Search", "Toolbar"}, {0, 1, 2}};

void showOptionDialog(const OptionDialog &row)
{
    ActionDialog dialog(row.name);
    ParameterFields parameters(dialog.result);
    Group group = addGroup(dialog.contents(), "options", row.caption);
    QButtonGroup *options = addOptionRows(group.fields, "radio", {row.options[0], row.options[1], row.options[2]});
    const auto *found = std::find(row.values, std::end(row.values), std::stoi(parameters.nextValue()));
    QAbstractButton *pressed =
        options->button(found == std::end(row.values) ? 0 : static_cast<int>(found - row.values));
    pressed->setChecked(true);
    parameters.add([options, &row] { return std::to_string(row.values[options->checkedId()]); });
    dialog.run(*pressed, [&parameters] { return parameters.text(); });
}

} // namespace corvanta
