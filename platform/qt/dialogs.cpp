#include "platform/qt/dialogs.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr int columnGap = 8; // pixels
constexpr int gapAboveButtons = 6;

QPushButton *addButton(QBoxLayout &layout, QWidget *parent, const ButtonRow &row)
{
    auto *button = new QPushButton(row.caption, parent);
    button->setObjectName(row.name);
    button->setAccessibleName(plainLabel(row.caption));
    if (row.clicked)
        QObject::connect(button, &QPushButton::clicked, button, [clicked = row.clicked] { clicked(); });
    layout.addWidget(button);
    return button;
}

void addNotice(QDialog &dialog, QBoxLayout &row)
{
    auto *notice = new QLabel(&dialog);
    notice->setObjectName("notice");
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row.addWidget(notice, 1);
}

} // namespace

void TrimWindowMenu(QWidget &dialog, int mode)
{
    if (mode == 1)
        dialog.setWindowFlags((dialog.windowFlags() & Qt::WindowType_Mask) | Qt::CustomizeWindowHint |
                              Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
}

QVBoxLayout *startDialog(QDialog &dialog, const char *name, const QString &caption)
{
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    TrimWindowMenu(dialog, 1);
    constexpr int frameButtons = 120; // pixels beside the caption
    auto *frame = new QVBoxLayout(&dialog);
    frame->addStrut(dialog.fontMetrics().horizontalAdvance(caption) + frameButtons);
    auto *contents = new QVBoxLayout;
    frame->addLayout(contents, 1);
    frame->addStretch();
    return contents;
}

std::vector<QVBoxLayout *> addColumns(QBoxLayout &layout, int count)
{
    auto *row = new QHBoxLayout;
    layout.addLayout(row);
    std::vector<QVBoxLayout *> columns;
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            row->addSpacing(columnGap);
        auto *frame = new QVBoxLayout;
        row->addLayout(frame, 1);
        columns.push_back(new QVBoxLayout);
        frame->addLayout(columns.back(), 1);
        frame->addStretch();
    }
    return columns;
}

std::vector<QPushButton *> addButtonRow(QBoxLayout &layout, const std::vector<ButtonRow> &buttons)
{
    auto *row = new QHBoxLayout;
    layout.addLayout(row);
    std::vector<QPushButton *> added;
    for (const ButtonRow &button : buttons)
        added.push_back(addButton(*row, layout.parentWidget(), button));
    for (QPushButton *button : added)
        button->setAutoDefault(false);
    row->addStretch();
    return added;
}

std::vector<QPushButton *> addButtons(QDialog &dialog, const std::vector<ButtonRow> &buttons)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, gapAboveButtons, 0, 0);
    static_cast<QBoxLayout *>(dialog.layout())->addLayout(row);
    addNotice(dialog, *row);
    std::vector<QPushButton *> added;
    for (const ButtonRow &button : buttons)
        added.push_back(addButton(*row, &dialog, button));
    added.front()->setDefault(true);
    return added;
}

QString plainLabel(const QString &label)
{
    QString text = label;
    text.replace("&&", QChar(QChar::Null)).remove('&').replace(QChar(QChar::Null), '&');
    text = text.trimmed();
    if (text.endsWith(':'))
        text.chop(1);
    return text.trimmed();
}

} // namespace corvanta
