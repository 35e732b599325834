#include "platform/help.h"
#include "platform/qt/help_viewer.h"
#include "shell/menu_table.h"
#include "shell/ui/help_key.h"
#include "tests/support/modal_driver.h"
#include "tests/windows/help_index.h"

#include <QDialog>
#include <QGroupBox>
#include <QHelpEngineCore>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QWindow>

#include <filesystem>
#include <fstream>
#include <map>

namespace corvanta {

namespace {

QWidget *viewer()
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == "helpviewer")
            return window;
    return nullptr;
}

template <class Control> Control &part(const char *name)
{
    if (!viewer())
        throw std::runtime_error("no help window");
    return find<Control>(*viewer(), name);
}

class HelpWindow : public testing::Test {
protected:
    HelpWindow() { installHelp(); }
    ~HelpWindow() override
    {
        showHelp(HelpCommand::Quit);
        helpCommand() = {};
    }

    static std::string shownPage() { return part<QTextBrowser>("helppage").source().fileName().toStdString(); }
};

} // namespace

TEST_F(HelpWindow, EveryHelpIdOfTheMenusShowsItsPage)
{
    std::map<long, std::string> pages;
    for (const MenuRow &row : menuTable())
        if (row.helpId != 0) {
            showHelp(HelpCommand::Context, row.helpId);
            pages[row.helpId] = shownPage();
        }
    const std::map<long, std::string> expected{
        {1, "index.html"},           {4, "file-menu.html"},   {5, "directory.html"},   {6, "page-menu.html"},
        {7, "page-properties.html"}, {8, "object-menu.html"}, {9, "object-list.html"}, {10, "object-properties.html"},
        {103000, "opening.html"},    {105000, "saving.html"},
    };
    EXPECT_EQ(pages, expected);
    showHelp(HelpCommand::Context, 4711);
    EXPECT_EQ(shownPage(), "index.html");
    EXPECT_TRUE(part<QTextBrowser>("helppage").toPlainText().contains("Begin here"));
}

TEST_F(HelpWindow, CanBeUsedOverAModalDialogAndOutlivesIt)
{
    showHelp(HelpCommand::Context, 7);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    showHelp(HelpCommand::Context, 9);
    auto &home = part<QAction>("helphome");
    QWidget *button = static_cast<QToolBar &>(*home.associatedObjects().front()).widgetForAction(&home);
    QTest::mouseClick(viewer()->windowHandle(), Qt::LeftButton, {}, button->mapTo(viewer(), button->rect().center()));
    EXPECT_EQ(shownPage(), "index.html");
    dialog.close();
    EXPECT_TRUE(viewer()->isVisible());
}

TEST_F(HelpWindow, SearchFindsWordsOfEveryPage)
{
    const auto hitsFor = [](const QString &words) {
        part<QLineEdit>("helpsearch").setText(words);
        QStringList titles;
        auto &list = part<QListWidget>("helphits");
        for (int i = 0; i < list.count(); ++i)
            titles << list.item(i)->text();
        return titles;
    };
    showHelp(HelpCommand::Search);
    EXPECT_EQ(hitsFor("aligning").front(), "Moving, resizing and aligning");
    EXPECT_TRUE(hitsFor("negative number").contains("Messages and what to do"));
    EXPECT_TRUE(hitsFor("").isEmpty());
    EXPECT_TRUE(hitsFor("crocodile").isEmpty());
    EXPECT_EQ(part<QLabel>("helphitslabel").text(), "No page holds these words.");
    auto &list = part<QListWidget>("helphits");
    part<QLineEdit>("helpsearch").setText("bevel");
    emit list.itemActivated(list.item(0));
    EXPECT_EQ(shownPage(), "buttons.html");
}

TEST_F(HelpWindow, TheHelpKeyShowsThePageAboutTheFocus)
{
    QDialog dialog;
    dialog.setObjectName("lblobj");
    auto *group = new QGroupBox(&dialog);
    group->setObjectName("standard");
    QLineEdit inGroup(group), inDialog(&dialog);
    QWidget elsewhere;
    EXPECT_EQ(helpPageOf(&inGroup), "object-properties.html#standard");
    EXPECT_EQ(helpPageOf(&inDialog), "buttons.html#label");
    EXPECT_EQ(helpPageOf(&elsewhere), "index.html");
    installHelpKey();
    dialog.show();
    QTest::keyClick(&inGroup, Qt::Key_F1);
    EXPECT_EQ(shownPage(), "object-properties.html");
}

TEST(HelpPages, LinksAndPicturesResolve)
{
    QHelpEngineCore engine(helpCollection());
    engine.setupData();
    const auto textOf = [&engine](const QUrl &url) {
        return QString::fromUtf8(engine.fileData(url.adjusted(QUrl::RemoveFragment)));
    };
    const QRegularExpression reference("(?:href|src)=\"([^\"]*)\"");
    const QList<QUrl> pages = engine.files("corvanta", QString(), "html");
    EXPECT_GT(pages.size(), 20);
    for (const QUrl &page : pages)
        for (const auto &match : reference.globalMatch(textOf(page))) {
            const QUrl url = page.resolved(QUrl(match.captured(1)));
            const QString text = textOf(url), place = "name=\"" + url.fragment() + '"';
            EXPECT_TRUE(!text.isEmpty() && (!url.hasFragment() || text.contains(place)))
                << page.fileName().toStdString() << ": " << match.captured(1).toStdString();
        }
    for (const std::string &page : helpPages()) {
        const QUrl url = pages.front().resolved(QUrl(QString::fromStdString(page)));
        EXPECT_TRUE(textOf(url).contains(url.hasFragment() ? "name=\"" + url.fragment() + '"' : "<h1>")) << page;
    }
}

namespace {

std::string textOfFile(const std::filesystem::path &path)
{
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Letters and digits of a text, the rest one blank each time: page and source break and mark texts in their own ways.
QString plain(const QString &text)
{
    return text.toLower().replace(QRegularExpression("(?:\\\\[rn]|[^\\w])+"), " ").trimmed();
}

} // namespace

TEST(HelpPages, TellEveryMessageOfTheProgram)
{
    const QString page = plain(QString::fromStdString(textOfFile(CORVANTA_SOURCE "/help/messages.html")));
    const QRegularExpression asked(
        R"~((?:showMessage|showExclamation|askChoice|askYesNo|refuse|tellReadError|tell|notice)\(\s*\{*(?:\.text = )?)~"
        R"~((?:std::string\()?"((?:[^"\\]|\\.)*)")~");
    int messages = 0;
    for (const char *room : {"actions", "canvas", "database", "document", "objects", "page", "platform", "shell"})
        for (const auto &file : std::filesystem::recursive_directory_iterator(std::string(CORVANTA_SOURCE "/") + room))
            for (const auto &match : asked.globalMatch(QString::fromStdString(
                     file.path().extension() == ".cpp" ? textOfFile(file.path()) : std::string()))) {
                ++messages;
                EXPECT_TRUE(page.contains(plain(match.captured(1))))
                    << file.path().filename() << ": " << match.captured(1).toStdString();
            }
    EXPECT_GT(messages, 30);
}

TEST(HelpPages, TellEveryOptionOfTheTools)
{
    const std::string pages =
        textOfFile(CORVANTA_SOURCE "/help/tools.html") + textOfFile(CORVANTA_SOURCE "/help/opening.html");
    const QRegularExpression option("add_(?:option|flag)[^;\"]*\"(--[a-z-]+)");
    int options = 0;
    for (const char *folder : {"/tools", "/shell/ui"})
        for (const auto &file : std::filesystem::directory_iterator(std::string(CORVANTA_SOURCE) + folder))
            for (const auto &match : option.globalMatch(QString::fromStdString(textOfFile(file.path())))) {
                const std::string name = match.captured(1).toStdString();
                EXPECT_NE(pages.find("<code>" + name), std::string::npos) << file.path().filename() << ": " << name;
                EXPECT_TRUE(inHelpIndex(match.captured(1))) << name;
                ++options;
            }
    EXPECT_GT(options, 12);
}

TEST(HelpPages, IndexHoldsEveryMenuCaptionAndSetting)
{
    QStringList names{"CORVANTA.INI"};
    for (const auto table : {menuTable(), contextTable()})
        for (const MenuRow &row : table)
            if (!isSeparator(row) && row.command != Command::Add)
                names << row.caption;
    const QString settings = QString::fromStdString(textOfFile(CORVANTA_SOURCE "/document/settings.cpp"));
    for (const auto &match : QRegularExpression("read(?:Number|Truth)\\([^\"]*\"(\\w+)\"").globalMatch(settings))
        names << match.captured(1);
    for (const QString &name : names)
        EXPECT_TRUE(inHelpIndex(name)) << name.toStdString();
}

} // namespace corvanta
