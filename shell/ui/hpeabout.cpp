#include "shell/ui/hpeabout.h"

#include "platform/qt/dialogs.h"
#include "shell/ui/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr int pictureSize = 72, gap = 18; // pixels

QLabel *textLine(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

Hpeabout::Hpeabout()
{
    QVBoxLayout *contents = startDialog(*this, "hpeabout", QStringLiteral("About Corvanta Page Editor"));
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    row->setContentsMargins(gap / 2, gap / 2, gap, gap / 2);
    contents->addLayout(row);
    auto *picture = new QLabel(this);
    picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    row->addWidget(picture, 0, Qt::AlignTop);
    auto *lines = new QVBoxLayout;
    row->addLayout(lines, 1);
    auto *name = textLine(QStringLiteral("Corvanta Form Editor"), this);
    name->setObjectName(QStringLiteral("productname"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    name->setFont(large);
    lines->addWidget(name);
    lines->addWidget(textLine(QStringLiteral("Version " CORVANTA_VERSION), this));
    lines->addSpacing(gap / 2);
    lines->addWidget(textLine(QStringLiteral("With Qt %1 for windows and grids, SDL2_mixer for sound\n"
                                             "and unixODBC for data sources.")
                                  .arg(QLatin1String(qVersion())),
                              this));
    addButtons(*this, {{"Command1", "OK", [this] { accept(); }}});
    CentreDialog(*this);
}

void showAbout() { Hpeabout().exec(); }

} // namespace corvanta
