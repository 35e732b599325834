#include "platform/qt/qt_asking.h"

#include "platform/asking.h"
#include "platform/qt/colours.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/font_dialog.h"
#include "platform/qt/text.h"

#include <QApplication>
#include <QColorDialog>
#include <QGridLayout>
#include <QMessageBox>

namespace corvanta {

namespace {

QMessageBox::Icon toQIcon(Icon icon)
{
    switch (icon) {
    case Icon::None: return QMessageBox::NoIcon;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    case Icon::Question: return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons toQButtons(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return QMessageBox::Ok;
    case Buttons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

Answer toAnswer(int button)
{
    switch (button) {
    case QMessageBox::Ok: return Answer::Ok;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::Cancel;
    }
}

// A short text makes a box too narrow for its title.
void widenForTitle(QMessageBox &box)
{
    constexpr int frameButtons = 120; // pixels
    const int wanted = box.fontMetrics().horizontalAdvance(box.windowTitle()) + frameButtons;
    if (auto *grid = qobject_cast<QGridLayout *>(box.layout()))
        grid->addItem(new QSpacerItem(wanted, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

Answer showBox(const MessageBox &question, QWidget *owner)
{
    QMessageBox box(owner);
    box.setObjectName("messagebox");
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(toQString(question.title));
    box.setText(toQString(question.text));
    box.setIcon(toQIcon(question.icon));
    box.setStandardButtons(toQButtons(question.buttons));
    widenForTitle(box);
    return toAnswer(box.exec());
}

std::optional<std::int32_t> showColourDialog(std::int32_t initial, QWidget *owner)
{
    QColorDialog dialog(toQColor(initial), owner);
    dialog.setObjectName("colourdlg");
    dialog.setWindowTitle("Color");
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    CentreDialog(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return fromQColor(dialog.selectedColor());
}

} // namespace

void installAsking(std::function<QWidget *()> owner)
{
    const auto window = [owner = std::move(owner)]() -> QWidget * {
        if (QWidget *modal = QApplication::activeModalWidget())
            return modal;
        QWidget *active = QApplication::activeWindow();
        return active ? active : owner();
    };
    Asking &questions = asking();
    questions.messageBox = [window](const MessageBox &box) { return showBox(box, window()); };
    questions.fileDialog = [window](const FileDialog &dialog) { return showFileDialog(dialog, window()); };
    questions.fontDialog = [window](const FontChoice &choice) { return showFontDialog(choice, window()); };
    questions.colourDialog = [window](std::int32_t colour) { return showColourDialog(colour, window()); };
}

} // namespace corvanta
