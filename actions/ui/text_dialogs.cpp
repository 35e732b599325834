#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/parameter_fields.h"

#include <QLineEdit>

namespace corvanta {

namespace {

constexpr TextField applicationFields[] = {{"appapp", "App ID:"}, {"appcmd", "Command string:"}};
constexpr TextField userFields[] = {{"userid", "Page User:"}};
constexpr TextField urlFields[] = {{"urlnam", "Go to URL:"}};
constexpr TextField serverFields[] = {
    {"nclhost", "Server domain name:"}, {"nclapp", "App ID:"}, {"nclcmd", "Command string:"}};
constexpr TextField messageFields[] = {{"title", "Title :"}, {"Text", "Text :"}};

} // namespace

const TextDialog appact{"appact", applicationFields};
const TextDialog pguact{"pguact", userFields};
const TextDialog urlact{"urlact", urlFields, true};
const TextDialog nclact{"nclact", serverFields};
const TextDialog msgPact{"MsgPact", messageFields, false, "Massage Box properties", "cansel"};

void showTextDialog(const TextDialog &row)
{
    ActionDialog dialog(row.name, row.caption);
    ParameterFields parameters(dialog.result);
    Fields fields = dialog.addParameters().fields;
    std::vector<QLineEdit *> lines;
    for (const TextField &field : row.fields)
        lines.push_back(parameters.addLine(fields, field.name, field.label));
    for (QLineEdit *line : lines)
        selectWholeText(*line);
    if (row.required)
        dialog.requireText(*lines.front());
    dialog.run(
        *lines.front(), [&parameters] { return parameters.text(); }, row.cancelName);
}

} // namespace corvanta
