#include "platform/qt/drag.h"

#include <QMimeData>

namespace corvanta {

QMimeData *dragData(std::string_view tag, const QByteArray &payload)
{
    auto *data = new QMimeData;
    data->setData(QLatin1String(dragMimeType),
                  QByteArray(tag.data(), static_cast<qsizetype>(tag.size())) + '\t' + payload);
    return data;
}

std::optional<DragPayload> dragPayload(const QMimeData &data)
{
    const QByteArray bytes = data.data(QLatin1String(dragMimeType));
    const qsizetype tab = bytes.indexOf('\t');
    if (tab < 0)
        return std::nullopt;
    return DragPayload{bytes.left(tab).toStdString(), bytes.mid(tab + 1)};
}

} // namespace corvanta
