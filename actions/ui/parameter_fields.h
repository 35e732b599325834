#pragma once

#include "actions/action.h"
#include "platform/qt/dialogs.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace corvanta {

// The fields of an action's parameters, added in the order of the parameters. Each shows the action's value.
class ParameterFields {
public:
    explicit ParameterFields(const std::string &actionText);

    QLineEdit *addLine(Fields &fields, const char *name, const QString &label);
    // A text of several lines. Enter confirms the dialog, Shift+Enter starts a new line.
    QPlainTextEdit *addStatement(Fields &fields, const char *name);
    // A field of the dialog's own; its value is what holds() gives.
    void add(std::function<std::string()> holds) { values.push_back(std::move(holds)); }

    // The action's value for the field that is added next.
    const std::string &nextValue() const { return action.values.at(values.size()); }

    // The action text with what the fields hold, without leading and trailing blanks where the author has changed
    // them. A complete text whose fields were all left alone stays as it is, also what follows its parameters.
    std::string text() const;

private:
    std::string input;
    Action action;
    std::vector<std::function<std::string()>> values;
};

} // namespace corvanta
