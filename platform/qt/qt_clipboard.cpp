#include "platform/qt/qt_clipboard.h"

#include "platform/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace corvanta {

namespace {

constexpr const char *objectsType = "application/x-corvanta-objects";
constexpr qsizetype longestText = 16 << 20; // bytes; what is longer is no page of anybody's

void put(const ClipboardContent &content)
{
    auto *data = new QMimeData;
    data->setData(objectsType, QByteArray::fromStdString(content.objects));
    data->setText(QString::fromStdString(content.text));
    QGuiApplication::clipboard()->setMimeData(data);
}

ClipboardContent get()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    if (data->hasFormat(objectsType))
        return {data->data(objectsType).toStdString(), {}};
    const QString text = data->text();
    return {{}, text.size() > longestText ? std::string() : text.toStdString()};
}

bool mayHoldObjects()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && (data->hasFormat(objectsType) || data->hasText());
}

} // namespace

void installClipboard() { clipboard() = {put, get, mayHoldObjects}; }

} // namespace corvanta
