#pragma once

#include <QByteArray>

#include <optional>

namespace schedules {

/// The bytes of an XML document as UTF-8 with line feeds at the ends of lines, as a parser sees them: out of the
/// encoding that a byte-order mark or the declaration names, UTF-8 without either. Nothing when they are not in that
/// encoding, or when it is not known.
std::optional<QByteArray> XmlUtf8FromBytes(const QByteArray& bytes);

/// The same from a file; nothing, too, when it has more than `mostBytes` or is no file that can be read.
std::optional<QByteArray> XmlUtf8FromFile(const QString& fileName, qint64 mostBytes);

} // namespace schedules
