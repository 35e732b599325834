#include "platform/qt/drag.h"

#include <QMimeData>
#include <QUuid>

namespace corvanta {

namespace {

const QByteArray &ownProcess()
{
    static const QByteArray name = QUuid::createUuid().toByteArray();
    return name;
}

} // namespace

QMimeData *dragData(std::string_view tag, const QByteArray &payload)
{
    auto *data = new QMimeData;
    data->setData(QLatin1String(dragMimeType),
                  QByteArray(tag.data(), static_cast<qsizetype>(tag.size())) + '\t' + payload);
    data->setData(QLatin1String(processMimeType), ownProcess());
    return data;
}

std::optional<DragPayload> dragPayload(const QMimeData &data)
{
    const QByteArray bytes = data.data(QLatin1String(dragMimeType));
    const qsizetype tab = bytes.indexOf('\t');
    if (tab < 0)
        return std::nullopt;
    const bool ours = data.data(QLatin1String(processMimeType)) == ownProcess();
    return DragPayload{bytes.left(tab).toStdString(), bytes.mid(tab + 1), ours};
}

} // namespace corvanta
