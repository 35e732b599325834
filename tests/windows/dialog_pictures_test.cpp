#include "actions/action.h"
#include "actions/ui/edit_action.h"
#include "page/ui/pgprops.h"
#include "tests/windows/help_index.h"
#include "tests/windows/objects_page.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <ranges>
#include <set>

namespace corvanta {
namespace {

// No word is cut off, as in a label, button or check box that is smaller than its text needs, and every control has
// a name for assistive technology.
void expectReadable(const QWidget &dialog)
{
    for (const auto *w : dialog.findChildren<QWidget *>()) {
        const auto *access = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(w));
        const QString name = access ? access->text(QAccessible::Name) : QString();
        EXPECT_FALSE(name.contains('&')) << qPrintable(dialog.objectName() + ' ' + name);
        if (w->isVisible() && (w->focusPolicy() & Qt::TabFocus)) {
            EXPECT_FALSE(name.isEmpty()) << qPrintable(dialog.objectName() + ' ' + w->objectName());
        }
        const bool worded = qobject_cast<const QLabel *>(w) || qobject_cast<const QAbstractButton *>(w);
        if (!worded || !w->isVisible() || w->objectName().startsWith("qt_"))
            continue;
        EXPECT_GE(w->width(), w->minimumSizeHint().width()) << qPrintable(dialog.objectName() + ' ' + w->objectName());
        EXPECT_GE(w->height(), w->minimumSizeHint().height())
            << qPrintable(dialog.objectName() + ' ' + w->objectName());
        EXPECT_TRUE(dialog.findChild<QWidget *>("scrolled") ||
                    w->window()->rect().contains(QRect(w->mapTo(w->window(), QPoint()), w->size())))
            << qPrintable(w->objectName());
    }
}

QRect inDialog(const QWidget &w) { return {w.mapTo(w.window(), QPoint()), w.size()}; }

// Tab goes down the frames of a column, then to the next one. In a column the fields beside labels begin at one place,
// and none leaves a third of the height empty.
void expectOneLook(const QWidget &dialog)
{
    std::map<int, std::set<int>> starts; // by the left edge of the frames
    std::map<int, int> bottoms;
    for (const auto *frame : dialog.findChildren<QGroupBox *>(Qt::FindDirectChildrenOnly)) {
        const int left = inDialog(*frame).left();
        if (frame->isVisible())
            bottoms[left] = std::max(bottoms[left], inDialog(*frame).bottom());
        for (const auto *label : frame->findChildren<QLabel *>())
            if (label->isVisible() && label->buddy() && label->x() < 20 && label->buddy()->x() > label->x())
                starts[left].insert(inDialog(*label->buddy()).left());
    }
    for (const auto &[left, places] : starts)
        EXPECT_EQ(places.size(), 1U) << qPrintable(dialog.objectName()) << " at " << left;
    for (const auto &[left, bottom] : bottoms)
        EXPECT_GT(bottom * 3, std::ranges::max(std::views::values(bottoms)) * 2) << qPrintable(dialog.objectName());
    std::pair<int, int> before;
    for (const auto *w = dialog.nextInFocusChain(); w != &dialog; w = w->nextInFocusChain())
        if (const auto *frame = qobject_cast<const QGroupBox *>(w->parent()); frame && w->isVisible()) {
            const std::pair place(inDialog(*frame).left(), inDialog(*frame).top());
            EXPECT_LE(before, place) << qPrintable(dialog.objectName() + ' ' + w->objectName());
            before = place;
        }
}

// The titles of frames and the labels of fields, buttons and check boxes are in the index of the help.
void expectInHelpIndex(const QWidget &dialog)
{
    for (const auto *w : dialog.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(w);
        const auto *group = qobject_cast<const QGroupBox *>(w);
        const auto *button = qobject_cast<const QAbstractButton *>(w);
        const QString text = group                     ? group->title()
                             : button                  ? button->text()
                             : label && label->buddy() ? label->text()
                                                       : "";
        const QString name = w->objectName();
        if (text.contains(QRegularExpression("[A-Za-z]")) && !name.startsWith("qt_") && text != "OK" &&
            text != "Cancel") {
            EXPECT_TRUE(inHelpIndex(text)) << qPrintable(dialog.objectName() + ": " + text);
        }
    }
}

// Shows every dialog with some content at a font size; with CORVANTA_PICTURES, a folder, a picture of each goes there.
class DialogPictures : public PropertyDialogs, public testing::WithParamInterface<int> {
protected:
    DialogPictures() : before(QApplication::font())
    {
        QFont font = before;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
    }
    ~DialogPictures() override { QApplication::setFont(before); }

    static void look(QWidget &dialog)
    {
        QCoreApplication::processEvents();
        expectReadable(dialog);
        expectOneLook(dialog);
        expectInHelpIndex(dialog);
        const QByteArray folder = qgetenv("CORVANTA_PICTURES");
        if (!folder.isEmpty())
            dialog.grab().save(QString("%1/%2-%3.png").arg(QString(folder), dialog.objectName()).arg(GetParam()));
    }

    QFont before;
};

TEST_P(DialogPictures, OfEveryKind)
{
    for (const std::string name : {"menu.ods", "query.ods", "record.ods", "hitlist.ods"}) {
        openSample(name);
        for (std::int16_t i = 0; i < objectCount(page()); ++i)
            withDialog(i, [](QDialog &d) {
                if (auto *list = d.findChild<QListWidget *>(); list && list->count() > 1)
                    list->setCurrentRow(1);
                look(d);
                press(d, "cancbut");
            });
    }
}

TEST_P(DialogPictures, OfEveryAction)
{
    std::vector<std::string> actions{
        encodeActionList({{encodeAction({action::goToPage, {"MENU"}}), "busy"}, {"", ""}})};
    for (const std::int16_t code : {1, 4, 8, 9, 10, 12, 13, 507, 509, 510, 523})
        actions.push_back(encodeAction({code, std::vector<std::string>(actionParameters(code).size())}));
    for (const std::string &text : actions) {
        ModalDriver driver;
        driver.expect("", [](QWidget &d) {
            look(d);
            static_cast<QDialog &>(d).reject();
        });
        EditAction(text);
    }
}

TEST_P(DialogPictures, OfPageProperties)
{
    openSample("record.ods");
    openPageProperties();
    look(*openDialog());
    openDialog()->reject();
    settle();
}

INSTANTIATE_TEST_SUITE_P(Sizes, DialogPictures, testing::Values(9, 16));

} // namespace
} // namespace corvanta
