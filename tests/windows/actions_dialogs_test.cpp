#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/ui/edit_action.h"
#include "document/encoding.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"
#include "tests/support/scripted_asking.h"

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
    return toBytes(find<QLineEdit>(window, name).text());
}

// Types over what the field holds.
void type(QWidget &window, const char *name, const QString &text)
{
    auto &field = find<QWidget>(window, name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

// A field's label, or the caption of the frame that it has for itself.
std::string captionOf(const QWidget &window, const char *name)
{
    const auto &field = find<QWidget>(window, name);
    if (const QLabel *label = labelOf(field))
        return label->text().toStdString();
    return qobject_cast<QGroupBox *>(field.parentWidget())->title().toStdString();
}

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
    const char *dialog;
    std::vector<std::pair<const char *, const char *>> fields; // with their labels
};

// The values of as many fields, each beginning so.
std::string actionOf(const TextCase &row, const std::string &beginning)
{
    Action action{row.code, {}};
    for (std::size_t i = 0; i < row.fields.size(); ++i)
        action.values.push_back(beginning + std::to_string(i));
    return encodeAction(action);
}

class TextActions : public testing::TestWithParam<TextCase> {
protected:
    const std::string input = actionOf(GetParam(), "value \xE9 ") + "behind";
    const bool message = GetParam().code == action::messageBox;
};

TEST_P(TextActions, StoreTheirTextsTrimmed)
{
    const std::string result = edited(input, GetParam().dialog, [this](QWidget &window) {
        EXPECT_EQ(window.windowTitle(), message ? "Massage Box properties" : "Action Properties");
        int i = 0;
        for (const auto &[name, label] : GetParam().fields) {
            EXPECT_EQ(captionOf(window, name), label);
            EXPECT_EQ(textOf(window, name), "value \xE9 " + std::to_string(i));
            type(window, name, QString("  new %1 ").arg(i++));
        }
        confirm(window);
    });
    EXPECT_EQ(result, actionOf(GetParam(), "new "));
}

TEST_P(TextActions, StartInTheFirstFieldAndCancelHandsBackTheInput)
{
    const auto change = [](QWidget &window) {
        const char *first = GetParam().fields.front().first;
        EXPECT_EQ(window.focusWidget()->objectName(), first);
        QTest::keyClicks(window.focusWidget(), "x");
        EXPECT_EQ(textOf(window, first), "x") << "its text was selected";
        for (const auto &[name, label] : GetParam().fields)
            type(window, name, "changed");
    };
    const auto escape = [change](QWidget &window) {
        change(window);
        cancel(window);
    };
    const auto button = [this, change](QWidget &window) {
        change(window);
        press(window, message ? "cansel" : "cancel");
    };
    EXPECT_EQ(edited(input, GetParam().dialog, escape), input);
    EXPECT_EQ(edited(input, GetParam().dialog, button), input);
}

const TextCase textCases[] = {
    {action::goToPage, "gopact", {{"pagnam", "Go to page:"}}},
    {action::pageUser, "pguact", {{"userid", "Page User:"}}},
    {action::goToUrl, "urlact", {{"urlnam", "Go to URL:"}}},
    {action::serverApp,
     "nclact",
     {{"nclhost", "Server domain name:"}, {"nclapp", "App ID:"}, {"nclcmd", "Command string:"}}},
    {action::executeApp, "appact", {{"appapp", "App ID:"}, {"appcmd", "Command string:"}}},
    {action::submitSelect,
     "selpact",
     {{"selstmt", "Select Statement"}, {"hlistpage", "Hit List Page"}, {"qryviewpage", "Query View Page"}}},
    {action::executeSql, "sqlpact", {{"sqlstmt", "SQL Statement"}}},
    {action::messageBox, "MsgPact", {{"title", "Title :"}, {"Text", "Text :"}}},
};

INSTANTIATE_TEST_SUITE_P(Kinds, TextActions, testing::ValuesIn(textCases),
                         [](const auto &row) { return row.param.dialog; });

TEST(ActionDialogs, KindsWithoutADialogPassThrough)
{
    for (const std::int16_t code : {0, 2, 500, 508, 520, 522, 600, -1})
        EXPECT_EQ(EditAction(encodeInt16(code) + "rest"), encodeInt16(code) + "rest");
    EXPECT_EQ(EditAction(""), "");
}

TEST(ActionDialogs, ShiftEnterStartsALine)
{
    const std::string result = edited(encodeInt16(action::executeSql), "sqlpact", [](QWidget &window) {
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
            auto &ok = find<QPushButton>(window, "ok");
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

struct OptionCase {
    std::int16_t code;
    const char *dialog;
    std::int16_t value;
    const char *pressed; // the button that shows the value
    const char *chosen;  // a button to press; null leaves it
    std::int16_t stored;
};

TEST(ActionDialogs, OptionsShowTheirValueAndUnknownOnesAreTheFirst)
{
    const OptionCase cases[] = {
        {action::downloadCaution, "dwnact", 0, "Default", nullptr, 0},
        {action::downloadCaution, "dwnact", 1, "Always", nullptr, 1},
        {action::downloadCaution, "dwnact", -1, "Never", nullptr, -1},
        {action::downloadCaution, "dwnact", 5, "Default", nullptr, 0},
        {action::downloadCaution, "dwnact", 5, "Default", "radio2", -1},
        {action::helpType, "hlpact", 0, "Contents", nullptr, 0},
        {action::helpType, "hlpact", 1, "Search", nullptr, 1},
        {action::helpType, "hlpact", 2, "Toolbar", nullptr, 2},
        {action::helpType, "hlpact", -1, "Contents", nullptr, 0},
        {action::helpType, "hlpact", 0, "Contents", "radio2", 2},
    };
    for (const OptionCase &c : cases) {
        const std::string result = edited(encodeInt16(c.code) + encodeInt16(c.value), c.dialog, [&c](QWidget &window) {
            auto *button = qobject_cast<QAbstractButton *>(window.focusWidget());
            EXPECT_TRUE(button && button->isChecked());
            EXPECT_EQ(button->text(), c.pressed);
            if (c.chosen)
                press(window, c.chosen);
            confirm(window);
        });
        EXPECT_EQ(result, encodeInt16(c.code) + encodeInt16(c.stored)) << c.value;
    }
    const std::string caution = encodeInt16(action::downloadCaution) + encodeInt16(5);
    EXPECT_EQ(edited(caution, "dwnact", cancel), caution);
}

class ActionDialogsOnAPage : public FreshPage {
protected:
    TemporaryDrive drive;
    ScriptedAsking user;
};

TEST_F(ActionDialogsOnAPage, BrowseTakesThePageName)
{
    drive.add("MORE/x");
    user.expectFileDialog(FileDialog::Kind::Open, {});
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\MORE\\NODOT");
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\MORE\\MAIN.NEW.ODS");
    edited(encodeInt16(action::goToPage), "gopact", [](QWidget &window) {
        press(window, "Browse");
        press(window, "Browse");
        EXPECT_EQ(textOf(window, "pagnam"), "TOP");
        EXPECT_EQ(editing().curdir, "C:\\");
        press(window, "Browse");
        EXPECT_EQ(textOf(window, "pagnam"), "MAIN");
        EXPECT_EQ(editing().curdir, "C:\\MORE\\");
        cancel(window);
    });
    ASSERT_EQ(user.fileDialogs.size(), 3u);
    EXPECT_EQ(user.fileDialogs[0].filter, "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*");
    EXPECT_EQ(user.fileDialogs[0].defaultExtension, "ODS");
    EXPECT_EQ(user.fileDialogs[0].initialDirectory, "C:\\");
    EXPECT_FALSE(user.fileDialogs[0].entersDirectory); // Save writes where it did
}

TEST_F(ActionDialogsOnAPage, GeneratesTheStatement)
{
    addObject(Kind::ComboBox);
    object(0).ctlname = "city";
    object(0).datacol = "addresses.city";
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

TEST_F(ActionDialogsOnAPage, FilesAreStoredOnesOrComeFromTheImageDatabases)
{
    const std::string readme = encodeAction({action::downloadFile, {"readme.txt"}});
    const auto showsReadme = [](QWidget &window) {
        EXPECT_EQ(find<QComboBox>(window, "fileobj").currentText(), "readme.txt");
        confirm(window);
    };
    EXPECT_EQ(edited(readme, "dwnlpact", showsReadme), readme);
    const std::string none = encodeAction({action::downloadFile, {""}});
    EXPECT_EQ(edited(none, "dwnlpact", confirm), none);
    for (const Kind kind : {Kind::ImageDb, Kind::Button, Kind::ImageDb})
        addObject(kind);
    object(0).ctlname = "first";
    object(2).ctlname = "second";
    const std::string upload = encodeAction({action::uploadFile, {"second"}});
    const auto offersBoth = [](QWidget &window) {
        const auto &fileobj = find<QComboBox>(window, "fileobj");
        EXPECT_EQ(captionOf(window, "fileobj"), "File/ImageDb Object");
        ASSERT_EQ(fileobj.count(), 2);
        EXPECT_EQ(fileobj.itemText(0), "first");
        EXPECT_EQ(fileobj.itemText(1), "second");
        confirm(window);
    };
    EXPECT_EQ(edited(upload, "dwnlpact", offersBoth), upload);
    EXPECT_EQ(edited(readme, "dwnlpact", showsReadme), readme);
    EXPECT_EQ(edited(none, "dwnlpact", confirm), encodeAction({action::downloadFile, {"first"}}));
    EXPECT_EQ(edited(none, "dwnlpact", cancel), none);

    drive.add("FILES/x");
    user.expectFileDialog(FileDialog::Kind::Open, {});
    user.expectFileDialog(FileDialog::Kind::Open, "C:\\FILES\\First.TXT");
    const std::string result = edited(encodeInt16(action::downloadFile), "dwnlpact", [](QWidget &window) {
        press(window, "select");
        EXPECT_EQ(find<QComboBox>(window, "fileobj").currentText(), "first");
        press(window, "select");
        confirm(window);
    });
    EXPECT_EQ(result, encodeAction({action::downloadFile, {"First.TXT"}}));
    EXPECT_EQ(editing().curdir, "C:\\FILES\\");
}

} // namespace
} // namespace corvanta
