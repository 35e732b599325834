#include "objects/ui/manyobj.h"

#include "document/events.h"
#include "objects/shared_properties.h"
#include "objects/ui/colour_row.h"
#include "objects/ui/property_dialog.h"
#include "platform/asking.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr int largestTabIndex = 32767;

class SharedDialog : public QDialog {
public:
    explicit SharedDialog(const std::vector<std::int16_t> &objects);

private:
    bool has(const char *name) const;
    void addLook(QBoxLayout &layout);
    void addFlags(QBoxLayout &layout);
    void watchText(std::size_t field, QLineEdit &edit);
    void watchChoice(std::size_t field, QComboBox &list);
    void watchFlag(std::size_t field, QCheckBox &box);
    void addFont(Fields &fields, std::size_t field);
    void confirm();

    std::vector<std::int16_t> indices;
    SharedProperties shared;
    SharedFields touched;
};

const QString differs = QStringLiteral("(different)");

std::size_t fieldOf(const char *name)
{
    std::size_t i = 0;
    while (i < sharedFieldCount && std::string_view(sharedFields()[i].name) != name)
        ++i;
    return i;
}

const char *labelOfField(const char *name) { return sharedFields()[fieldOf(name)].label; }

SharedDialog::SharedDialog(const std::vector<std::int16_t> &objects)
    : indices(objects), shared(LoadSharedProperties(objects))
{
    QVBoxLayout *contents =
        startDialog(*this, "manyobj", QStringLiteral("Properties of %1 Objects").arg(objects.size()));
    Group standard = addGroup(*contents, "standard", "Standard Properties", 2);
    for (const char *name : {"pheight", "pwidth"})
        if (has(name))
            watchText(fieldOf(name), *addNumberRow(standard.fields, name, labelOfField(name)));
    for (const char *name : {"keyreq", "sptext"})
        if (has(name))
            watchText(fieldOf(name), *addTextRow(standard.fields, name, labelOfField(name)));
    addLook(*contents);
    addFlags(*contents);
    addButtons(*this, {{"ok", "OK", [this] { confirm(); }}, {"cancbut", "Cancel", [this] { reject(); }}});
    CentreDialog(*this);
}

bool SharedDialog::has(const char *name) const { return shared.common[fieldOf(name)]; }

void SharedDialog::addLook(QBoxLayout &layout)
{
    if (!has("col") && !has("font") && !has("alignment") && !has("tbindex"))
        return;
    Group look = addGroup(layout, "look", "Appearance");
    if (has("col"))
        watchText(fieldOf("col"), *addColourField(look.fields, "col", labelOfField("col"), "colsel"));
    if (has("alignment")) {
        QComboBox *list = addComboRow(look.fields, "alignment", labelOfField("alignment"), {"Left", "Right", "Center"});
        watchChoice(fieldOf("alignment"), *list);
    }
    if (has("tbindex"))
        watchText(fieldOf("tbindex"),
                  *addWholeNumberRow(look.fields, "tbindex", labelOfField("tbindex"), largestTabIndex));
    if (has("font"))
        addFont(look.fields, fieldOf("font"));
}

void SharedDialog::addFont(Fields &fields, std::size_t field)
{
    QLabel *shown = addInfoRow(fields, "font", "Font:");
    const auto show = [this, shown, field] {
        const FontBlock &font = shared.values.font;
        shown->setText(shared.different[field] && !touched[field]
                           ? differs
                           : toQString(font.FontName) + QStringLiteral(" %1").arg(static_cast<double>(font.FontSize)));
    };
    show();
    QPushButton *button = addButtonBeside(fields, "fontsel", "&Font...");
    connect(button, &QPushButton::clicked, this, [this, field, show] {
        const auto chosen = asking().fontDialog ? asking().fontDialog(shared.values.font) : std::nullopt;
        if (!chosen)
            return;
        shared.values.font = *chosen;
        touched.set(field);
        show();
    });
}

void SharedDialog::addFlags(QBoxLayout &layout)
{
    SharedFields flags;
    for (std::size_t i = 0; i < sharedFieldCount; ++i)
        flags[i] = shared.common[i] && (sharedFields()[i].flag || i == fieldOf("condobjname"));
    if (flags.none())
        return;
    Group group = addGroup(layout, "flags", "Behaviour", 2);
    for (std::size_t i = 0; i < sharedFieldCount; ++i) {
        const SharedField &field = sharedFields()[i];
        if (flags[i] && field.flag)
            watchFlag(i, *addCheckRow(group.fields, field.name, field.label));
        else if (flags[i])
            watchText(i, *addTextRow(group.fields, field.name, field.label));
    }
}

void SharedDialog::watchText(std::size_t field, QLineEdit &edit)
{
    std::string &value = shared.values.*sharedFields()[field].text;
    if (shared.different[field])
        edit.setPlaceholderText(differs);
    else
        edit.setText(toQString(value));
    connect(&edit, &QLineEdit::textEdited, this, [this, field, &value](const QString &text) {
        value = toBytes(text);
        touched.set(field);
    });
}

void SharedDialog::watchChoice(std::size_t field, QComboBox &list)
{
    int &value = shared.values.*sharedFields()[field].choice;
    list.setPlaceholderText(differs);
    list.setCurrentIndex(shared.different[field] || value >= list.count() ? -1 : value);
    connect(&list, &QComboBox::activated, this, [this, field, &value](int chosen) {
        value = chosen;
        touched.set(field);
    });
}

void SharedDialog::watchFlag(std::size_t field, QCheckBox &box)
{
    bool &value = shared.values.*sharedFields()[field].flag;
    const QString caption = box.text();
    if (shared.different[field]) {
        box.setText(box.text() + ' ' + differs);
        box.setCheckState(Qt::PartiallyChecked);
    } else {
        box.setChecked(value);
    }
    connect(&box, &QCheckBox::clicked, this, [this, field, caption, &box, &value] {
        box.setTristate(false);
        box.setText(caption);
        value = box.isChecked();
        touched.set(field);
    });
}

void SharedDialog::confirm()
{
    if (!checkTextLengths(*this, "Properties Error"))
        return;
    const Confirmation confirmation = ConfirmSharedProperties(indices, shared.values, touched);
    if (confirmation.stored)
        return accept();
    returnToField(*this, confirmation.focus);
}

} // namespace

void OpenSharedProperties(const std::vector<std::int16_t> &indices)
{
    if (indices.size() < 2)
        return;
    SharedDialog dialog(indices);
    if (dialog.exec() == QDialog::Accepted)
        documentEvents().pageChanged();
}

} // namespace corvanta
