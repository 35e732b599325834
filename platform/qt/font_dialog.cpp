#include "platform/qt/font_dialog.h"

#include "platform/qt/code_page_text.h"
#include "platform/qt/colours.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fonts.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"
#include "platform/text.h"

#include <QCheckBox>
#include <QDialog>
#include <QFontComboBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvanta {

namespace {

struct FontControls {
    QComboBox *name, *size;
    QCheckBox *bold, *italic, *strikethru, *underline;
    QPushButton *colour;
    QLabel *sample;
};

// A size that no font can have is shown as the one that is used instead.
QString sizeText(float points) { return QString::number(static_cast<double>(usableFontSize(points)), 'g', 6); }

void addFace(QBoxLayout &layout, FontControls &controls)
{
    Group face = addGroup(layout, "face", "Face");
    controls.name = new QFontComboBox(face.box);
    addWidgetRow(face.fields, *controls.name, "fontname", "&Font:");
    controls.size =
        addComboRow(face.fields, "fontsize",
                    "Si&ze:", {"8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "28", "36", "48", "72"});
    controls.size->setEditable(true);
    for (QComboBox *combo : {controls.name, controls.size}) {
        combo->lineEdit()->setAccessibleName(combo->accessibleName());
        keepInCodePage(*combo->lineEdit());
    }
}

void addStyles(QBoxLayout &layout, FontControls &controls)
{
    Group style = addGroup(layout, "style", "Style", 2);
    controls.bold = addCheckRow(style.fields, "bold", "&Bold");
    controls.italic = addCheckRow(style.fields, "italic", "&Italic");
    Group effects = addGroup(layout, "effects", "Effects", 2);
    controls.strikethru = addCheckRow(effects.fields, "strikethru", "Stri&keout");
    controls.underline = addCheckRow(effects.fields, "underline", "&Underline");
    controls.colour = new QPushButton("Select", effects.box);
    controls.colour->setAutoDefault(false); // Enter is OK
    addWidgetRow(effects.fields, *controls.colour, "forecolor", "&Color:");
}

// The sample takes what place there is, whatever the font's size.
void addSample(QBoxLayout &layout, FontControls &controls)
{
    Group group = addGroup(layout, "samplegroup", "Sample");
    controls.sample = new QLabel("AaBbYyZz 123", group.box);
    controls.sample->setAlignment(Qt::AlignCenter);
    controls.sample->setMinimumHeight(64);
    controls.sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    addWidgetRow(group.fields, *controls.sample, "sample", {});
}

void load(FontControls &controls, const FontChoice &choice)
{
    controls.name->setEditText(toQString(choice.FontName));
    controls.size->setEditText(sizeText(choice.FontSize));
    controls.bold->setChecked(choice.FontBold);
    controls.italic->setChecked(choice.FontItalic);
    controls.strikethru->setChecked(choice.FontStrikethru);
    controls.underline->setChecked(choice.FontUnderline);
}

// Takes the controls' values over, except for what still reads as it was loaded.
void take(const FontControls &controls, const FontChoice &initial, FontChoice &choice)
{
    const QString name = controls.name->currentText(), size = controls.size->currentText();
    choice.FontName = name == toQString(initial.FontName) ? initial.FontName : toBytes(name.trimmed());
    choice.FontSize = size == sizeText(initial.FontSize)
                          ? initial.FontSize
                          : static_cast<float>(leadingNumber(toBytes(QString(size).replace(',', '.'))));
    choice.FontBold = controls.bold->isChecked();
    choice.FontItalic = controls.italic->isChecked();
    choice.FontStrikethru = controls.strikethru->isChecked();
    choice.FontUnderline = controls.underline->isChecked();
}

void showSample(const FontControls &controls, const FontChoice &choice)
{
    const QColor colour = toQColor(choice.ForeColor);
    QPalette palette = controls.sample->palette();
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Window, colour.lightness() < 160 ? Qt::white : Qt::black); // whatever the desktop's look
    controls.sample->setAutoFillBackground(true);
    controls.sample->setPalette(palette);
    controls.sample->setFont(toQFont(choice));
    QPixmap swatch(32, 14);
    swatch.fill(colour);
    controls.colour->setIcon(QIcon(swatch));
    controls.colour->setIconSize(swatch.size());
}

void whenChanged(const FontControls &controls, const std::function<void()> &changed)
{
    for (QComboBox *combo : {controls.name, controls.size})
        QObject::connect(combo, &QComboBox::currentTextChanged, combo, changed);
    for (QCheckBox *box : {controls.bold, controls.italic, controls.strikethru, controls.underline})
        QObject::connect(box, &QCheckBox::toggled, box, changed);
}

// What was left alone is taken, whatever it is.
bool isUsable(const FontChoice &choice, const FontChoice &initial)
{
    const bool named = !choice.FontName.empty() || initial.FontName.empty();
    const bool sized = choice.FontSize >= 1 && usableFontSize(choice.FontSize) == choice.FontSize;
    return named && (sized || choice.FontSize == initial.FontSize);
}

} // namespace

std::optional<FontChoice> showFontDialog(const FontChoice &initial, QWidget *owner)
{
    FontChoice choice = initial;
    QDialog dialog(owner);
    FontControls controls{};
    QVBoxLayout *contents = startDialog(dialog, "fontdlg", "Font");
    addFace(*contents, controls);
    addStyles(*contents, controls);
    addSample(*contents, controls);
    const auto confirm = [&dialog] {
        if (checkTextLengths(dialog))
            dialog.accept();
    };
    QPushButton *ok =
        addButtons(dialog, {{"ok", "OK", confirm}, {"cancbut", "Cancel", [&] { dialog.reject(); }}}).front();
    load(controls, choice);
    const auto update = [&] {
        take(controls, initial, choice);
        ok->setEnabled(isUsable(choice, initial) && controls.name->lineEdit()->hasAcceptableInput());
        showSample(controls, choice);
    };
    whenChanged(controls, update);
    QObject::connect(controls.colour, &QPushButton::clicked, &dialog, [&] {
        choice.ForeColor = asking().colourDialog(choice.ForeColor).value_or(choice.ForeColor);
        update();
    });
    update();
    CentreDialog(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(choice) : std::nullopt;
}

} // namespace corvanta
