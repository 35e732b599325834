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
#include <QPointer>
#include <QPushButton>

#include <memory>

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

void fill(QMessageBox &box, const MessageBox &question)
{
    box.setObjectName("messagebox");
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(toQString(question.title));
    box.setText(toQString(question.text));
    box.setInformativeText(toQString(question.detail));
    box.setIcon(toQIcon(question.icon));
    if (!question.further.empty())
        box.setDetailedText(toQString(question.further));
    widenForTitle(box);
}

Answer showBox(const MessageBox &question, QWidget *owner)
{
    QMessageBox box(owner);
    fill(box, question);
    box.setStandardButtons(toQButtons(question.buttons));
    return toAnswer(box.exec());
}

std::size_t showChoice(const MessageBox &question, QWidget *owner)
{
    QMessageBox box(owner);
    fill(box, question);
    QList<QAbstractButton *> buttons;
    for (const std::string &caption : question.captions)
        buttons << box.addButton(toQString(caption),
                                 buttons.size() + 1 == static_cast<qsizetype>(question.captions.size())
                                     ? QMessageBox::RejectRole
                                     : QMessageBox::ActionRole);
    box.setDefaultButton(static_cast<QPushButton *>(buttons.front()));
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto pressed = buttons.indexOf(box.clickedButton());
    return static_cast<std::size_t>(pressed < 0 ? buttons.size() - 1 : pressed);
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
    const auto worked = std::make_shared<QPointer<QWidget>>(); // none is active while one dialog follows another
    QObject::connect(qApp, &QApplication::focusChanged, qApp, [worked](QWidget *, QWidget *now) {
        if (now && !now->window()->isModal() && now->window()->windowType() != Qt::Popup)
            *worked = now->window();
    });
    const auto window = [worked, owner = std::move(owner)]() -> QWidget * {
        if (QWidget *modal = QApplication::activeModalWidget())
            return modal;
        if (QWidget *active = QApplication::activeWindow())
            return active;
        return *worked && (*worked)->isVisible() ? worked->data() : owner();
    };
    Asking &questions = asking();
    questions.messageBox = [window](const MessageBox &box) { return showBox(box, window()); };
    questions.choice = [window](const MessageBox &box) { return showChoice(box, window()); };
    questions.fileDialog = [window](const FileDialog &dialog) { return showFileDialog(dialog, window()); };
    questions.fontDialog = [window](const FontChoice &choice) { return showFontDialog(choice, window()); };
    questions.colourDialog = [window](std::int32_t colour) { return showColourDialog(colour, window()); };
}

} // namespace corvanta
