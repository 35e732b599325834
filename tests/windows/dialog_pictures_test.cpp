#include "actions/action.h"
#include "actions/ui/edit_action.h"
#include "database/ui/odbcdbs.h"
#include "database/ui/seldsn.h"
#include "objects/ui/manyobj.h"
#include "page/ui/pgprops.h"
#include "platform/qt/font_dialog.h"
#include "shell/commands.h"
#include "shell/ui/checkpg.h"
#include "shell/ui/hpeabout.h"
#include "shell/ui/hpsdir.h"
#include "shell/ui/hpsedit.h"
#include "shell/ui/hpsinput.h"
#include "shell/ui/icons.h"
#include "shell/ui/objlist.h"
#include "tests/windows/help_index.h"
#include "tests/windows/objects_page.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
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

double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// Every text stands out from its ground; what is switched off, and hints, less than the rest. Every control has a role,
// every button can be pressed by assistive technology, and the keyboard reaches all of them.
void expectUsable(const QWidget &dialog)
{
    for (auto *w : dialog.findChildren<QWidget *>()) {
        const QString name = dialog.objectName() + ' ' + w->objectName();
        if (!w->isVisible() || w->objectName().startsWith("qt_"))
            continue;
        const double least = w->isEnabled() ? 4.5 : 1.5;
        EXPECT_GE(contrast(w->palette().color(w->foregroundRole()), w->palette().color(w->backgroundRole())), least)
            << qPrintable(name);
        auto *access = QAccessible::queryAccessibleInterface(w);
        ASSERT_NE(access, nullptr) << qPrintable(name);
        EXPECT_NE(access->role(), QAccessible::NoRole) << qPrintable(name);
        if (const auto *button = qobject_cast<QAbstractButton *>(w); button && button->isEnabled()) {
            ASSERT_NE(access->actionInterface(), nullptr) << qPrintable(name);
            const QStringList acts = access->actionInterface()->actionNames();
            EXPECT_TRUE(acts.contains(QAccessibleActionInterface::pressAction()) ||
                        acts.contains(QAccessibleActionInterface::toggleAction()))
                << qPrintable(name);
            // The arrow keys reach the other choices of a group.
            EXPECT_TRUE((button->focusPolicy() & Qt::TabFocus) || button->autoExclusive()) << qPrintable(name);
        }
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

struct Look {
    int fontSize; // points
    bool dark;
};

QPalette darkPalette()
{
    QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2b, 0x2b, 0x2b));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    return dark;
}

// Shows every dialog with some content in a look of the desktop; with CORVANTA_PICTURES, a folder, a picture of each
// goes there.
class DialogPictures : public PropertyDialogs, public testing::WithParamInterface<Look> {
protected:
    DialogPictures() : before(QApplication::font()), colours(QApplication::palette())
    {
        QFont font = before;
        font.setPointSize(GetParam().fontSize);
        QApplication::setFont(font);
        if (GetParam().dark)
            QApplication::setPalette(darkPalette());
    }
    ~DialogPictures() override
    {
        QApplication::setFont(before);
        QApplication::setPalette(colours);
        roomCommands() = {};
        connection() = {};
    }

    static void look(QWidget &dialog)
    {
        lookAtWindow(dialog);
        expectOneLook(dialog);
    }
    static void lookAtWindow(QWidget &dialog)
    {
        QCoreApplication::processEvents();
        expectReadable(dialog);
        expectUsable(dialog);
        expectInHelpIndex(dialog);
        const QByteArray folder = qgetenv("CORVANTA_PICTURES");
        if (!folder.isEmpty())
            dialog.grab().save(QString("%1/%2-%3%4.png")
                                   .arg(folder, dialog.objectName())
                                   .arg(GetParam().fontSize)
                                   .arg(GetParam().dark ? "-dark" : ""));
    }

    QFont before;
    QPalette colours;
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

TEST_P(DialogPictures, OfTheOtherWindows)
{
    openSample("query.ods");
    connection().source = "Shop";
    connection().tables = {"Customers", "Orders"};
    connection().tableFacts = {{"Customers", "Customers", "", false}, {"Orders", "Orders", "", true}};
    const auto modal = [](const std::function<void()> &open) {
        ModalDriver driver;
        driver.expect("", [](QWidget &window) {
            lookAtWindow(window);
            static_cast<QDialog &>(window).reject();
        });
        open();
    };
    modal([] { showInput("Name:\tRename\told"); });
    modal(showDirectory);
    modal(showAbout);
    modal([] { askDataSource("Shop"); });
    modal([] { showFontDialog({}, nullptr); });
    modal([] { OpenSharedProperties({2, 4}); });
    showObjectList();
    lookAtWindow(*openObjectList());
    openObjectList()->reject();
    settle();
    showPageCheck(nullptr);
    lookAtWindow(*openDialog());
    openDialog()->close();
    settle();
    Hpsedit main;
    main.show();
    lookAtWindow(main);
    Odbcdbs odbc(main, kindIcon);
    odbc.show();
    lookAtWindow(odbc);
}

INSTANTIATE_TEST_SUITE_P(Looks, DialogPictures, testing::Values(Look{9, false}, Look{16, false}, Look{9, true}));

} // namespace
} // namespace corvanta
