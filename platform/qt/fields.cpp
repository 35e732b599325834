#include "platform/qt/code_page_text.h"
#include "platform/qt/dialogs.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QValidator>

#include <algorithm>

namespace corvanta {

namespace {

enum class Width { Cell, Row };

struct Place {
    int row, column, columns;
};

// A cell has a column for the label and one for the control.
Place nextPlace(Fields &fields, Width width)
{
    if (width == Width::Row)
        fields.next = (fields.next + fields.cells - 1) / fields.cells * fields.cells;
    const Place place{fields.next / fields.cells, fields.next % fields.cells * 2,
                      width == Width::Row ? fields.cells * 2 : 2};
    fields.next += width == Width::Row ? fields.cells : 1;
    return place;
}

QWidget *parentOf(const Fields &fields) { return fields.grid->parentWidget(); }

void nameControl(QWidget &control, const char *name, const QString &label)
{
    control.setObjectName(name);
    const auto *frame = qobject_cast<const QGroupBox *>(control.parentWidget());
    control.setAccessibleName(plainLabel(label.isEmpty() && frame ? frame->title() : label));
}

QLabel *addLabel(Fields &fields, const Place &place, QWidget &control, const QString &text, int columns,
                 Qt::Alignment alignment)
{
    auto *label = new QLabel(text, parentOf(fields));
    label->setObjectName(control.objectName() + "label");
    label->setBuddy(&control);
    if (place.column > 0)
        label->setContentsMargins(label->fontMetrics().averageCharWidth() * 2, 0, 0, 0);
    fields.grid->addWidget(label, place.row, place.column, 1, columns, alignment);
    return label;
}

// Puts a control into the grid; what stands beside it follows in the same box.
void addBox(Fields &fields, QWidget &control, const Place &place)
{
    fields.row = new QHBoxLayout;
    fields.row->addWidget(&control);
    fields.latest = &control;
    fields.grid->addLayout(fields.row, place.row, place.column, 1, place.columns);
}

void addControl(Fields &fields, QWidget &control, const char *name, const QString &label, Width width,
                Qt::Alignment labelAlignment = Qt::AlignLeft | Qt::AlignVCenter)
{
    nameControl(control, name, label);
    Place place = nextPlace(fields, width);
    if (!label.isEmpty()) {
        addLabel(fields, place, control, label, 1, labelAlignment);
        ++place.column;
        --place.columns;
    }
    addBox(fields, control, place);
}

// Lets no key in that would make the number too large; the toolkit's own validator allows it while typing.
class WholeNumber : public QValidator {
public:
    WholeNumber(int mostAllowed, QObject *parent) : QValidator(parent), most(mostAllowed) {}

    State validate(QString &text, int &) const override
    {
        const bool digits = std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= '0' && c <= '9'; });
        if (!digits || text.toLongLong() > most || text.size() > 9)
            return Invalid;
        return text.isEmpty() ? Intermediate : Acceptable;
    }

private:
    int most;
};

// Enables and disables what stands beside the field that it filters the events of.
class EnabledFollower : public QObject {
public:
    explicit EnabledFollower(QWidget &follower) : QObject(&follower), beside(follower) {}

    bool eventFilter(QObject *field, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            beside.setEnabled(static_cast<QWidget *>(field)->isEnabledTo(beside.parentWidget()));
        return false;
    }

private:
    QWidget &beside;
};

// Lets a frame with a list or a text area grow with its dialog.
void letGrow(const Fields &fields)
{
    if (auto *frame = qobject_cast<QGroupBox *>(parentOf(fields)))
        frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

// The width of a line for so many characters.
int widthOf(const QWidget &field, int characters)
{
    field.ensurePolished();
    return field.fontMetrics().averageCharWidth() * characters + 16;
}

// So many lines high at least, and as high as there is room.
void setLines(QAbstractScrollArea &area, int lines)
{
    const int border = area.frameWidth() * 2 + 8;
    area.setMinimumHeight(area.fontMetrics().lineSpacing() * lines + border);
    area.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

} // namespace

Fields addFields(QBoxLayout &layout, int cells)
{
    auto *grid = new QGridLayout;
    layout.addLayout(grid);
    for (int cell = 0; cell < cells; ++cell)
        grid->setColumnStretch(cell * 2 + 1, 1);
    Fields fields;
    fields.grid = grid;
    fields.cells = cells;
    return fields;
}

Group addGroup(QBoxLayout &layout, const char *name, const QString &caption, int cells)
{
    auto *box = new QGroupBox(caption, layout.parentWidget());
    box->setObjectName(name);
    box->setAccessibleName(plainLabel(caption));
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layout.addWidget(box);
    auto *contents = new QVBoxLayout(box);
    return {box, contents, addFields(*contents, cells)};
}

QLineEdit *addTextRow(Fields &fields, const char *name, const QString &label, int least)
{
    auto *field = new QLineEdit(parentOf(fields));
    keepInCodePage(*field);
    field->setMinimumWidth(widthOf(*field, least));
    addControl(fields, *field, name, label, Width::Row);
    return field;
}

QLineEdit *addPasswordRow(Fields &fields, const char *name, const QString &label)
{
    QLineEdit *field = addTextRow(fields, name, label);
    field->setEchoMode(QLineEdit::Password);
    return field;
}

QLineEdit *addNumberRow(Fields &fields, const char *name, const QString &label)
{
    auto *field = new QLineEdit(parentOf(fields));
    keepInCodePage(*field);
    const int width = widthOf(*field, 10);
    field->setMinimumWidth(width);
    if (fields.cells == 1)
        field->setMaximumWidth(width);
    addControl(fields, *field, name, label, Width::Cell);
    if (fields.cells == 1)
        fields.row->addStretch();
    return field;
}

QLineEdit *addWholeNumberRow(Fields &fields, const char *name, const QString &label, int most)
{
    QLineEdit *field = addNumberRow(fields, name, label);
    field->setValidator(new WholeNumber(most, field));
    return field;
}

QPlainTextEdit *addTextAreaRow(Fields &fields, const char *name, const QString &label, int lines)
{
    QPlainTextEdit *area = newTextArea(parentOf(fields));
    area->setTabChangesFocus(true);
    setLines(*area, lines);
    addControl(fields, *area, name, label, Width::Row, Qt::AlignLeft | Qt::AlignTop);
    letGrow(fields);
    return area;
}

QComboBox *addComboRow(Fields &fields, const char *name, const QString &label,
                       std::initializer_list<const char *> entries)
{
    auto *combo = new QComboBox(parentOf(fields));
    for (const char *entry : entries)
        combo->addItem(QString::fromLatin1(entry));
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    addControl(fields, *combo, name, label, Width::Cell);
    return combo;
}

QListWidget *addListRow(Fields &fields, const char *name, const QString &label, int lines)
{
    auto *list = new QListWidget(parentOf(fields));
    nameControl(*list, name, label);
    setLines(*list, lines);
    if (!label.isEmpty()) {
        const Place place = nextPlace(fields, Width::Row);
        addLabel(fields, place, *list, label, place.columns, Qt::AlignLeft);
    }
    addBox(fields, *list, nextPlace(fields, Width::Row));
    letGrow(fields);
    return list;
}

QCheckBox *addCheckRow(Fields &fields, const char *name, const QString &caption)
{
    auto *box = new QCheckBox(caption, parentOf(fields));
    nameControl(*box, name, caption);
    addBox(fields, *box, nextPlace(fields, Width::Cell));
    return box;
}

QLabel *addInfoRow(Fields &fields, const char *name, const QString &label)
{
    auto *info = new QLabel(parentOf(fields));
    info->setTextFormat(Qt::PlainText);
    addControl(fields, *info, name, label, Width::Row);
    return info;
}

QButtonGroup *addOptionRows(Fields &fields, const char *name, std::initializer_list<const char *> captions)
{
    auto *group = new QButtonGroup(parentOf(fields));
    int id = 0;
    for (const char *caption : captions) {
        auto *button = new QRadioButton(QString::fromLatin1(caption), parentOf(fields));
        nameControl(*button, name, button->text());
        button->setObjectName(QString::fromLatin1(name) + QString::number(id));
        group->addButton(button, id++);
        addBox(fields, *button, nextPlace(fields, Width::Row));
    }
    return group;
}

void addWidgetRow(Fields &fields, QWidget &widget, const char *name, const QString &label)
{
    addControl(fields, widget, name, label, Width::Row);
}

QPushButton *addButtonBeside(Fields &fields, const char *name, const QString &caption)
{
    auto *button = new QPushButton(caption, parentOf(fields));
    button->setObjectName(name);
    button->setAccessibleName(plainLabel(caption) + ' ' + fields.latest->accessibleName());
    button->setAutoDefault(false); // Enter is OK, also after this button was used
    fields.row->addWidget(button);
    return button;
}

QLabel *addHintBeside(Fields &fields, const QString &text)
{
    auto *hint = new QLabel(text, parentOf(fields));
    fields.latest->setAccessibleDescription(text);
    fields.row->insertWidget(fields.row->indexOf(fields.latest) + 1, hint);
    return hint;
}

QLabel *labelOf(const QWidget &field)
{
    for (QLabel *label : field.parentWidget()->findChildren<QLabel *>(Qt::FindDirectChildrenOnly))
        if (label->buddy() == &field)
            return label;
    return nullptr;
}

void setFieldEnabled(QWidget &field, bool enabled)
{
    field.setEnabled(enabled);
    if (QLabel *label = labelOf(field))
        label->setEnabled(enabled);
}

void setFieldVisible(QWidget &field, bool visible)
{
    field.setVisible(visible);
    if (QLabel *label = labelOf(field))
        label->setVisible(visible);
}

void followEnabled(QWidget &beside, QWidget &field)
{
    beside.setEnabled(field.isEnabled());
    field.installEventFilter(new EnabledFollower(beside));
}

void returnToField(QWidget &dialog, const std::string &name)
{
    if (auto *field = name.empty() ? nullptr : dialog.findChild<QWidget *>(QString::fromStdString(name)))
        returnToField(*field);
}

void returnToField(QWidget &field)
{
    field.setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(&field))
        line->selectAll();
    else if (auto *area = qobject_cast<QPlainTextEdit *>(&field))
        area->selectAll();
}

void showNotice(QWidget &field, const QString &text)
{
    auto *notice = field.window()->findChild<QLabel *>("notice");
    if (!notice)
        return QToolTip::showText(field.mapToGlobal(QPoint(0, field.height())), text, &field);
    if (notice->text() == text)
        return;
    notice->setText(text);
    notice->setToolTip(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent told(notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

} // namespace corvanta
