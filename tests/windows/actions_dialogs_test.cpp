#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/ui/edit_action.h"
#include "document/encoding.h"
#include "document/page.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "tests/support/modal_driver.h"
#include "tests/support/scripted_asking.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace corvanta {
namespace {

std::string textOf(const QWidget &window, const char *name)
{
    const auto *field = window.findChild<QWidget *>(name);
    if (const auto *area = qobject_cast<const QPlainTextEdit *>(field))
        return toBytes(area->toPlainText());
    return toBytes(ModalDriver::find<QLineEdit>(window, name).text());
}

// Types over what the field holds.
void type(QWidget &window, const char *name, const QString &text)
{
    auto &field = ModalDriver::find<QWidget>(window, name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

// A field's label, or the caption of the frame that it has for itself.
std::string captionOf(const QWidget &window, const char *name)
{
    const auto &field = ModalDriver::find<QWidget>(window, name);
    if (const QLabel *label = labelOf(field))
        return label->text().toStdString();
    return qobject_cast<QGroupBox *>(field.parentWidget())->title().toStdString();
}

void press(QWidget &window, const char *button) { ModalDriver::find<QAbstractButton>(window, button).click(); }
void confirm(QWidget &window) { QTest::keyClick(window.focusWidget(), Qt::Key_Return); }
void cancel(QWidget &window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); }

// Edits an action in its dialog; the window is driven by the step and must be closed by it.
std::string edited(const std::string &text, const char *dialog, std::function<void(QWidget &)> drive)
{
    ModalDriver driver;
    driver.expect(dialog, std::move(drive));
    std::string result = EditAction(text);
    EXPECT_EQ(dialogExchange(), "");
    return result;
}

struct TextCase {
    std::int16_t code;
    const char *dialog, *caption, *cancelName;
    std::vector<std::pair<const char *, const char *>> fields; // with their labels
};

class TextActions : public testing::TestWithParam<TextCase> {
protected:
    std::string input() const
    {
        Action action{GetParam().code, {}};
        for (std::size_t i = 0; i < GetParam().fields.size(); ++i)
            action.values.push_back("value \xE9 " + std::to_string(i));
        return encodeAction(action) + "behind";
    }
};

TEST_P(TextActions, StoreTheirTextsTrimmed)
{
    Action expected{GetParam().code, {}};
    for (std::size_t i = 0; i < GetParam().fields.size(); ++i)
        expected.values.push_back("new " + std::to_string(i));
    const std::string result = edited(input(), GetParam().dialog, [](QWidget &window) {
        EXPECT_EQ(window.windowTitle().toStdString(), GetParam().caption);
        int i = 0;
        for (const auto &[name, label] : GetParam().fields) {
            EXPECT_EQ(captionOf(window, name), label);
            EXPECT_EQ(textOf(window, name), "value \xE9 " + std::to_string(i));
            type(window, name, QString("  new %1 ").arg(i++));
        }
        confirm(window);
    });
    EXPECT_EQ(result, encodeAction(expected));
}

TEST_P(TextActions, CancelHandsBackTheInput)
{
    const auto change = [](QWidget &window) {
        for (const auto &[name, label] : GetParam().fields)
            type(window, name, "changed");
    };
    const auto escape = [change](QWidget &window) {
        change(window);
        cancel(window);
    };
    const auto button = [change](QWidget &window) {
        change(window);
        press(window, GetParam().cancelName);
    };
    EXPECT_EQ(edited(input(), GetParam().dialog, escape), input());
    EXPECT_EQ(edited(input(), GetParam().dialog, button), input());
}

TEST_P(TextActions, StartInTheFirstFieldWithItsTextSelected)
{
    edited(input(), GetParam().dialog, [](QWidget &window) {
        const char *first = GetParam().fields.front().first;
        EXPECT_EQ(window.focusWidget()->objectName(), first);
        QTest::keyClicks(window.focusWidget(), "x");
        EXPECT_EQ(textOf(window, first), "x");
        cancel(window);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, TextActions,
    testing::Values(
        TextCase{action::goToPage, "gopact", "Action Properties", "cancel", {{"pagnam", "Go to page:"}}},
        TextCase{action::pageUser, "pguact", "Action Properties", "cancel", {{"userid", "Page User:"}}},
        TextCase{action::goToUrl, "urlact", "Action Properties", "cancel", {{"urlnam", "Go to URL:"}}},
        TextCase{action::serverApp,
                 "nclact",
                 "Action Properties",
                 "cancel",
                 {{"nclhost", "Server domain name:"}, {"nclapp", "App ID:"}, {"nclcmd", "Command string:"}}},
        TextCase{action::executeApp,
                 "appact",
                 "Action Properties",
                 "cancel",
                 {{"appapp", "App ID:"}, {"appcmd", "Command string:"}}},
        TextCase{action::submitSelect,
                 "selpact",
                 "Action Properties",
                 "cancel",
                 {{"selstmt", "Select Statement"}, {"hlistpage", "Hit List Page"}, {"qryviewpage", "Query View Page"}}},
        TextCase{action::executeSql, "sqlpact", "Action Properties", "cancel", {{"sqlstmt", "SQL Statement"}}},
        TextCase{action::messageBox,
                 "MsgPact",
                 "Massage Box properties",
                 "cansel",
                 {{"title", "Title :"}, {"Text", "Text :"}}}),
    [](const auto &row) { return row.param.dialog; });

TEST(ActionDialogs, KindsWithoutADialogPassThrough)
{
    for (const std::int16_t code : {0, 2, 500, 508, 520, 522, 600, -1})
        EXPECT_EQ(EditAction(encodeInt16(code) + "rest"), encodeInt16(code) + "rest");
    EXPECT_EQ(EditAction(""), "");
}

TEST(ActionDialogs, MissingParametersReadAsEmpty)
{
    EXPECT_EQ(edited(encodeInt16(action::submitSelect), "selpact", confirm),
              encodeAction({action::submitSelect, {"", "", ""}}));
}

TEST(ActionDialogs, AStatementLeftAloneKeepsItsBytes)
{
    const std::string statement = "Select *\r\n  From\t\xA0 a\n";
    const std::string text = encodeAction({action::executeSql, {statement}});
    EXPECT_EQ(edited(text, "sqlpact", confirm), text);
    const std::string result = edited(text, "sqlpact", [](QWidget &window) {
        type(window, "sqlstmt", "one");
        QTest::keyClick(window.focusWidget(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(window.focusWidget(), "two");
        confirm(window);
    });
    EXPECT_EQ(result, encodeAction({action::executeSql, {"one\ntwo"}}));
}

TEST(ActionDialogs, GoToPageWithoutAPageMeansTop)
{
    const std::string top = encodeAction({action::goToPage, {"TOP"}});
    for (const std::string &text : {encodeInt16(action::goToPage), encodeAction({action::goToPage, {""}})}) {
        const auto showsTop = [](QWidget &window) {
            EXPECT_EQ(textOf(window, "pagnam"), "TOP");
            type(window, "pagnam", "OTHER");
            window.close();
        };
        EXPECT_EQ(edited(text, "gopact", showsTop), top);
    }
    const std::string blanks = encodeAction({action::goToPage, {"  "}});
    EXPECT_EQ(edited(blanks, "gopact", cancel), blanks);
    EXPECT_EQ(edited(blanks, "gopact", confirm), top);
}

TEST(ActionDialogs, OkNeedsAPageAndAUrl)
{
    const auto needsText = [](const char *name, bool enabledAtFirst) {
        return [=](QWidget &window) {
            auto &ok = ModalDriver::find<QPushButton>(window, "ok");
            EXPECT_EQ(ok.isEnabled(), enabledAtFirst);
            type(window, name, "   ");
            EXPECT_FALSE(ok.isEnabled());
            confirm(window);
            EXPECT_TRUE(window.isVisible());
            type(window, name, " a");
            EXPECT_TRUE(ok.isEnabled());
            confirm(window);
        };
    };
    EXPECT_EQ(edited(encodeInt16(action::goToPage), "gopact", needsText("pagnam", true)),
              encodeAction({action::goToPage, {"a"}}));
    EXPECT_EQ(edited(encodeInt16(action::goToUrl), "urlact", needsText("urlnam", false)),
              encodeAction({action::goToUrl, {"a"}}));
}

// The dialog's captions in the order of their numbers; the pressed button and the value stored.
void expectOption(std::int16_t code, const char *dialog, int value, const QString &pressed, int stored)
{
    const std::string result =
        edited(encodeInt16(code) + encodeInt16(static_cast<std::int16_t>(value)), dialog, [&pressed](QWidget &window) {
            auto *button = qobject_cast<QAbstractButton *>(window.focusWidget());
            EXPECT_TRUE(button && button->isChecked());
            EXPECT_EQ(button->text(), pressed);
            confirm(window);
        });
    EXPECT_EQ(result, encodeInt16(code) + encodeInt16(static_cast<std::int16_t>(stored))) << value;
}

TEST(ActionDialogs, OptionsForUnknownValues)
{
    expectOption(action::downloadCaution, "dwnact", 0, "Default", 0);
    expectOption(action::downloadCaution, "dwnact", 1, "Always", 1);
    expectOption(action::downloadCaution, "dwnact", -1, "Never", -1);
    expectOption(action::downloadCaution, "dwnact", 5, "Default", 0);
    expectOption(action::helpType, "hlpact", 0, "Contents", 0);
    expectOption(action::helpType, "hlpact", 1, "Search", 1);
    expectOption(action::helpType, "hlpact", 2, "Toolbar", 2);
    expectOption(action::helpType, "hlpact", -1, "Contents", 0);
}

TEST(ActionDialogs, ChosenOptions)
{
    const auto choose = [](const char *button) {
        return [button](QWidget &window) {
            press(window, button);
            confirm(window);
        };
    };
    const std::string caution = encodeInt16(action::downloadCaution) + encodeInt16(5);
    EXPECT_EQ(edited(caution, "dwnact", choose("radio2")), encodeAction({action::downloadCaution, {"-1"}}));
    EXPECT_EQ(edited(caution, "dwnact", choose("radio1")), encodeAction({action::downloadCaution, {"1"}}));
    const std::string help = encodeInt16(action::helpType);
    EXPECT_EQ(edited(help, "hlpact", choose("radio2")), encodeAction({action::helpType, {"2"}}));
    const auto chooseAndCancel = [](QWidget &window) {
        EXPECT_EQ(captionOf(window, "radio0"), "Caution user:");
        press(window, "radio1");
        cancel(window);
    };
    EXPECT_EQ(edited(caution, "dwnact", chooseAndCancel), caution);
}

// A page of its own for the time of a test.
class ActionDialogsOnAPage : public testing::Test {
protected:
    ~ActionDialogsOnAPage() override
    {
        page() = Page();
        editing() = EditingState();
    }

    static void addObject(Kind kind, const std::string &ctlname, const std::string &datacol = {})
    {
        ObjectRecord object;
        object.kind = static_cast<std::int16_t>(kind);
        object.ctlname = ctlname;
        object.datacol = datacol;
        page().objects.insert(page().objects.end() - 1, object);
        page().ctlindex.insert(page().ctlindex.end() - 1, 0);
    }

    TemporaryDrive drive;
    ScriptedAsking user;
};

TEST_F(ActionDialogsOnAPage, BrowseTakesThePageName)
{
    drive.add("PAGES/x");
    drive.add("MORE/x");
    editing().curdir = "C:\\PAGES\\";
    user.expectFileDialog(FileDialog::Kind::Open, {});
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\MORE\\NODOT");
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\MORE\\MAIN.NEW.ODS");
    edited(encodeInt16(action::goToPage), "gopact", [](QWidget &window) {
        press(window, "Browse");
        press(window, "Browse");
        EXPECT_EQ(textOf(window, "pagnam"), "TOP");
        EXPECT_EQ(editing().curdir, "C:\\PAGES\\");
        press(window, "Browse");
        EXPECT_EQ(textOf(window, "pagnam"), "MAIN");
        EXPECT_EQ(editing().curdir, "C:\\MORE\\");
        cancel(window);
    });
    ASSERT_EQ(user.fileDialogs.size(), 3u);
    EXPECT_EQ(user.fileDialogs[0].filter, "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*");
    EXPECT_EQ(user.fileDialogs[0].defaultExtension, "ODS");
    EXPECT_EQ(user.fileDialogs[0].initialDirectory, "C:\\PAGES\\");
}

TEST_F(ActionDialogsOnAPage, SelectFillsBothPages)
{
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\HITS.ODS");
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\VIEW.ODS");
    const std::string result = edited(encodeInt16(action::submitSelect), "selpact", [](QWidget &window) {
        press(window, "hbrowse");
        press(window, "qbrowse");
        press(window, "ok");
    });
    EXPECT_EQ(result, encodeAction({action::submitSelect, {"", "HITS", "VIEW"}}));
}

TEST_F(ActionDialogsOnAPage, GeneratesTheStatement)
{
    addObject(Kind::ComboBox, "city", "addresses.city");
    user.expectMessage("No Default Table.", "Error");
    const std::string result = edited(encodeInt16(action::submitSelect), "selpact", [](QWidget &window) {
        type(window, "selstmt", " select name from x order by name ");
        press(window, "generate");
        EXPECT_EQ(textOf(window, "selstmt"), "select name from x order by name");
        page().dbconnect = "\t\t\taddresses";
        press(window, "generate");
        press(window, "ok");
    });
    EXPECT_EQ(decodeAction(result).values[0],
              "Select name From addresses Where addresses.city Like '@city@%' order by name");
}

TEST_F(ActionDialogsOnAPage, FilesComeFromTheImageDatabases)
{
    addObject(Kind::ImageDb, "first");
    addObject(Kind::Button, "button");
    addObject(Kind::ImageDb, "second");
    const std::string upload = encodeAction({action::uploadFile, {"second"}});
    const auto offersBoth = [](QWidget &window) {
        const auto &fileobj = ModalDriver::find<QComboBox>(window, "fileobj");
        EXPECT_EQ(captionOf(window, "fileobj"), "File/ImageDb Object");
        ASSERT_EQ(fileobj.count(), 2);
        EXPECT_EQ(fileobj.itemText(0), "first");
        EXPECT_EQ(fileobj.itemText(1), "second");
        confirm(window);
    };
    EXPECT_EQ(edited(upload, "dwnlpact", offersBoth), upload);
    EXPECT_EQ(edited(encodeAction({action::downloadFile, {"gone"}}), "dwnlpact", confirm),
              encodeAction({action::downloadFile, {"first"}}));
    const std::string gone = encodeAction({action::downloadFile, {"gone"}});
    EXPECT_EQ(edited(gone, "dwnlpact", cancel), gone);
}

TEST_F(ActionDialogsOnAPage, ASelectedFileIsStored)
{
    EXPECT_EQ(edited(encodeAction({action::uploadFile, {"gone"}}), "dwnlpact", confirm),
              encodeAction({action::uploadFile, {""}}));
    drive.add("FILES/x");
    addObject(Kind::ImageDb, "first");
    user.expectFileDialog(FileDialog::Kind::Open, {});
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\FILES\\First.TXT");
    const std::string result = edited(encodeInt16(action::downloadFile), "dwnlpact", [](QWidget &window) {
        press(window, "select");
        EXPECT_EQ(ModalDriver::find<QComboBox>(window, "fileobj").currentText(), "first");
        press(window, "select");
        confirm(window);
    });
    EXPECT_EQ(result, encodeAction({action::downloadFile, {"First.TXT"}}));
    EXPECT_EQ(editing().curdir, "C:\\FILES\\");
}

} // namespace
} // namespace corvanta
