#include "actions/action.h"
#include "actions/ui/edit_action.h"
#include "document/encoding.h"
#include "document/record_fields.h"
#include "objects/ui/grdcol.h"
#include "objects/ui/manyobj.h"
#include "page/ui/pgprops.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/font_dialog.h"
#include "platform/qt/text.h"
#include "shell/ui/hpsinput.h"
#include "tests/windows/objects_page.h"

#include <QPlainTextEdit>

#include <limits>
#include <map>
#include <random>

namespace corvanta {
namespace {

// Fills records with extreme values, run over their descriptions as a reader is. What a dialog checks stays in range.
class Extremes {
public:
    explicit Extremes(unsigned seed) : random(seed) {}

    int number(int low, int high) { return std::uniform_int_distribution(low, high)(random); }
    std::string text()
    {
        std::string all;
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
        const std::string pieces[] = {" ", "\t", "a\tb\t", "\r\n", "\xA0", std::string(90, 'W'), "4 ", all};
        std::string made;
        for (int count = number(0, 3); count > 0; --count)
            made += pieces[number(0, 7)];
        return made;
    }
    std::string actionText(int depth = 2)
    {
        const std::int16_t codes[] = {0, 1, 4, 8, 9, 10, 12, 13, 99, 500, 507, 509, 510, 511, 512, 523};
        Action made{codes[number(0, 15)], {}};
        for (const ActionParameter &parameter : actionParameters(made.code))
            made.values.push_back(parameter.number ? std::to_string(number(0, 1)) : text() + "x");
        std::vector<ActionEntry> entries;
        for (int count = made.code == action::list ? number(0, 2) * depth : 0; count > 0; --count)
            entries.push_back({actionText(depth - 1), text()});
        return (made.code == action::list ? encodeActionList(entries) : encodeAction(made)) + (number(0, 1) ? "z" : "");
    }

    void int16(const std::string &name, std::int16_t &v)
    {
        static const std::map<std::string, std::pair<int, int>> checked{
            {"ptop", {0, 200}},    {"pleft", {0, 200}},   {"pheight", {1, 200}},    {"pwidth", {1, 200}},
            {"top", {0, 200}},     {"left", {0, 200}},    {"duration", {0, 32767}}, {"nplay", {0, 32767}},
            {"bkght", {200, 400}}, {"bkgwd", {200, 400}}, {"BevelWidth", {0, 10}},  {"speed", {1, 10}}};
        const int extremes[] = {-32768, -32767, -1, 0, 1, 2, 32767, number(-32768, 32767)};
        const auto bounds = checked.find(name);
        v = static_cast<std::int16_t>(bounds == checked.end() ? extremes[number(0, 7)]
                                                              : number(bounds->second.first, bounds->second.second));
    }
    void int32(const char *, std::int32_t &v)
    {
        const std::int32_t extremes[] = {std::numeric_limits<std::int32_t>::min(), -0x7FFFFFFB, -1, 0, 0x12345678};
        v = extremes[number(0, 4)];
    }
    void truth(const char *, bool &v) { v = number(0, 1) != 0; }
    void single(const char *, float &v)
    {
        const float extremes[] = {0, -8, 0.3F, 8.25F, 1e-30F, std::numeric_limits<float>::max()};
        v = extremes[number(0, 5)];
    }
    void text(const char *, std::string &v) { v = text(); }
    void action(const char *, std::string &v) { v = actionText(); }
    void optionalText(const char *, std::string &v) { v = text(); }
    template <class Body> void group(const char *, Body body) { body(*this); }
    template <class T, class Each> void counted(const char *, std::vector<T> &entries, std::size_t, Each each)
    {
        entries.resize(static_cast<std::size_t>(number(0, 5)));
        for (T &entry : entries)
            each(*this, entry);
    }
    void plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](Extremes &c, std::string &entry) { entry = c.text(); });
    }
    template <class T, class Each> void rest(const char *name, std::vector<T> &entries, Each each)
    {
        counted(name, entries, 0, each);
    }
    void gridColumns(std::vector<GridColumn> &columns)
    {
        counted("", columns, 0, [](Extremes &c, GridColumn &column) { gridColumnFields(c, column); });
        columns.emplace_back();
    }
    static bool strictTiming() { return true; }

private:
    std::mt19937 random;
};

class DialogBytes : public PropertyDialogs {
protected:
    DialogBytes()
    {
        pictureLoader() = [](const std::string &) {
            auto picture = std::make_shared<Picture>();
            picture->width = page().bkgwd;
            picture->height = page().bkght;
            return picture;
        };
    }
    ~DialogBytes() override { pictureLoader() = nullptr; }

    static void addExtreme(Extremes &c, Kind kind)
    {
        const std::int16_t index = addObject(kind);
        ObjectRecord &o = page().objects[static_cast<std::size_t>(index)];
        std::vector<Frame> frames;
        commonFields(c, o);
        kindTail(c, page(), kind, page().ctlindex[static_cast<std::size_t>(index)], frames);
        if (kind == Kind::Button || kind == Kind::Image)
            o.srcfile = c.number(0, 1) ? " banner.bmp " : "  ";
        if (kind == Kind::Animation) {
            o.srcfile = "lamp1.bmp\t ding.wav \t\t \tlamp2.bmp\t\t\t\t\t\tmore";
            storeFrames(page(), index, frames);
        }
        if (!kindRow(kind).hasBinding)
            o.ctlname = o.datacol = o.updatekey = o.condobjname = "";
    }
    static void makeExtreme(unsigned seed)
    {
        Extremes c(seed);
        newPage();
        headerFields(c, page());
        page().pgversion = currentVersion;
        page().dbconnect = " d\t\tp \xA0\t\r\n";
        page().bkgfile = c.number(0, 1) ? " paper.bmp" : " ";
        page().sndfn = " ding.wav ";
        for (std::int16_t code = firstKind; code <= lastKind; ++code)
            addExtreme(c, *kindOf(code));
    }

    // Confirms the page's dialog and those of all its objects, alone and together.
    static void confirmEverything(const std::string &what)
    {
        const std::string before = serialisePage(page());
        openPageProperties();
        press(*openDialog(), "ok");
        settle();
        EXPECT_EQ(serialisePage(page()), before) << what;
        std::vector<std::int16_t> all;
        for (std::int16_t i = 0; i < objectCount(page()); ++i) {
            all.push_back(i);
            withDialog(i, [](QDialog &d) { press(d, "ok"); });
            ASSERT_EQ(serialisePage(page()), before) << what << " object " << i;
        }
        ModalDriver driver;
        driver.expect("manyobj", [](QWidget &d) { press(d, "ok"); });
        OpenSharedProperties(all);
        EXPECT_EQ(serialisePage(page()), before) << what;
    }

    // The text of a field is too long at OK, told by its name, and stays; then it is as before.
    static void refusesLongTexts(QWidget &dialog, const std::string &title)
    {
        for (QWidget *field : dialog.findChildren<QWidget *>()) {
            auto *line = qobject_cast<QLineEdit *>(field);
            auto *area = qobject_cast<QPlainTextEdit *>(field);
            if ((!line && !area) || !field->isVisible() || !field->isEnabled())
                continue;
            const auto text = [=] { return line ? line->text() : area->toPlainText(); };
            const auto show = [=](const QString &shown) { line ? line->setText(shown) : area->setPlainText(shown); };
            const QString before = text(), longText(40000, '7');
            const QString own = field->accessibleName(),
                          label = own.isEmpty() ? field->parentWidget()->accessibleName() : own;
            show(longText);
            if (find<QAbstractButton>(dialog, "ok").isEnabled()) {
                ScriptedAsking asking;
                asking.expectMessage("\"" + toBytes(plainLabel(label)) +
                                         "\" is too long: it has 40000 characters, and a page file holds 16384.",
                                     title);
                press(dialog, "ok");
                EXPECT_EQ(dialog.focusWidget(), field->focusProxy() ? field->focusProxy() : field)
                    << label.toStdString();
            }
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(text(), longText);
            show(before);
        }
    }

    // Runs a function that opens a modal dialog.
    template <class Open> static auto driven(std::function<void(QWidget &)> use, Open open)
    {
        ModalDriver driver;
        driver.expect("", std::move(use));
        return open();
    }
    static void confirm(QWidget &dialog) { press(dialog, "ok"); }

    ScriptedAsking nothingAsked;
};

TEST_F(DialogBytes, OkUntouchedKeepsEveryByteOfEveryField)
{
    for (const char *name : {"menu.ods", "query.ods", "record.ods", "hitlist.ods", "view.ods"}) {
        openSample(name);
        if (page().dbconnect == "\t\t")
            page().dbconnect += '\t'; // OK completes it
        confirmEverything(name);
    }
    for (unsigned seed = 0; seed < 4; ++seed) {
        makeExtreme(seed);
        confirmEverything("seed " + std::to_string(seed));
    }
}

TEST_F(DialogBytes, OkUntouchedKeepsEveryByteOfActionsEntriesAndFonts)
{
    Extremes c(1);
    const auto hasDialog = [](std::int16_t code) { return code != 0 && code != 99 && code != action::nextRecord; };
    const std::string damaged = encodeInt16(action::list) + encodeInt16(32767);
    EXPECT_EQ(driven(confirm, [&] { return EditAction(damaged); }), damaged);
    for (int i = 0; i < 80; ++i) {
        const std::string actionText = c.actionText(), text = c.text() + "x";
        if (hasDialog(ActionCode(actionText))) {
            EXPECT_EQ(driven(confirm, [&] { return EditAction(actionText); }), actionText) << i;
        }
        EXPECT_EQ(driven(confirm, [&] { return EditGridColumn(text); }), text);
        EXPECT_EQ(driven(confirm, [&] { return showInput("Prompt:\tCaption\t" + text); }), text);
        FontBlock font;
        fontFields(c, font);
        EXPECT_EQ(driven(confirm, [&] { return showFontDialog(font, nullptr); }), font) << font.FontSize;
    }
}

TEST_F(DialogBytes, ATabInAColumnHeaderMovesNoDataColumn)
{
    const auto paste = [](const char *field) {
        return [field](QWidget &d) {
            find<QLineEdit>(d, field).setText("Unit\tprice");
            press(d, "ok");
        };
    };
    EXPECT_EQ(driven(paste("header"), [] { return EditGridColumn("a\tb\tc"); }), "Unit price\tb\tc");
    EXPECT_EQ(driven(paste("colname"), [] { return EditGridColumn("a"); }), "a\tUnit price");
    EXPECT_EQ(driven(confirm, [] { return EditGridColumn(""); }), "\t") << "a new column";
}

TEST_F(DialogBytes, ATextThatNoFileHoldsIsRefusedAndKept)
{
    const auto refuse = [](QDialog &d) {
        refusesLongTexts(d, "Properties Error");
        press(d, "cancbut");
    };
    page().PageType = static_cast<std::int16_t>(PageKind::Record);
    openPageProperties();
    refuse(*openDialog());
    std::vector<std::int16_t> all;
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        all.push_back(addObject(*kindOf(code)));
        if (*kindOf(code) == Kind::Animation)
            storeFrames(page(), all.back(), {Frame{}});
        withDialog(all.back(), refuse);
    }
    driven([&](QWidget &d) { refuse(static_cast<QDialog &>(d)); }, [] { return OpenSharedProperties({0, 0}), 0; });

    const auto refuseByCaption = [](QWidget &d) {
        refusesLongTexts(d, toBytes(d.windowTitle()));
        d.close();
    };
    for (const std::int16_t code : {1, 4, 10, 12, 13, 507, 509, 510, 523})
        driven(refuseByCaption, [&] { return EditAction(encodeInt16(code)); });
    driven(refuseByCaption, [] { return EditGridColumn("a\tb"); });
    driven(refuseByCaption, [] { return showInput("Prompt:\tCaption\tx"); });
    driven(refuseByCaption, [] { return showFontDialog({}, nullptr); });

    const auto sum = [](QWidget &d) {
        for (const char *field : {"nclhost", "nclapp"})
            find<QLineEdit>(d, field).setText(QString(9000, '7'));
        ScriptedAsking asking;
        asking.expectMessage("\"Action\" is too long: it has 18008 characters, and a page file holds 16384.",
                             "Action Properties");
        press(d, "ok");
        EXPECT_TRUE(d.isVisible());
        d.close();
    };
    driven(sum, [] { return EditAction(encodeInt16(action::serverApp)); });
}

} // namespace
} // namespace corvanta
