#pragma once

#include <QByteArray>

#include <optional>
#include <string>
#include <string_view>

class QMimeData;

// What is dragged between the windows of the program: a tag that tells the kind of source ("obj" for an object
// tool, "fld" for a column) and its payload. It travels in the mime data, so that a drop needs no source widget.
namespace corvanta {

inline constexpr char dragMimeType[] = "application/x-corvanta-drag",
                      processMimeType[] = "application/x-corvanta-process"; // tells this process from other editors

struct DragPayload {
    std::string tag;
    QByteArray payload; // "obj": the kind code in decimal
    bool ours = false;  // dragged from a window of this process
};

// The mime data of a drag; it belongs to the QDrag that takes it.
QMimeData *dragData(std::string_view tag, const QByteArray &payload);

// What a drag of this program carries; none for data from elsewhere.
std::optional<DragPayload> dragPayload(const QMimeData &data);

} // namespace corvanta
