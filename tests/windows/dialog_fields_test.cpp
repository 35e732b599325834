#include "objects/properties.h"
#include "page/ui/pgprops.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "tests/windows/objects_page.h"

#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

namespace corvanta {
namespace {

class DialogFields : public PropertyDialogs {
protected:
    // Opens the dialog of an object of a kind, or the page's without one; use has to close it.
    static void withDialogOf(std::optional<Kind> kind, const std::function<void(QDialog &)> &use)
    {
        if (kind)
            return withDialog(addObject(*kind), use);
        openPageProperties();
        use(*openDialog());
        settle();
    }
    static void expectReturned(const QDialog &d, const char *field)
    {
        EXPECT_EQ(d.focusWidget(), &find<QWidget>(d, field)) << field;
        EXPECT_EQ(find<QLineEdit>(d, field).selectedText(), find<QLineEdit>(d, field).text()) << field;
    }
};

std::vector<std::optional<Kind>> colouredDialogs()
{
    std::vector<std::optional<Kind>> dialogs{std::nullopt};
    for (std::int16_t code = firstKind; code <= lastKind; ++code)
        if (hasColour(*kindOf(code)))
            dialogs.push_back(kindOf(code));
    return dialogs;
}

TEST_F(DialogFields, AColourIsShownAsTypedAndRefusedWhenItIsNone)
{
    for (const auto kind : colouredDialogs())
        withDialogOf(kind, [kind](QDialog &d) {
            const char *name = kind ? "col" : "bkgcol";
            ScriptedAsking asking;
            const std::string what =
                kind ? lowerCase(kindRow(*kind).displayName) + " \"BackColor\"." : "background color.";
            asking.expectMessage("Invalid " + what + "  A color is one to eight hexadecimal digits.",
                                 "Properties Error");
            const auto seen = [&, swatch = std::string(name) + "swatch"] {
                const QImage image = find<QWidget>(d, swatch.c_str()).grab().toImage();
                return image.pixelColor(image.width() / 3, image.height() / 2);
            };
            type(d, name, "#FF8001");
            EXPECT_EQ(seen(), QColor(0x01, 0x80, 0xFF));
            type(d, name, "blue");
            EXPECT_EQ(seen(), d.palette().color(QPalette::Window));
            press(d, "ok");
            expectReturned(d, name);
            press(d, "cancbut");
        });
}

TEST_F(DialogFields, BrowsingGivesPlainNamesAndMovesNoDirectory)
{
    const struct {
        std::optional<Kind> kind;
        const char *field, *message;
    } rows[] = {
        {Kind::Button, "imgfn", "image file name"},
        {Kind::Image, "imgfn", "image file name"},
        {Kind::TextBox, "txtfn", "text file name"},
        {Kind::Animation, "imgfn", "image file name for frame 1"},
        {Kind::Animation, "sndfn", "sound file name for frame 1"},
        {std::nullopt, "imgfn", "background file name"},
        {std::nullopt, "sndfn", "sound file name"},
    };
    drive.add("other/banner.bmp");
    for (const auto &row : rows)
        withDialogOf(row.kind, [&row](QDialog &d) {
            const std::string button = std::string(row.field) + "browse";
            if (row.kind == Kind::Animation) {
                EXPECT_FALSE(find<QWidget>(d, button.c_str()).isEnabled());
                press(d, "lbbut0");
            }
            ScriptedAsking asking;
            asking.expectFileDialog(FileDialog::Kind::Open, "C:\\banner.bmp");
            press(d, button.c_str());
            asking.expectFileDialog(FileDialog::Kind::Open, "C:\\other\\banner.bmp");
            asking.expectMessage(std::string("Invalid ") + row.message +
                                     ".  To change the directory, use \"File... Directory\".",
                                 "Properties Error");
            press(d, button.c_str());
            EXPECT_EQ(find<QLineEdit>(d, row.field).text(), "banner.bmp");
            expectReturned(d, row.field);
            EXPECT_EQ(editing().curdir + currentDirectory(), "C:\\C:\\");
            press(d, "cancbut");
        });
}

TEST_F(DialogFields, WhatTheCodePageLacksIsRefusedHoweverItComes)
{
    page().PageType = static_cast<std::int16_t>(PageKind::Record);
    withDialogOf(std::nullopt, [](QDialog &d) {
        auto &notice = find<QLabel>(d, "notice");
        for (const char *name : {"pgcaption", "bkght", "SelectStmt"}) {
            auto &field = find<QWidget>(d, name);
            const auto text = [&field] {
                const auto *line = qobject_cast<QLineEdit *>(&field);
                return line ? line->text() : static_cast<QPlainTextEdit &>(field).toPlainText();
            };
            const QString before = text();
            field.setFocus();
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(QChar(0x0416)), Qt::NoModifier);
            EXPECT_EQ(notice.text(), QString(QChar(0x0416)) + " is not in code page 1252") << name;
            QGuiApplication::clipboard()->setText(QString("ab") + QChar(0x200B) + 'c');
            QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
            EXPECT_EQ(notice.text(), "U+200B is not in code page 1252") << name;
            EXPECT_EQ(text(), before) << name;
            QTest::keyClicks(&field, "9");
            EXPECT_EQ(notice.text(), "") << name;
            EXPECT_NE(text(), before) << name;
        }
        press(d, "cancbut");
    });
}

TEST_F(DialogFields, AMessageAboutAFrameShowsItsField)
{
    withDialogOf(Kind::Animation, [](QDialog &d) {
        press(d, "lbbut0");
        type(d, "duration", "-1");
        press(d, "lbbut0");
        ScriptedAsking asking;
        asking.expectMessage("Invalid \"Duration\" for frame 1.", "Properties Error");
        press(d, "ok");
        expectReturned(d, "duration");
        EXPECT_EQ(find<QLineEdit>(d, "duration").text(), "-1");
        press(d, "cancbut");
    });
}

} // namespace
} // namespace corvanta
