#include "objects/ui/colour_row.h"

#include "document/parse.h"
#include "platform/asking.h"
#include "platform/qt/colours.h"
#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr int swatchWidth = 28; // pixels
constexpr int leastDigits = 10;

// Shows the colour of a text as it is typed, a cross for one that is none, and nothing without a text.
class Swatch : public QWidget {
public:
    explicit Swatch(QLineEdit &edit) : QWidget(edit.parentWidget()), field(edit)
    {
        setObjectName(edit.objectName() + "swatch");
        setAccessibleName(edit.accessibleName() + " sample");
        setFixedWidth(swatchWidth);
        connect(&edit, &QLineEdit::textChanged, this, [this] { update(); });
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const std::string text = toBytes(field.text());
        const QRect area = rect().adjusted(0, 2, -1, -3);
        QPainter painter(this);
        painter.setPen(palette().color(isEnabled() ? QPalette::WindowText : QPalette::Mid));
        painter.setOpacity(isEnabled() ? 1.0 : 0.4);
        if (isColourText(text)) {
            painter.setBrush(toQColor(colourShown(text)));
            return painter.drawRect(area);
        }
        painter.drawRect(area);
        if (text.empty())
            return;
        painter.drawLine(area.topLeft(), area.bottomRight());
        painter.drawLine(area.bottomLeft(), area.topRight());
    }

private:
    QLineEdit &field;
};

// The chosen colour is an edit of the author's, as if it was typed.
void chooseColour(QLineEdit &field)
{
    const std::int32_t colour = colourShown(toBytes(field.text()));
    const auto chosen = asking().colourDialog ? asking().colourDialog(colour) : std::nullopt;
    if (!chosen)
        return;
    field.setText(toQString(colourText(*chosen)));
    emit field.textEdited(field.text());
}

} // namespace

QLineEdit *addColourField(Fields &fields, const char *name, const QString &label, const char *buttonName)
{
    QLineEdit *field = addTextRow(fields, name, label, leastDigits);
    auto *swatch = new Swatch(*field);
    fields.row->addWidget(swatch);
    QPushButton *button = addButtonBeside(fields, buttonName, "Select");
    followEnabled(*swatch, *field);
    followEnabled(*button, *field);
    QObject::connect(button, &QPushButton::clicked, field, [field] { chooseColour(*field); });
    return field;
}

} // namespace corvanta
