#include "shell/ui/checkpg.h"

#include "canvas/selection.h"
#include "check/check.h"
#include "document/events.h"
#include "platform/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr QSize listSize(620, 260); // pixels
constexpr int objectWidth = 170, ruleWidth = 110;

class Checkpg : public QDialog {
public:
    explicit Checkpg(QWidget *owner);

    void check();

private:
    void select(const QTreeWidgetItem &row);

    QTreeWidget *findings;
    QLabel *result;
};

Checkpg::Checkpg(QWidget *owner) : QDialog(owner)
{
    QVBoxLayout *contents = startDialog(*this, "checkpg", QStringLiteral("Check Page"));
    setAttribute(Qt::WA_DeleteOnClose);
    result = new QLabel(this);
    result->setObjectName(QStringLiteral("result"));
    contents->addWidget(result);
    findings = new QTreeWidget(this);
    findings->setObjectName(QStringLiteral("findings"));
    findings->setAccessibleName(QStringLiteral("Findings"));
    findings->setHeaderLabels({"Object", "Rule", "Finding"});
    findings->setRootIsDecorated(false);
    findings->setWordWrap(true);
    findings->setMinimumSize(listSize);
    findings->setColumnWidth(0, objectWidth);
    findings->setColumnWidth(1, ruleWidth);
    connect(findings, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem *row) { select(*row); });
    contents->addWidget(findings, 1);
    addButtons(*this, {{"again", "Check &Again", [this] { check(); }}, {"cancbut", "Close", [this] { close(); }}});
    CentreDialog(*this);
}

void Checkpg::check()
{
    const CheckFolder folder(hostPath(editing().curdir));
    const std::vector<Finding> found = checkPage({page(), &folder});
    findings->clear();
    for (const Finding &finding : found) {
        const bool ofObject = hasObject(page(), finding.object);
        auto *row = new QTreeWidgetItem(
            findings, {ofObject ? toQString(objectTitle(page(), finding.object)) : QStringLiteral("Page"),
                       QString::fromLatin1(finding.rule.data(), static_cast<qsizetype>(finding.rule.size())),
                       toQString(finding.text)});
        row->setData(0, Qt::UserRole, finding.object);
        row->setToolTip(2, toQString(finding.text));
    }
    result->setText(found.empty() ? QStringLiteral("Nothing was found.")
                    : found.size() == 1
                        ? QStringLiteral("1 finding. A double click shows its object.")
                        : QStringLiteral("%1 findings. A double click shows the object of one.").arg(found.size()));
}

void Checkpg::select(const QTreeWidgetItem &row)
{
    const auto index = static_cast<std::int16_t>(row.data(0, Qt::UserRole).toInt());
    if (!hasObject(page(), index))
        return;
    clearMultiSelection();
    selectObject(index);
    showTrackers();
}

} // namespace

void showPageCheck(QWidget *owner)
{
    static QPointer<Checkpg> window;
    if (!window)
        window = new Checkpg(owner);
    window->check();
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace corvanta
