#include "database/catalogue.h"
#include "database/connection.h"
#include "database/ui/kind_buttons.h"
#include "database/ui/odbcdbs.h"
#include "database/ui/seldsn.h"
#include "platform/qt/drag.h"
#include "shell/ui/icons.h"
#include "tests/support/modal_driver.h"
#include "tests/support/scripted_asking.h"

#include <QCursor>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

using namespace corvanta;

namespace {

// SQLite sources of the process: "Shop" and "Archive" are the sample database, the file of "Lost File" is missing.
struct Sources {
    Sources()
    {
        std::string name = (std::filesystem::temp_directory_path() / "corvanta-odbc-XXXXXX").string();
        folder = mkdtemp(name.data());
        const std::string database = (folder / "shop.db").string();
        EXPECT_EQ(std::system(("sqlite3 -bail '" + database + "' < '" CORVANTA_SOURCE "/samples/shop.sql'").c_str()),
                  0);
        std::ofstream(folder / "odbcinst.ini") << "[SQLite3]\nDriver=libsqlite3odbc.so\n";
        std::ofstream user(folder / "user.ini");
        for (const std::string source : {"Archive", "Shop"})
            user << "[" << source << "]\nDriver=SQLite3\nDatabase=" << database << "\n\n";
        user << "[Lost File]\nDriver=SQLite3\nDatabase=" << (folder / "lost.db").string() << "\n";
        setenv("ODBCSYSINI", folder.c_str(), 1);
        setenv("ODBCINI", (folder / "user.ini").c_str(), 1);
    }
    ~Sources() { std::filesystem::remove_all(folder); }

    std::filesystem::path folder;
};

class OdbcWindow : public testing::Test {
protected:
    OdbcWindow()
    {
        static Sources sources;
        connection() = {};
        window = std::make_unique<Odbcdbs>(mainWindow, kindIcon);
        mainWindow.show();
        window->show();
    }
    ~OdbcWindow() override
    {
        OdbcNameEndDll();
        connection() = {};
    }

    template <class Control = QWidget> Control &part(const char *name)
    {
        auto *found = window->findChild<Control *>(name);
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
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
            auto &list = ModalDriver::find<QListWidget>(dialog, "dsnlist");
            list.setCurrentItem(list.findItems(QString::fromStdString(source), Qt::MatchExactly).front());
            ModalDriver::find<QLineEdit>(dialog, "Username").setText(user);
            ModalDriver::find<QPushButton>(dialog, "ok").click();
        });
        part<QPushButton>("dsnselect").click();
    }
    void clickEntry(const char *list, int row)
    {
        auto &entries = part<QListWidget>(list);
        QTest::mouseClick(entries.viewport(), Qt::LeftButton, {}, entries.visualItemRect(entries.item(row)).center());
    }

    static void mouse(QWidget &widget, QEvent::Type type, QPoint at)
    {
        const bool none = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, widget.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          none ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &event);
    }
    // What a drag from a point of a widget carries; none when there is no drag.
    static std::optional<DragPayload> dragFrom(QWidget &widget, QPoint at, int distance = 30)
    {
        mouse(widget, QEvent::MouseButtonPress, at);
        mouse(widget, QEvent::MouseMove, at + QPoint(distance, 0));
        auto *drag = widget.findChild<QDrag *>();
        if (!drag) {
            mouse(widget, QEvent::MouseButtonRelease, at + QPoint(distance, 0));
            return std::nullopt;
        }
        EXPECT_FALSE(drag->pixmap().isNull());
        const auto carried = dragPayload(*drag->mimeData());
        delete drag;
        return carried;
    }
    std::string dragOfEntry(const char *list, int row)
    {
        auto &entries = part<QListWidget>(list);
        const auto carried = dragFrom(*entries.viewport(), entries.visualItemRect(entries.item(row)).center());
        return carried ? carried->tag + ":" + carried->payload.toStdString() : "";
    }

    void moveTo(const char *name)
    {
        QWidget &widget = part<>(name);
        QCursor::setPos(widget.mapToGlobal(widget.rect().center()));
        QMouseEvent event(QEvent::MouseMove, widget.rect().center(), QCursor::pos(), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(&widget, &event);
    }
    // The interval of the tip's timer has passed.
    void fireTimer()
    {
        auto &timer = part<QTimer>("Timer1");
        ASSERT_TRUE(timer.isActive());
        QTimerEvent event(timer.timerId());
        QApplication::sendEvent(&timer, &event);
    }
    std::string tip() { return part<>("picbut").isVisible() ? part<QLabel>("txtbut").text().toStdString() : ""; }

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
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    const QStringList columns = entries("fldlist");
    EXPECT_EQ(static_cast<std::size_t>(columns.size()), connection().columns.size());
    EXPECT_TRUE(columns.contains("Name"));

    clickEntry("fldlist", 1);
    QTest::keyClick(&part<>("dbslist"), Qt::Key_Home); // the table that is listed
    EXPECT_EQ(part<QListWidget>("fldlist").selectedItems().size(), 1);
    QTest::keyClick(&part<>("dbslist"), Qt::Key_Down);
    EXPECT_EQ(connection().listedTable, 1);
    EXPECT_NE(entries("fldlist"), columns);

    connectTo("Archive");
    EXPECT_EQ(part<QLineEdit>("dsn").text(), "Archive");
    EXPECT_TRUE(entries("fldlist").isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::overrideCursor(); }));
}

TEST_F(OdbcWindow, FailureIsToldAndChangesNothing)
{
    connectTo("Shop");
    clickEntry("dbslist", 0);
    const QStringList tables = entries("dbslist"), columns = entries("fldlist");
    ScriptedAsking user;
    user.expectMessage("Failure connecting to Lost File", "Error");
    testing::internal::CaptureStderr();
    connectTo("Lost File");
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(part<QLineEdit>("dsn").text(), "Shop");
    EXPECT_EQ(entries("dbslist"), tables);
    EXPECT_EQ(entries("fldlist"), columns);
}

TEST_F(OdbcWindow, ChoiceOfSourceFollowsItsRules)
{
    connectTo("Shop");
    std::string reply;
    {
        ModalDriver driver;
        driver.expect("seldsn", [](QWidget &dialog) {
            auto &list = ModalDriver::find<QListWidget>(dialog, "dsnlist");
            auto &ok = ModalDriver::find<QPushButton>(dialog, "ok");
            EXPECT_EQ(dialog.windowTitle(), "Select Data Source");
            EXPECT_EQ(list.count(), 3);
            EXPECT_EQ(list.currentItem()->text(), "Shop");
            EXPECT_FALSE(ok.isEnabled());
            const auto clickOn = [&list](int row) {
                const QPoint at = list.visualItemRect(list.item(row)).center();
                QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
                return at;
            };
            clickOn(list.currentRow());
            EXPECT_TRUE(ok.isEnabled());
            ModalDriver::find<QLineEdit>(dialog, "Username").setText("ann");
            ModalDriver::find<QLineEdit>(dialog, "Password").setText("secret");
            const QPoint at = clickOn(0);
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
        });
        reply = askDataSource("Shop");
    }
    EXPECT_EQ(reply, "Archive\tann\tsecret");
    ModalDriver driver;
    driver.expect("seldsn", [](QWidget &dialog) {
        EXPECT_EQ(ModalDriver::find<QListWidget>(dialog, "dsnlist").selectedItems().size(), 0);
        ModalDriver::find<QPushButton>(dialog, "cancbut").click();
    });
    EXPECT_EQ(askDataSource(""), "");
}

TEST_F(OdbcWindow, DragsCarrySourceTableAndColumn)
{
    EXPECT_FALSE(dragFrom(part<>("dsn"), {5, 5}));
    connectTo("Shop", "ann");
    connection().password = "secret";
    const auto source = dragFrom(part<>("dsn"), {5, 5});
    ASSERT_TRUE(source);
    EXPECT_EQ(source->tag + ":" + source->payload.toStdString(), "dsn:Shop");
    EXPECT_FALSE(dragFrom(part<>("dsn"), {5, 5}, 2));

    EXPECT_FALSE(dragFrom(*part<QListWidget>("fldlist").viewport(), {5, 5}));
    EXPECT_EQ(dragOfEntry("dbslist", 1), "dbs:" + connection().tables[1]);
    EXPECT_EQ(connection().listedTable, -1); // dragged, not clicked
    clickEntry("dbslist", 0);
    EXPECT_EQ(dragOfEntry("fldlist", 1), "fld:" + dragOfColumn(*columnAt(connection(), 1)));
}

TEST_F(OdbcWindow, OneKindButtonIsPressed)
{
    const auto pressed = [this] {
        std::string marks;
        for (auto *button : window->findChildren<QToolButton *>())
            marks += button->isChecked() ? '1' : '0';
        return marks;
    };
    EXPECT_EQ(pressed(), "000000010");
    QTest::mousePress(&part<>("butobj0"), Qt::LeftButton);
    EXPECT_EQ(pressed(), "100000000");
    EXPECT_EQ(connection().pressedButton, 0U);
    QTest::mouseRelease(&part<>("butobj0"), Qt::LeftButton);
    QTest::mouseClick(&part<>("butobj0"), Qt::LeftButton);
    EXPECT_EQ(pressed(), "100000000");
    const auto carried = dragFrom(part<>("butobj8"), {5, 5});
    ASSERT_TRUE(carried);
    EXPECT_EQ(carried->tag + ":" + carried->payload.toStdString(), "obj:13");
    EXPECT_EQ(pressed(), "000000001");
    EXPECT_FALSE(part<QToolButton>("butobj8").isDown());
}

TEST_F(OdbcWindow, TipsFollowThePointer)
{
    moveTo("butobj2");
    EXPECT_EQ(tip(), "File Box");
    const QWidget &box = part<>("picbut");
    EXPECT_EQ(box.pos().y(), QCursor::pos().y() + 13); // 200 twips
    EXPECT_EQ(box.width(), box.fontMetrics().horizontalAdvance("File Box") + 3);
    EXPECT_EQ(part<QTimer>("Timer1").interval(), 500);
    EXPECT_EQ(part<QTimer>("Timer1").property("tag").toInt(), 2);

    fireTimer();
    EXPECT_EQ(tip(), "File Box"); // the pointer has stayed
    moveTo("butobj3");
    EXPECT_EQ(tip(), "File Box"); // a tip that is shown is not replaced
    fireTimer();
    EXPECT_EQ(tip(), "");
    EXPECT_FALSE(part<QTimer>("Timer1").isActive());
    moveTo("butobj3");
    EXPECT_EQ(tip(), "Grid");
    for (const char *elsewhere : {"dsn", "dbslist", "field", "odbcdbs"}) {
        moveTo("butobj3");
        QWidget &other = std::string(elsewhere) == "odbcdbs" ? *window : part<>(elsewhere);
        QMouseEvent event(QEvent::MouseMove, QPoint(1, 1), other.mapToGlobal(QPoint(1, 1)), Qt::NoButton, Qt::NoButton,
                          {});
        QApplication::sendEvent(&other, &event);
        EXPECT_EQ(tip(), "") << elsewhere;
    }
    moveTo("butobj3");
    window->hide();
    EXPECT_EQ(tip(), "");
}

TEST_F(OdbcWindow, StaysUsableBesideTheMainWindowAndHidesWhenClosed)
{
    EXPECT_EQ(window->windowHandle()->transientParent(), mainWindow.windowHandle());
    EXPECT_EQ(window->windowTitle(), "ODBC Toolbar");
    mainWindow.setEnabled(false);
    EXPECT_TRUE(window->isEnabled());
    int closed = 0;
    window->closed = [&closed] { ++closed; };
    window->hide();
    EXPECT_EQ(closed, 0);
    window->show();
    connectTo("Shop");
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(connection().source, "Shop");
}
