#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/qt_asking.h"
#include "tests/support/modal_driver.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

namespace corvanta {
namespace {

// The desktop's questions for the time of a test.
class QtAsking : public testing::Test {
protected:
    QtAsking()
    {
        installAsking([]() -> QWidget * { return nullptr; });
    }
    ~QtAsking() override { asking() = before; }

    static void press(QWidget &window, const char *name) { find<QPushButton>(window, name).click(); }

    // Types a name into the file dialog, and presses Enter.
    static void type(QWidget &window, const char *name)
    {
        auto &edit = find<QLineEdit>(window, "fileNameEdit");
        edit.setText(name);
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    Asking before = asking();
    TemporaryDrive drive;
    ModalDriver driver;
};

TEST_F(QtAsking, MessageTextsAreShownAsTheyAre)
{
    QString text, title, label;
    driver.expect("messagebox", [&](QWidget &window) {
        auto &box = dynamic_cast<QMessageBox &>(window);
        text = box.text();
        title = box.windowTitle();
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(find<QLabel>(box, "qt_msgbox_label").textFormat(), Qt::PlainText);
        box.button(QMessageBox::No)->click();
    });
    const MessageBox question{"Save <b>caf\xE9</b> & go?", "\"A\"", Icon::Question, Buttons::YesNoCancel};
    EXPECT_EQ(showMessage(question), Answer::No);
    EXPECT_EQ(text, QString::fromUtf8("Save <b>caf\u00E9</b> & go?"));
    EXPECT_EQ(title, "\"A\"");
}

FileDialog openQuestion()
{
    FileDialog question;
    question.mustExist = true;
    question.defaultExtension = "ODS";
    question.filter = "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*";
    question.initialDirectory = "C:\\pages";
    return question;
}

FileDialog saveQuestion()
{
    FileDialog question = openQuestion();
    question.kind = FileDialog::Kind::Save;
    question.mustExist = false;
    question.overwritePrompt = true;
    return question;
}

TEST_F(QtAsking, AFilterListsWhatItsCaptionNamesToo)
{
    const std::string objects = "ODBC Object Files (*.odo)|*.hdo|All Files (*.*)|*.*";
    EXPECT_EQ(nameFilters(objects), (QStringList{"ODBC Object Files (*.odo) (*.hdo *.odo)", "All Files (*.*) (*)"}));
    driver.expect("QFileDialog", [](QWidget &window) {
        auto &list = find<QTreeView>(window, "treeView");
        EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0) << "every column is seen";
        dynamic_cast<QDialog &>(window).reject();
    });
    asking().fileDialog(openQuestion());
}

TEST_F(QtAsking, QuestionsStandOverTheWindowThatWasWorkedIn)
{
    QLineEdit work;
    QDialog dialog;
    work.show();
    work.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&work));
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    dialog.hide();
    QApplication::setActiveWindow(nullptr);
    QWidget *over = nullptr;
    driver.expect("messagebox", [&](QWidget &window) {
        over = window.parentWidget();
        dynamic_cast<QDialog &>(window).reject();
    });
    showMessage({"Gone?", "A"});
    EXPECT_EQ(over, &work);
}

TEST_F(QtAsking, OpensByAnyWayToWriteTheName)
{
    drive.add("PAGES/MENU.ods");
    drive.add("PAGES/plain");
    drive.add("other/deep/A.ods");
    const std::vector<std::pair<const char *, const char *>> cases{
        {"MENU.ods", "C:\\PAGES\\MENU.ods"},
        {"menu", "C:\\PAGES\\MENU.ods"},
        {"plain", "C:\\PAGES\\plain"},
        {"c:\\other\\DEEP\\a.ods", "C:\\other\\deep\\A.ods"},
        {"..\\other\\deep\\a", "C:\\other\\deep\\A.ods"},
    };
    for (const auto &[typed, expected] : cases) {
        changeDirectory("C:\\");
        driver.expect("QFileDialog", [&, name = typed](QWidget &window) { type(window, name); });
        EXPECT_EQ(asking().fileDialog(openQuestion()), std::string(expected)) << typed;
        EXPECT_NE(currentDirectory(), "C:\\");
    }
    EXPECT_EQ(currentDirectory(), "C:\\other\\deep");
}

TEST_F(QtAsking, SavesUnderANewNameWithTheExtension)
{
    drive.add("PAGES/MENU.ods");
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "new"); });
    EXPECT_EQ(asking().fileDialog(saveQuestion()), std::string("C:\\PAGES\\new.ODS"));
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "new.txt"); });
    EXPECT_EQ(asking().fileDialog(saveQuestion()), std::string("C:\\PAGES\\new.txt"));
    EXPECT_EQ(currentDirectory(), "C:\\PAGES");
}

TEST_F(QtAsking, TellsADriveThatDoesNotExist)
{
    drive.add("PAGES/a:b.ods");
    for (const FileDialog &question : {openQuestion(), saveQuestion()}) {
        driver.expect("QFileDialog", [](QWidget &window) { type(window, "q:\\new.ods"); });
        driver.expect("messagebox", [](QWidget &window) {
            EXPECT_EQ(dynamic_cast<QMessageBox &>(window).text(), "Drive Q: is invalid!");
            window.close();
        });
        driver.expect("QFileDialog", [](QWidget &window) { window.close(); });
        EXPECT_EQ(asking().fileDialog(question), std::nullopt);
    }
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "a:b.ods"); });
    const auto chosen = asking().fileDialog(openQuestion());
    ASSERT_TRUE(chosen) << "a file's own name comes first";
    EXPECT_EQ(hostPath(*chosen), drive.root() / "PAGES/a:b.ods");
}

TEST_F(QtAsking, AsksBeforeAFileIsReplacedWhateverTheCaseOfItsName)
{
    drive.add("PAGES/Menu.ods");
    const auto answer = [this](QMessageBox::StandardButton button) {
        driver.expect("QFileDialog", [](QWidget &window) { type(window, "MENU"); });
        driver.expect("", [button](QWidget &window) { dynamic_cast<QMessageBox &>(window).button(button)->click(); });
    };
    answer(QMessageBox::Yes);
    EXPECT_EQ(asking().fileDialog(saveQuestion()), std::string("C:\\PAGES\\Menu.ods"));
    answer(QMessageBox::No);
    driver.expect("QFileDialog", [](QWidget &window) { window.close(); });
    EXPECT_EQ(asking().fileDialog(saveQuestion()), std::nullopt);
}

FontChoice oddFont()
{
    FontChoice font;
    font.FontName = "Not Install\xE9"
                    "d";
    font.FontSize = 8.3F;
    font.FontBold = font.FontStrikethru = true;
    font.ForeColor = 0x123456;
    return font;
}

TEST_F(QtAsking, EveryFontPropertyCanBeChanged)
{
    driver.expect("fontdlg", [](QWidget &window) {
        find<QComboBox>(window, "fontname").setEditText("Liberation Serif");
        find<QComboBox>(window, "fontsize").setEditText("13,5");
        for (const char *box : {"bold", "italic", "strikethru", "underline"})
            find<QCheckBox>(window, box).click();
        press(window, "forecolor");
        const QFont sample = find<QLabel>(window, "sample").font();
        EXPECT_EQ(sample.family(), "Liberation Serif");
        EXPECT_TRUE(sample.italic() && sample.underline());
        press(window, "ok");
    });
    driver.expect("colourdlg", [](QWidget &window) {
        auto &dialog = dynamic_cast<QColorDialog &>(window);
        EXPECT_EQ(dialog.currentColor(), QColor(0x56, 0x34, 0x12));
        dialog.setCurrentColor(QColor(1, 2, 3));
        dialog.accept();
    });
    driver.expect("fontdlg", [](QWidget &window) { press(window, "cancbut"); });
    const std::optional<FontChoice> chosen = asking().fontDialog(oddFont());
    EXPECT_FALSE(asking().fontDialog(oddFont()));
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->FontName, "Liberation Serif");
    EXPECT_EQ(chosen->FontSize, 13.5F);
    EXPECT_EQ(chosen->ForeColor, 0x030201);
    EXPECT_FALSE(chosen->FontBold || chosen->FontStrikethru);
    EXPECT_TRUE(chosen->FontItalic && chosen->FontUnderline);
}

} // namespace
} // namespace corvanta
