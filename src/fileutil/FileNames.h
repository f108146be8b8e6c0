#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace schedules {

/// File names as texts and back. A file name is a row of bytes, by custom UTF-8, but any byte other than "/" may stand
/// in it. What no text can show comes as a lone surrogate, U+DC00 plus the byte, which no valid name has otherwise:
/// every byte that cannot be decoded, and a backslash, which would be taken for a separator. It goes back into that
/// very byte, so that each name has a text of its own and is found by it again.

/// The text of a name, or of a path with "/" for its separators.
QString DecodedName(QByteArrayView name);

/// The bytes of a path, its separators as the system writes them. None when no file can have that path: it has a null
/// character, or a lone surrogate that does not stand for a byte as above.
std::optional<QByteArray> EncodedPath(QStringView path);

/// How many code units the character at a place of a text takes: 2 for a surrogate pair, else 1.
qsizetype CharacterLength(QStringView text, qsizetype at);

/// The path up to its last separator, "\" or "/", with it; empty when it has none.
QString FolderPart(const QString& path);

/// The path with "/" for each separator and without "." and ".." as far as the text alone tells; an absolute path never
/// leads above its root.
QString CleanedPath(const QString& path);

} // namespace schedules
