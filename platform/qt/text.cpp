#include "platform/qt/text.h"

#include "platform/codepage.h"
#include "platform/paths.h"

#include <QList>

#include <array>

namespace corvanta {

namespace {

// The characters of the current code page; all of them lie in Unicode's basic plane.
const std::array<QChar, 256> &characters()
{
    static std::array<QChar, 256> table;
    static int tableNumber = 0;
    if (tableNumber != codePageNumber()) {
        for (std::size_t byte = 0; byte < table.size(); ++byte)
            table[byte] = QChar(static_cast<char16_t>(characterOf(static_cast<unsigned char>(byte))));
        tableNumber = codePageNumber();
    }
    return table;
}

} // namespace

QString toQString(std::string_view bytes)
{
    const std::array<QChar, 256> &table = characters();
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    QChar *target = text.data();
    for (const char byte : bytes)
        *target++ = table[static_cast<unsigned char>(byte)];
    return text;
}

QString shownPath(std::string_view drivePath)
{
    return drivePath.find('~') == std::string_view::npos ? toQString(drivePath)
                                                         : QString::fromStdString(realPath(drivePath));
}

std::optional<char32_t> lackingCharacter(const QString &text)
{
    for (const char32_t character : text.toUcs4())
        if (!byteOf(character))
            return character;
    return std::nullopt;
}

std::string toBytes(const QString &text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const char32_t character : text.toUcs4())
        bytes += static_cast<char>(byteOf(character).value_or('?'));
    return bytes;
}

} // namespace corvanta
