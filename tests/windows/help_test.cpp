#include "platform/help.h"
#include "platform/qt/help_viewer.h"
#include "shell/menu_table.h"
#include "tests/support/scripted_asking.h"

#include <QApplication>
#include <QDialog>
#include <QHelpContentModel>
#include <QHelpContentWidget>
#include <QHelpEngineCore>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>

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
    auto *control = viewer() ? viewer()->findChild<Control *>(name) : nullptr;
    if (!control)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
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

    static void press(const char *action)
    {
        auto &bar = *part<QAction>(action).associatedObjects().front();
        QTest::mouseClick(static_cast<QToolBar &>(bar).widgetForAction(&part<QAction>(action)), Qt::LeftButton);
    }

    static QHelpIndexWidget &keywords()
    {
        auto &list = part<QHelpIndexWidget>("helpindex");
        EXPECT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount() > 0; }));
        return list;
    }
};

class HelpPages : public testing::Test {
protected:
    HelpPages() : engine(helpCollection()) { engine.setupData(); }

    QString textOf(const QUrl &url) const
    {
        return QString::fromUtf8(engine.fileData(url.adjusted(QUrl::RemoveFragment)));
    }

    bool resolves(const QUrl &url) const
    {
        const QString text = textOf(url);
        return !text.isEmpty() && (!url.hasFragment() || text.contains("name=\"" + url.fragment() + '"'));
    }

    QHelpEngineCore engine;
};

QSet<QUrl> urlsOf(const QHelpContentItem &item)
{
    QSet<QUrl> urls{item.url()};
    for (int i = 0; i < item.childCount(); ++i)
        urls |= urlsOf(*item.child(i));
    return urls;
}

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

TEST_F(HelpWindow, GoesBackForwardAndHome)
{
    showHelp(HelpCommand::Contents);
    EXPECT_FALSE(part<QAction>("helpback").isEnabled());
    showHelp(HelpCommand::Context, 7);
    press("helpback");
    EXPECT_EQ(shownPage(), "index.html");
    press("helpforward");
    EXPECT_EQ(shownPage(), "page-properties.html");
    press("helphome");
    EXPECT_EQ(shownPage(), "index.html");
    QTest::keyClick(viewer(), Qt::Key_Escape);
    EXPECT_FALSE(viewer()->isVisible());
}

TEST_F(HelpWindow, ContentsTreeShowsAndFollowsPages)
{
    showHelp(HelpCommand::Context, 9);
    auto &tree = part<QHelpContentWidget>("helpcontents");
    ASSERT_TRUE(QTest::qWaitFor([&] { return tree.currentIndex().isValid(); }));
    EXPECT_EQ(tree.currentIndex().data().toString().toStdString(), "The object list");
    showHelp(HelpCommand::Context, 8);
    const QModelIndex menu = tree.currentIndex();
    EXPECT_EQ(menu.data().toString().toStdString(), "The Object menu");
    press("helphome");
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(menu).center());
    EXPECT_EQ(shownPage(), "object-menu.html");
}

TEST_F(HelpWindow, SearchFindsKeywords)
{
    showHelp(HelpCommand::Search);
    auto &field = part<QLineEdit>("helpsearch");
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer()));
    EXPECT_EQ(QApplication::focusWidget(), &field);
    const int all = keywords().model()->rowCount();
    QTest::keyClicks(&field, "aLiGn");
    EXPECT_LT(keywords().model()->rowCount(), all);
    EXPECT_EQ(keywords().currentIndex().data().toString().toStdString(), "aligning objects");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(shownPage(), "arranging.html");
    showHelp(HelpCommand::Contents);
    EXPECT_EQ(part<QTabWidget>("helptabs").currentIndex(), 0);
}

TEST_F(HelpWindow, CanBeUsedOverAModalDialogAndOutlivesIt)
{
    showHelp(HelpCommand::Context, 7);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    showHelp(HelpCommand::Context, 9);
    const auto home = [] {
        auto &action = part<QAction>("helphome");
        auto &bar = static_cast<QToolBar &>(*action.associatedObjects().front());
        QWidget *button = bar.widgetForAction(&action);
        QTest::mouseClick(viewer()->windowHandle(), Qt::LeftButton, {},
                          button->mapTo(viewer(), button->rect().center()));
    };
    home();
    EXPECT_EQ(shownPage(), "index.html");
    dialog.close();
    EXPECT_TRUE(viewer()->isVisible());
}

TEST_F(HelpWindow, NothingOpensBeforeTheFirstCommandAndQuitCloses)
{
    EXPECT_EQ(viewer(), nullptr);
    showHelp(HelpCommand::Quit);
    EXPECT_EQ(viewer(), nullptr);
    showHelp(HelpCommand::Contents);
    EXPECT_TRUE(viewer()->isVisible());
    showHelp(HelpCommand::Quit);
    EXPECT_EQ(viewer(), nullptr);
}

TEST_F(HelpWindow, MissingCollectionIsTold)
{
    ScriptedAsking user;
    installHelp("/no/such/corvanta.qhc");
    user.expectMessage("The help file /no/such/corvanta.qhc cannot be opened.", "Help");
    showHelp(HelpCommand::Contents);
    EXPECT_EQ(viewer(), nullptr);
}

TEST_F(HelpPages, LinksAndPicturesResolve)
{
    const QRegularExpression reference("(?:href|src)=\"([^\"]*)\"");
    const QList<QUrl> pages = engine.files("corvanta", QString(), "html");
    EXPECT_GT(pages.size(), 20);
    for (const QUrl &page : pages)
        for (const auto &match : reference.globalMatch(textOf(page)))
            EXPECT_TRUE(resolves(page.resolved(QUrl(match.captured(1)))))
                << page.fileName().toStdString() << ": " << match.captured(1).toStdString();
}

// The generator takes references to pages that do not exist.
TEST_F(HelpWindow, ContentsAndKeywordsLeadToPages)
{
    showHelp(HelpCommand::Search);
    QHelpEngineCore engine(helpCollection());
    for (int row = 0; row < keywords().model()->rowCount(); ++row) {
        const QString keyword = keywords().model()->index(row, 0).data().toString();
        const auto pages = engine.documentsForKeyword(keyword);
        ASSERT_EQ(pages.size(), 1) << keyword.toStdString();
        EXPECT_FALSE(engine.fileData(pages.front().url).isEmpty()) << keyword.toStdString();
    }
    auto &tree = part<QHelpContentWidget>("helpcontents");
    auto &model = static_cast<QHelpContentModel &>(*tree.model());
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.rowCount() > 0; }));
    QSet<QUrl> inTree;
    for (int row = 0; row < model.rowCount(); ++row)
        inTree |= urlsOf(*model.contentItemAt(model.index(row, 0)));
    const QList<QUrl> pages = engine.files("corvanta", QString(), "html");
    EXPECT_EQ(inTree, QSet<QUrl>(pages.begin(), pages.end()));
}

} // namespace corvanta
