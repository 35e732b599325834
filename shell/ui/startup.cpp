#include "shell/ui/startup.h"

#include "canvas/gestures.h"
#include "canvas/running.h"
#include "canvas/ui/drop_field.h"
#include "canvas/ui/editform.h"
#include "document/events.h"
#include "document/file_state.h"
#include "document/history.h"
#include "document/media.h"
#include "document/page_file.h"
#include "document/recovery.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/help.h"
#include "platform/post.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fonts.h"
#include "platform/qt/help_viewer.h"
#include "platform/qt/qt_asking.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_multimedia.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/window_switch.h"
#include "shell/commands.h"
#include "shell/recovery_offer.h"
#include "shell/session.h"
#include "shell/ui/canvas_menu.h"
#include "shell/ui/file_drops.h"
#include "shell/ui/help_key.h"
#include "shell/ui/hpeabout.h"
#include "shell/ui/hpsdir.h"
#include "shell/ui/hpsedit.h"
#include "shell/ui/hpsinput.h"
#include "shell/ui/icons.h"
#include "shell/ui/objlist.h"
#include "shell/ui/places.h"
#include "shell/ui/recent_pages.h"

#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <QWindow>

#include <cmath>

namespace corvanta {

namespace {

constexpr int recoveryDelay = 500; // milliseconds

void tellDamage()
{
    if (!fileDamage())
        return;
    std::string lines;
    for (const std::string &line : fileDamage().lines)
        lines += line + '\n';
    showMessage({.text = "Saving would lose something of this file. The first save keeps the old bytes beside it, with "
                         "the ending \".bak\".",
                 .title = "Reading File",
                 .icon = Icon::Information,
                 .further = lines});
}

} // namespace

EditorWindows::EditorWindows() : hpsedit(std::make_unique<Hpsedit>())
{
    startHistory();
    addCommandKeys(*hpsedit);
    takeFileDrops(*hpsedit, false);
    connectCommands();
    followSelection();
    watchFile();
    connectSession();
    connectWindows();
}

EditorWindows::~EditorWindows()
{
    switchableWindows() = {};
    sessionSteps() = {};
    editform.reset();
    stopHistory();
}

void EditorWindows::start(const std::string &pageFile)
{
    sessionRuns = true;
    startRecovery(recoveryFolder(),
                  [](Job job) { QTimer::singleShot(recoveryDelay, qApp, [job = std::move(job)] { job(); }); });
    startSession(pageFile);
    QTimer::singleShot(0, hpsedit.get(), [] {
        startRecentPages();
        offerLostPages();
    });
}

void EditorWindows::end()
{
    if (!std::exchange(sessionRuns, false))
        return;
    stopRecentPages();
    endSession();
}

void EditorWindows::connectCommands()
{
    DocumentEvents &document = documentEvents();
    connections.add(document.objectCount, [this] { hpsedit->refreshCommands(); });
    connections.add(document.objectRemoved, [this] { hpsedit->refreshCommands(); });
    connections.add(document.fileChanged, [this] { hpsedit->refreshFile(); });
    connections.add(pictureEvents().unreadable, dropUnreadablePicture);
    CommandEvents &commands = commandEvents();
    connections.add(commands.closeMain, [this] { hpsedit->close(); });
    connections.add(commands.marksChanged, [this] { hpsedit->refreshCommands(); });
    connections.add(commands.showMockToolbar, [this](bool shown) {
        if (editform)
            editform->showMockToolbar(shown);
    });
    connections.add(commands.showStatusPanel, [this](bool shown) {
        if (editform)
            editform->showStatusPanel(shown);
    });
    connections.add(commands.showBindings, [this](bool shown) {
        if (editform)
            editform->showBindings(shown);
    });
}

// The selection that an act leaves, or that the author makes after it, belongs to the page as it is then.
void EditorWindows::followSelection()
{
    const auto note = [pending = std::make_shared<bool>(false)] {
        if (std::exchange(*pending, true))
            return;
        postToEventLoop([pending] {
            *pending = false;
            noteSelection();
        });
    };
    CanvasEvents &canvas = canvasEvents();
    connections.add(canvas.currentChanged, note);
    connections.add(canvas.placeFrameMarkers, [note](std::int16_t, const Rect &) { note(); });
    connections.add(canvas.hideFrameMarkers, [note](std::int16_t) { note(); });
}

// The author comes back from another program, which may have changed the page's file, or from a dialog that was open
// meanwhile. Looked at when the dialog's own steps are over.
void EditorWindows::watchFile()
{
    const auto look = [this] {
        const bool free = editform && hpsedit->isEnabled() && !QApplication::activeModalWidget() &&
                          !QApplication::activePopupWidget();
        if (QApplication::activeWindow() && free && !gesture().dragging && !gesture().resizing)
            loadAgainIfChanged();
    };
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, hpsedit.get(), [this, look](const QWindow *now) {
        if (now)
            QTimer::singleShot(0, hpsedit.get(), look);
    });
}

void EditorWindows::connectSession()
{
    SessionSteps &steps = sessionSteps();
    steps.loadCanvas = [this] { loadCanvas(); };
    steps.buildAddMenu = [this] {
        hpsedit->buildAddMenu();
        placeAtFirst(*hpsedit, *editform);
    };
    steps.windowPlaces = [this] { return windowPlaces(*hpsedit, *editform); };
    steps.placeWindows = [this](const WindowSettings &stored) {
        placeWindows(*hpsedit, *editform, stored);
        places = stored;
    };
    steps.showCanvas = [this] {
        hpsedit->show();
        editform->show();
        waitForFrame(*editform);
        placeWindows(*hpsedit, *editform, places); // now that their frames are known
    };
    steps.unloadCanvas = [this] { editform.reset(); };
}

void EditorWindows::connectWindows()
{
    hpsedit->mayClose = querySave;
    hpsedit->closed = [this] {
        end();
        if (ended)
            ended();
    };
    switchableWindows() = [this]() -> std::vector<QWidget *> {
        if (Objlist *list = openObjectList())
            return {list};
        return {hpsedit.get(), editform.get()};
    };
}

void EditorWindows::loadCanvas()
{
    running().twipsPerPixel = static_cast<int>(std::lround(twipsPerPixelX()));
    editform = std::make_unique<Editform>();
    hpsedit->setCanvas(editform.get());
    rememberPlace(*hpsedit);
    rememberPlace(*editform);
    editform->room = [this] { return roomForCanvas(*hpsedit); };
    EditformCommands &commands = editform->commands;
    commands.openMenu = [this](char letter) { hpsedit->openMenu(letter); };
    commands.openProperties = [] { runCommand(Command::ObjectProperties); };
    commands.deleteCurrent = [] { runCommand(Command::Delete); };
    commands.currentChanged = [this] { hpsedit->refreshCommands(); };
    commands.fieldDropped = [](QPoint at, const QByteArray &payload) {
        dropField({at.x(), at.y()}, payload.toStdString());
    };
    commands.contextMenu = [this](std::int16_t index, QPoint at, QPoint onScreen) {
        openCanvasMenu(index, at, onScreen, editform.get());
    };
    commands.statusClicked = tellDamage;
    addCommandKeys(*editform);
    takeFileDrops(*editform, false);
    takeFileDrops(editform->pageArea(), true);
    commands.closeRequested = [this] { // after the canvas's own event: it does not outlive the session
        QTimer::singleShot(0, hpsedit.get(), [this] { hpsedit->close(); });
    };
}

void installDesktop()
{
    QApplication::setWindowIcon(programIcon());
    setEventLoop([](Job job) { QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection); });
    registerFontSubstitutions();
    installPictureLoader();
    installMultimedia();
    installClipboard();
    installHelp();
    installHelpKey();
    installAsking(switchableInFront); // the canvas, if it is there
    asking().askText = showInput;
    RoomCommands &commands = roomCommands();
    commands.showDirectory = showDirectory;
    commands.showObjectList = showObjectList;
    commands.about = showAbout;
    commands.helpContents = [] { showHelp(HelpCommand::Contents); };
    commands.helpSearch = [] { showHelp(HelpCommand::Search); };
}

int chosenCodePage(int option)
{
    const int wanted = option != 0 ? option : qEnvironmentVariableIntValue("CORVANTA_CODEPAGE");
    return wanted != 0 ? wanted : codePageOfLocale(QLocale::system().name().toStdString());
}

} // namespace corvanta
