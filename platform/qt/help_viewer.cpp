#include "platform/qt/help_viewer.h"

#include "platform/asking.h"
#include "platform/help.h"
#include "platform/qt/help_search.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHelpContentModel>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

namespace corvanta {

namespace {

constexpr QSize windowSize(980, 660); // pixels
constexpr int listWidth = 310, pageMargin = 16;

const QUrl contentsPage(QStringLiteral("qthelp://corvanta/doc/index.html"));

// Pages, style sheets and pictures come from the collection.
class HelpBrowser : public QTextBrowser {
public:
    HelpBrowser(const QHelpEngineCore &source, QWidget *parent) : QTextBrowser(parent), engine(source)
    {
        setObjectName(QStringLiteral("helppage"));
        setAccessibleName(QStringLiteral("Help page"));
        document()->setDocumentMargin(pageMargin);
    }

    QVariant loadResource(int, const QUrl &name) override { return engine.fileData(name); }

private:
    const QHelpEngineCore &engine;
};

// Down goes from the search field into the list, Enter opens the list's current keyword.
class SearchField : public QLineEdit {
public:
    explicit SearchField(QHelpIndexWidget &keywords) : list(keywords)
    {
        setObjectName(QStringLiteral("helpsearch"));
        setAccessibleName(QStringLiteral("Search for"));
        setPlaceholderText(QStringLiteral("Search for"));
        setClearButtonEnabled(true);
        connect(this, &QLineEdit::textChanged, &list, [this](const QString &text) { list.filterIndices(text); });
        connect(this, &QLineEdit::returnPressed, &list, &QHelpIndexWidget::activateCurrentItem);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Down)
            list.setFocus();
        else
            QLineEdit::keyPressEvent(event);
    }

private:
    QHelpIndexWidget &list;
};

class HelpViewer : public QMainWindow {
public:
    explicit HelpViewer(const QString &collection);

    bool open() { return engine.setupData(); }
    QString error() const { return engine.error(); }
    void run(HelpCommand command, long context);
    void showPage(const QString &name); // of the collection, with an anchor ("buttons.html#caption")

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *contentsTab();
    QWidget *indexTab();
    void listHits(const QString &words);
    void addAction(QToolBar &bar, const char *name, const QString &text, QStyle::StandardPixmap icon,
                   const QList<QKeySequence> &keys, const std::function<void()> &triggered);
    void addNavigation();
    void showUrl(const QUrl &url);
    QUrl pageOf(long context) const;
    void markPage(const QUrl &page);
    void bringUp();

    QHelpEngine engine;
    HelpBrowser *browser;
    QTabWidget *tabs;
    QLineEdit *search = nullptr;
    HelpSearch pages;
    QLabel *hitsLabel = nullptr;
    QListWidget *hits = nullptr;
};

HelpViewer::HelpViewer(const QString &collection)
    : engine(collection), browser(new HelpBrowser(engine, this)), tabs(new QTabWidget(this)), pages(engine)
{
    engine.setReadOnly(true);
    setObjectName(QStringLiteral("helpviewer"));
    setWindowTitle(QStringLiteral("Corvanta Help"));
    setContextMenuPolicy(Qt::NoContextMenu);
    tabs->setObjectName(QStringLiteral("helptabs"));
    tabs->addTab(contentsTab(), QStringLiteral("&Contents"));
    tabs->addTab(indexTab(), QStringLiteral("&Index"));
    auto *halves = new QSplitter(this);
    halves->addWidget(tabs);
    halves->addWidget(browser);
    halves->setStretchFactor(1, 1);
    halves->setSizes({listWidth, windowSize.width() - listWidth});
    halves->setChildrenCollapsible(false);
    setCentralWidget(halves);
    addNavigation();
    connect(browser, &QTextBrowser::sourceChanged, this, [this](const QUrl &page) { markPage(page); });
    resize(windowSize);
}

QWidget *HelpViewer::contentsTab()
{
    QHelpContentWidget *contents = engine.contentWidget();
    contents->setObjectName(QStringLiteral("helpcontents"));
    contents->setAccessibleName(QStringLiteral("Contents"));
    const auto open = [this, contents](const QModelIndex &row) {
        if (const QHelpContentItem *item = engine.contentModel()->contentItemAt(row))
            showUrl(item->url());
    };
    connect(contents, &QHelpContentWidget::clicked, this, open);
    connect(contents, &QHelpContentWidget::linkActivated, this, [this](const QUrl &url) { showUrl(url); });
    connect(engine.contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents] {
        contents->expandAll();
        markPage(browser->source());
    });
    return contents;
}

QWidget *HelpViewer::indexTab()
{
    QHelpIndexWidget *keywords = engine.indexWidget();
    keywords->setObjectName(QStringLiteral("helpindex"));
    keywords->setAccessibleName(QStringLiteral("Keywords"));
    search = new SearchField(*keywords);
    connect(keywords, &QHelpIndexWidget::clicked, keywords, &QHelpIndexWidget::activateCurrentItem);
    connect(keywords, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink &link) { showUrl(link.url); });
    connect(engine.indexModel(), &QHelpIndexModel::indexCreated, search,
            [this, keywords] { keywords->filterIndices(search->text()); });
    hitsLabel = new QLabel;
    hitsLabel->setObjectName(QStringLiteral("helphitslabel"));
    hits = new QListWidget;
    hits->setObjectName(QStringLiteral("helphits"));
    hits->setAccessibleName(QStringLiteral("Pages with these words"));
    const auto open = [this](const QListWidgetItem *item) { showUrl(item->data(Qt::UserRole).toUrl()); };
    connect(hits, &QListWidget::itemClicked, this, open);
    connect(hits, &QListWidget::itemActivated, this, open);
    connect(search, &QLineEdit::textChanged, this, [this](const QString &words) { listHits(words); });
    listHits({});
    auto *tab = new QWidget;
    auto *column = new QVBoxLayout(tab);
    column->addWidget(search);
    column->addWidget(keywords, 1);
    column->addWidget(hitsLabel);
    column->addWidget(hits, 1);
    return tab;
}

// The words are looked for in all pages, beside the keywords that begin with them.
void HelpViewer::listHits(const QString &words)
{
    hits->clear();
    const bool any = !words.trimmed().isEmpty();
    for (const HelpHit &hit : any ? pages.find(words) : std::vector<HelpHit>()) {
        auto *item = new QListWidgetItem(hit.title, hits);
        item->setData(Qt::UserRole, hit.page);
    }
    hitsLabel->setText(!any                 ? QStringLiteral("All pages are searched for what you type.")
                       : hits->count() == 0 ? QStringLiteral("No page holds these words.")
                                            : QStringLiteral("Pages with these words:"));
}

void HelpViewer::showPage(const QString &name)
{
    const QUrl page = contentsPage.resolved(QUrl(name));
    showUrl(engine.fileData(page.adjusted(QUrl::RemoveFragment)).isEmpty() ? contentsPage : page);
    tabs->setCurrentIndex(0);
    bringUp();
    browser->setFocus();
}

void HelpViewer::addAction(QToolBar &bar, const char *name, const QString &text, QStyle::StandardPixmap icon,
                           const QList<QKeySequence> &keys, const std::function<void()> &triggered)
{
    QAction *action = bar.addAction(style()->standardIcon(icon), text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, triggered);
}

void HelpViewer::addNavigation()
{
    QToolBar *bar = addToolBar(QStringLiteral("Navigation"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addAction(*bar, "helpback", QStringLiteral("Back"), QStyle::SP_ArrowBack,
              QKeySequence::keyBindings(QKeySequence::Back), [this] { browser->backward(); });
    addAction(*bar, "helpforward", QStringLiteral("Forward"), QStyle::SP_ArrowForward,
              QKeySequence::keyBindings(QKeySequence::Forward), [this] { browser->forward(); });
    addAction(*bar, "helphome", QStringLiteral("Home"), QStyle::SP_DirHomeIcon, {QKeySequence("Alt+Home")},
              [this] { showUrl(contentsPage); });
    const auto enable = [this, bar](const char *name, bool on) { bar->findChild<QAction *>(name)->setEnabled(on); };
    enable("helpback", false);
    enable("helpforward", false);
    connect(browser, &QTextBrowser::backwardAvailable, bar, [enable](bool on) { enable("helpback", on); });
    connect(browser, &QTextBrowser::forwardAvailable, bar, [enable](bool on) { enable("helpforward", on); });
}

void HelpViewer::showUrl(const QUrl &url)
{
    if (url != browser->source())
        browser->setSource(url);
}

QUrl HelpViewer::pageOf(long context) const
{
    const QList<QHelpLink> pages = engine.documentsForIdentifier(QString::number(context));
    return pages.isEmpty() ? contentsPage : pages.front().url;
}

// The contents tree follows the page.
void HelpViewer::markPage(const QUrl &page)
{
    const QModelIndex row = engine.contentWidget()->indexOf(page);
    if (row.isValid())
        engine.contentWidget()->setCurrentIndex(row);
}

void HelpViewer::run(HelpCommand command, long context)
{
    const bool searches = command == HelpCommand::Search;
    if (!searches || browser->source().isEmpty())
        showUrl(command == HelpCommand::Context ? pageOf(context) : contentsPage);
    tabs->setCurrentIndex(searches ? 1 : 0);
    bringUp();
    if (searches) {
        search->setFocus();
        search->selectAll();
    } else {
        browser->setFocus();
    }
}

// A menu whose item was asked about closes. Over a modal dialog the window belongs to the dialog, which
// would keep it from being used otherwise.
void HelpViewer::bringUp()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    winId();
    const QWidget *modal = QApplication::activeModalWidget();
    windowHandle()->setTransientParent(modal ? modal->windowHandle() : nullptr);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpViewer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

HelpViewer *openViewer(const QString &collection)
{
    auto viewer = std::make_unique<HelpViewer>(collection);
    if (QFileInfo::exists(collection) && viewer->open())
        return viewer.release();
    showExclamation("The help file " + toBytes(collection) + " cannot be opened.", "Help");
    return nullptr;
}

} // namespace

QString helpCollection()
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString installed = program + QStringLiteral("/../share/corvanta/help/corvanta.qhc");
    const QString beside = program + QStringLiteral("/help/corvanta.qhc");
    return QFileInfo::exists(installed) && !QFileInfo::exists(beside) ? installed : beside;
}

void installHelp(const QString &collection)
{
    const auto viewer = std::make_shared<QPointer<HelpViewer>>();
    const auto opened = [collection, viewer] {
        if (!*viewer)
            *viewer = openViewer(collection);
        return viewer->data();
    };
    helpCommand() = [viewer, opened](HelpCommand command, long context) {
        if (command == HelpCommand::Quit)
            delete viewer->data();
        else if (HelpViewer *window = opened())
            window->run(command, context);
    };
    helpPage() = [opened](const std::string &page) {
        if (HelpViewer *window = opened())
            window->showPage(QString::fromStdString(page));
    };
}

} // namespace corvanta
