#include "actions/action.h"
#include "actions/ui/edit_action.h"
#include "page/ui/pgprops.h"
#include "tests/windows/objects_page.h"

#include <QAccessible>
#include <QLabel>
#include <QListWidget>

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
        EXPECT_TRUE(w->window()->rect().contains(QRect(w->mapTo(w->window(), QPoint()), w->size())))
            << qPrintable(w->objectName());
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
