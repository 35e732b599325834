#include "shell/ui/help_key.h"

#include "platform/help.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QWidget>

#include <iterator>
#include <string_view>

namespace corvanta {

namespace {

struct HelpRow {
    const char *name; // of a window, a dialog, a frame of fields or a control
    const char *page;
};

constexpr HelpRow rows[] = {
    // windows
    {"hpsedit", "main-window.html"},
    {"toolbar0", "opening.html"},
    {"toolbar1", "saving.html"},
    {"editform", "page-window.html"},
    {"odbcdbs", "odbc.html"},
    {"tblrows", "odbc.html"},
    {"checkpg", "selecting.html#check"},
    {"manyobj", "selecting.html#common"},
    {"canvasmenu", "selecting.html#context"},
    {"objlist", "object-list.html"},
    {"hpsdir", "directory.html"},
    {"aniply", "animations.html#playing"},
    {"hpeabout", "index.html"},
    {"seldsn", "odbc.html"},
    {"fontdlg", "object-properties.html#appearance"},
    {"QColorDialog", "object-properties.html#appearance"},
    {"QFileDialog", "opening.html"},
    {"hpsinput", "fields.html#entries"},
    // property dialogs and their frames
    {"standard", "object-properties.html#standard"},
    {"action", "object-properties.html#action"},
    {"binding", "object-properties.html#binding"},
    {"autosql", "object-properties.html#binding"},
    {"look", "object-properties.html#appearance"},
    {"input", "fields.html#textbox"},
    {"system", "fields.html#textbox"},
    {"listbox", "fields.html#entries"},
    {"combobox", "fields.html#entries"},
    {"serverfiles", "fields.html#file"},
    {"imagefiles", "grids.html#imagedb"},
    {"header", "grids.html#columns"},
    {"frames", "animations.html#frames"},
    {"frame", "animations.html#frames"},
    {"playback", "animations.html#frames"},
    {"use", "buttons.html#button"},
    {"butobj", "buttons.html#button"},
    {"hotobj", "buttons.html#hotspot"},
    {"lblobj", "buttons.html#label"},
    {"imgobj", "buttons.html#image"},
    {"tbxobj", "fields.html#textbox"},
    {"cbxobj", "fields.html#entries"},
    {"lbxobj", "fields.html#entries"},
    {"fbxobj", "fields.html#file"},
    {"urlobj", "fields.html#url"},
    {"grdobj", "grids.html#columns"},
    {"grdcol", "grids.html#columns"},
    {"imgdbobj", "grids.html#imagedb"},
    {"tkrobj", "animations.html#ticker"},
    {"aniobj", "animations.html#frames"},
    // action dialogs
    {"selstmtgroup", "sql.html"},
    {"gopact", "actions.html"},
    {"appact", "actions.html"},
    {"pguact", "actions.html"},
    {"dwnact", "actions.html"},
    {"hlpact", "actions.html"},
    {"urlact", "actions.html"},
    {"nclact", "actions.html"},
    {"selpact", "actions.html"},
    {"sqlpact", "actions.html"},
    {"dwnlpact", "actions.html"},
    {"MsgPact", "actions.html"},
    {"listpact", "actions.html#list"},
    {"actinput", "actions.html#list"},
    // page properties
    {"database", "sql.html"},
    {"pgprops", "page-properties.html"},
};

const char *pageOfName(const QString &name)
{
    for (const HelpRow &row : rows)
        if (name == QLatin1String(row.name))
            return row.page;
    return nullptr;
}

bool isMenu(const QWidget *widget)
{
    return qobject_cast<const QMenu *>(widget) || qobject_cast<const QMenuBar *>(widget);
}

class HelpKey : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        const auto *key = static_cast<const QKeyEvent *>(event);
        const auto *widget = static_cast<const QWidget *>(watched);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || isMenu(widget) ||
            widget->window()->objectName() == QLatin1String("helpviewer"))
            return false;
        if (helpPage())
            helpPage()(helpPageOf(widget));
        return true;
    }
};

} // namespace

std::string helpPageOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const QMessageBox *>(widget))
            return "messages.html";
        if (const char *page = pageOfName(widget->objectName()))
            return page;
        if (const char *page = pageOfName(QString::fromLatin1(widget->metaObject()->className())))
            return page;
    }
    return "index.html";
}

std::vector<std::string> helpPages()
{
    std::vector<std::string> pages{"messages.html", "index.html"};
    for (const HelpRow &row : rows)
        pages.emplace_back(row.page);
    return pages;
}

void installHelpKey() { qApp->installEventFilter(new HelpKey(qApp)); }

} // namespace corvanta
