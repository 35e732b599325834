#include "database/catalogue.h"
#include "database/connection.h"
#include "database/ui/odbcdbs.h"
#include "database/ui/seldsn.h"
#include "platform/post.h"
#include "platform/qt/drag.h"
#include "shell/ui/icons.h"
#include "tests/support/database_sources.h"
#include "tests/support/modal_driver.h"

#include <QCursor>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QMouseEvent>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

using namespace corvanta;

namespace {

class OdbcWindow : public testing::Test {
protected:
    OdbcWindow()
    {
        testsources::setUp();
        connection() = {};
        window = std::make_unique<Odbcdbs>(mainWindow, kindIcon);
        mainWindow.show();
        window->show();
    }
    ~OdbcWindow() override
    {
        window.reset();
        OdbcNameEndDll();
        connection() = {};
        EXPECT_TRUE(QTest::qWaitFor([] { return !catalogueInUse(); })); // every thread has ended
    }

    // Until nothing is waited for.
    void settle()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            runPostedJobs();
            return part<QLabel>("waiting").text().isEmpty();
        }));
    }

    template <class Control = QWidget> Control &part(const char *name) { return find<Control>(*window, name); }
    QStringList entries(const char *list)
    {
        QStringList texts;
        for (int row = 0; row < part<QListWidget>(list).count(); ++row)
            texts << part<QListWidget>(list).item(row)->text();
        return texts;
    }
    void connectTo(const std::string &source, const char *user = "")
    {
        ModalDriver driver;
        driver.expect("seldsn", [&](QWidget &dialog) {
            auto &list = find<QListWidget>(dialog, "dsnlist");
            list.setCurrentItem(list.findItems(QString::fromStdString(source), Qt::MatchExactly).front());
            find<QLineEdit>(dialog, "Username").setText(user);
            press(dialog, "ok");
        });
        press(*window, "dsnselect");
        settle();
    }
    void clickEntry(const char *list, int row)
    {
        auto &entries = part<QListWidget>(list);
        QTest::mouseClick(entries.viewport(), Qt::LeftButton, {}, entries.visualItemRect(entries.item(row)).center());
        settle();
    }

    static void mouse(QWidget &widget, QEvent::Type type, QPoint at, Qt::MouseButton held)
    {
        QMouseEvent event(type, at, widget.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          held, {});
        QApplication::sendEvent(&widget, &event);
    }
    // What a drag from a point of a widget carries; empty when there is no drag.
    static std::string dragFrom(QWidget &widget, QPoint at = {5, 5}, int distance = 30)
    {
        mouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
        mouse(widget, QEvent::MouseMove, at + QPoint(distance, 0), Qt::LeftButton);
        const std::unique_ptr<QDrag> drag(widget.findChild<QDrag *>());
        if (!drag) {
            mouse(widget, QEvent::MouseButtonRelease, at + QPoint(distance, 0), Qt::NoButton);
            return {};
        }
        EXPECT_FALSE(drag->pixmap().isNull());
        const auto carried = dragPayload(*drag->mimeData());
        return carried ? carried->tag + ":" + carried->payload.toStdString() : "nothing";
    }
    std::string dragOfEntry(const char *list, int row)
    {
        auto &entries = part<QListWidget>(list);
        return dragFrom(*entries.viewport(), entries.visualItemRect(entries.item(row)).center());
    }

    QWidget mainWindow;
    std::unique_ptr<Odbcdbs> window;
};

} // namespace

TEST_F(OdbcWindow, ConnectsAndLists)
{
    connectTo("Shop", "ann");
    EXPECT_EQ(part<QLineEdit>("dsn").text(), "Shop");
    EXPECT_TRUE(entries("dbslist").contains("Customers"));
    EXPECT_TRUE(entries("fldlist").isEmpty());
    EXPECT_EQ(connection().user, "ann");
    clickEntry("dbslist", 0);
    const QStringList columns = entries("fldlist");
    EXPECT_EQ(static_cast<std::size_t>(columns.size()), connection().columns.size());
    EXPECT_TRUE(columns.contains("Name"));

    clickEntry("fldlist", 1);
    QTest::keyClick(&part<>("dbslist"), Qt::Key_Home); // the table that is listed
    EXPECT_EQ(part<QListWidget>("fldlist").selectedItems().size(), 1);
    QTest::keyClick(&part<>("dbslist"), Qt::Key_Down);
    EXPECT_EQ(connection().listedTable, 1);
    settle();
    EXPECT_FALSE(entries("fldlist").isEmpty());
    EXPECT_NE(entries("fldlist"), columns);
    press(*window, "refreshbut");
    settle();
    EXPECT_EQ(part<QListWidget>("dbslist").currentRow(), 1);
    EXPECT_FALSE(entries("fldlist").isEmpty());

    press(*window, "butobj0");
    window->hide();
    window->show();
    EXPECT_EQ(kindButtons[connection().pressedButton].kind, Kind::TextBox);

    connectTo("Archive");
    EXPECT_EQ(part<QLineEdit>("dsn").text(), "Archive");
    EXPECT_TRUE(entries("fldlist").isEmpty());
}

TEST_F(OdbcWindow, FiltersTablesTellsTypesAndPlacesColumns)
{
    connectTo("Shop");
    auto &tables = part<QListWidget>("dbslist"), &columns = part<QListWidget>("fldlist");
    EXPECT_FALSE(part<QAbstractButton>("rowsbut").isEnabled());
    QTest::keyClicks(&part<>("dbsfilter"), "PRICE");
    for (int row = 0; row < tables.count(); ++row)
        EXPECT_EQ(tables.isRowHidden(row), tables.item(row)->text() != "PriceList");
    QTest::keyPress(&part<>("dbsfilter"), Qt::Key_Down);
    QTest::keyRelease(&part<>("dbslist"), Qt::Key_Down);
    EXPECT_EQ(connection().tables.at(static_cast<std::size_t>(connection().listedTable)), "PriceList");
    EXPECT_TRUE(part<QAbstractButton>("rowsbut").isEnabled());
    const auto spoken = [](QListWidget &list, int row) { return list.item(row)->data(Qt::AccessibleTextRole); };
    EXPECT_EQ(spoken(tables, tables.currentRow()), "PriceList, view");
    part<QLineEdit>("dbsfilter").clear();
    clickEntry("dbslist", 0);
    EXPECT_EQ(spoken(columns, 0), "Number, INTEGER, primary key");
    EXPECT_EQ(spoken(columns, 1), "Name, VARCHAR(40)");
    EXPECT_TRUE(columns.item(1)->toolTip().contains("length 40"));

    std::string placed;
    window->placed = [&](const std::vector<DroppedColumn> &list) { placed = dragOfColumns(list); };
    clickEntry("fldlist", 1);
    QTest::keyClick(&columns, Qt::Key_Return);
    EXPECT_EQ(placed, dragOfColumn(*columnAt(connection(), 1)));
    QTest::mouseClick(columns.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      columns.visualItemRect(columns.item(2)).center());
    EXPECT_EQ(dragOfEntry("fldlist", 1), "fld:" + placed + '\n' + dragOfColumn(*columnAt(connection(), 2)));
}

TEST_F(OdbcWindow, ShowsTheFirstRowsOfATable)
{
    connectTo("Shop");
    clickEntry("dbslist", 1);
    press(*window, "rowsbut");
    QWidget *shown = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        runPostedJobs();
        shown = window->findChild<QWidget *>("tblrows");
        return shown && find<QTableWidget>(*shown, "rows").rowCount() > 0;
    }));
    auto &rows = find<QTableWidget>(*shown, "rows");
    EXPECT_EQ(static_cast<std::size_t>(rows.columnCount()), connection().columns.size());
    EXPECT_EQ(rows.editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(OdbcWindow, ChoiceOfSourceFollowsItsRules)
{
    connectTo("Shop");
    ModalDriver driver;
    driver.expect("seldsn", [](QWidget &dialog) {
        auto &list = find<QListWidget>(dialog, "dsnlist");
        auto &ok = find<QAbstractButton>(dialog, "ok");
        EXPECT_EQ(dialog.windowTitle(), "Select Data Source");
        EXPECT_EQ(static_cast<std::size_t>(list.count()), dataSources().size());
        EXPECT_EQ(list.currentItem()->text(), "Shop");
        EXPECT_FALSE(ok.isEnabled());
        const auto clickOn = [&list](const char *name) {
            QListWidgetItem *item = list.findItems(name, Qt::MatchExactly).front();
            list.scrollToItem(item);
            const QPoint at = list.visualItemRect(item).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
            return at;
        };
        clickOn("Shop");
        EXPECT_TRUE(ok.isEnabled());
        find<QLineEdit>(dialog, "Username").setText("ann");
        find<QLineEdit>(dialog, "Password").setText("secret");
        const QPoint at = clickOn("Archive");
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    });
    EXPECT_EQ(askDataSource("Shop"), "Archive\tann\tsecret");
    driver.expect("seldsn", [](QWidget &dialog) {
        EXPECT_EQ(find<QListWidget>(dialog, "dsnlist").selectedItems().size(), 0);
        press(dialog, "cancbut");
    });
    EXPECT_EQ(askDataSource(""), "");
}

TEST_F(OdbcWindow, DragsCarrySourceTableAndColumn)
{
    EXPECT_EQ(dragFrom(part<>("dsn")), "");
    connectTo("Shop", "ann");
    connection().password = "secret";
    EXPECT_EQ(dragFrom(part<>("dsn")), "dsn:Shop");
    EXPECT_EQ(dragFrom(part<>("dsn"), {5, 5}, 2), "");
    EXPECT_EQ(dragFrom(*part<QListWidget>("fldlist").viewport()), "");
    EXPECT_EQ(dragOfEntry("dbslist", 1), "dbs:" + connection().tables[1]);
    EXPECT_EQ(connection().listedTable, 1); // the columns beside it are its own
    clickEntry("dbslist", 0);
    EXPECT_EQ(dragOfEntry("fldlist", 1), "fld:" + dragOfColumn(*columnAt(connection(), 1)));
}
