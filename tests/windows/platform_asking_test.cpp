#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/qt_asking.h"
#include "tests/support/modal_driver.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

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

    static void press(QWidget &window, const char *name) { ModalDriver::find<QPushButton>(window, name).click(); }

    // Types a name into the file dialog, and presses Enter.
    static void type(QWidget &window, const char *name)
    {
        auto &edit = ModalDriver::find<QLineEdit>(window, "fileNameEdit");
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
        EXPECT_EQ(ModalDriver::find<QLabel>(box, "qt_msgbox_label").textFormat(), Qt::PlainText);
        box.button(QMessageBox::No)->click();
    });
    const MessageBox question{"Save <b>caf\xE9</b> & go?", "\"A\"", Icon::Question, Buttons::YesNoCancel};
    EXPECT_EQ(showMessage(question), Answer::No);
    EXPECT_EQ(text, QString::fromUtf8("Save <b>caf\u00E9</b> & go?"));
    EXPECT_EQ(title, "\"A\"");
}

TEST_F(QtAsking, ClosingAMessageCancels)
{
    driver.expect("messagebox", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_EQ(showMessage({"?", "A", Icon::Question, Buttons::YesNoCancel}), Answer::Cancel);
    driver.expect("messagebox", [](QWidget &window) { window.close(); });
    EXPECT_EQ(showMessage({"!", "A", Icon::Exclamation, Buttons::Ok}), Answer::Ok);
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

TEST(QtFileDialog, Filters)
{
    EXPECT_EQ(nameFilters("Objects (*.odo)|*.hdo|All Files (*.*)|*.*"),
              (QStringList{"Objects (*.odo) (*.hdo)", "All Files (*.*) (*)"}));
    EXPECT_EQ(nameFilters("Sounds|*.wav;*.mid"), QStringList{"Sounds (*.wav *.mid)"});
    EXPECT_TRUE(nameFilters("").isEmpty());
}

TEST_F(QtAsking, TheFilterShowsNamesInAnyCase)
{
    drive.add("PAGES/MENU.ODS");
    drive.add("PAGES/other.ods");
    drive.add("PAGES/notes.txt");
    int shown = 0;
    QString filter;
    driver.expect("QFileDialog", [&](QWidget &window) {
        filter = ModalDriver::find<QComboBox>(window, "fileTypeCombo").currentText();
        const auto &view = ModalDriver::find<QAbstractItemView>(window, "treeView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount(view.rootIndex()) >= 2; }));
        shown = view.model()->rowCount(view.rootIndex());
        window.close();
    });
    EXPECT_EQ(asking().fileDialog(openQuestion()), std::nullopt);
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(filter, "ODBC Form Files (*.ods)");
    EXPECT_EQ(currentDirectory(), "C:\\");
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

TEST_F(QtAsking, AMissingFileKeepsTheDialogOpen)
{
    drive.add("PAGES/MENU.ods");
    QString kept;
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "missing"); });
    driver.expect("", [](QWidget &window) { window.close(); });
    driver.expect("QFileDialog", [&](QWidget &window) {
        kept = ModalDriver::find<QLineEdit>(window, "fileNameEdit").text();
        window.close();
    });
    EXPECT_EQ(asking().fileDialog(openQuestion()), std::nullopt);
    EXPECT_EQ(kept, "missing");
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

TEST_F(QtAsking, ANameThatTheCodePageLacksStillNamesItsFile)
{
    const std::filesystem::path host = drive.add("PAGES/\xD7\x90.ods");
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "\xD7\x90.ods"); });
    const std::optional<std::string> chosen = asking().fileDialog(openQuestion());
    ASSERT_TRUE(chosen);
    EXPECT_EQ(hostPath(*chosen), host);
}

TEST_F(QtAsking, RefusesAFileOutsideEveryDrive)
{
    drive.add("PAGES/MENU.ods");
    driver.expect("QFileDialog", [](QWidget &window) { type(window, "../../elsewhere.ods"); });
    driver.expect("messagebox", [](QWidget &window) { window.close(); });
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

TEST_F(QtAsking, AnUntouchedFontComesBackAsItWas)
{
    driver.expect("fontdlg", [](QWidget &window) { press(window, "ok"); });
    const FontChoice given = oddFont();
    const std::optional<FontChoice> chosen = asking().fontDialog(given);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->FontName, given.FontName);
    EXPECT_EQ(chosen->FontSize, given.FontSize);
    EXPECT_EQ(chosen->ForeColor, given.ForeColor);
    EXPECT_TRUE(chosen->FontBold && chosen->FontStrikethru);
    EXPECT_FALSE(chosen->FontItalic || chosen->FontUnderline);
    driver.expect("fontdlg", [](QWidget &window) { press(window, "cancbut"); });
    EXPECT_FALSE(asking().fontDialog(given));
}

TEST_F(QtAsking, EveryFontPropertyCanBeChanged)
{
    driver.expect("fontdlg", [](QWidget &window) {
        ModalDriver::find<QComboBox>(window, "fontname").setEditText("Liberation Serif");
        ModalDriver::find<QComboBox>(window, "fontsize").setEditText("13,5");
        for (const char *box : {"bold", "italic", "strikethru", "underline"})
            ModalDriver::find<QCheckBox>(window, box).click();
        press(window, "forecolor");
        const QFont sample = ModalDriver::find<QLabel>(window, "sample").font();
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
    const std::optional<FontChoice> chosen = asking().fontDialog(oddFont());
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->FontName, "Liberation Serif");
    EXPECT_EQ(chosen->FontSize, 13.5F);
    EXPECT_EQ(chosen->ForeColor, 0x030201);
    EXPECT_FALSE(chosen->FontBold || chosen->FontStrikethru);
    EXPECT_TRUE(chosen->FontItalic && chosen->FontUnderline);
}

TEST_F(QtAsking, AnUnusableSizeCannotBeConfirmed)
{
    driver.expect("fontdlg", [](QWidget &window) {
        auto &size = ModalDriver::find<QComboBox>(window, "fontsize");
        for (const char *text : {"", "big", "0", "-3", "99999"}) {
            size.setEditText(text);
            EXPECT_FALSE(ModalDriver::find<QPushButton>(window, "ok").isEnabled()) << text;
        }
        window.close();
    });
    EXPECT_FALSE(asking().fontDialog(oddFont()));
}

TEST_F(QtAsking, CancelledColourGivesNone)
{
    driver.expect("colourdlg", [](QWidget &window) { dynamic_cast<QColorDialog &>(window).reject(); });
    EXPECT_EQ(asking().colourDialog(0x123456), std::nullopt);
    driver.expect("colourdlg", [](QWidget &window) { dynamic_cast<QColorDialog &>(window).accept(); });
    EXPECT_EQ(asking().colourDialog(0x123456), 0x123456);
}

} // namespace
} // namespace corvanta
