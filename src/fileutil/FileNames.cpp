#include "fileutil/FileNames.h"

#include <QDir>
#include <QStringDecoder>

#include <algorithm>

namespace schedules {

namespace {

constexpr char16_t kFirstEscape = 0xDC00;
constexpr QChar kEscapedBackslash{kFirstEscape + u'\\'};
constexpr char16_t kFirstByteNotAscii = 0x80;
constexpr char16_t kLastByte = 0xFF;
constexpr qsizetype kLongestCharacter = 4;

/// Unlike `QString::fromUtf8` it keeps a byte order mark, which is a character of the name as any other.
std::optional<QString> Decoded(QByteArrayView utf8)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString text = decode(utf8);
    return decode.hasError() ? std::nullopt : std::optional(text);
}

/// How many bytes the first character takes; 0 when the first byte begins none.
qsizetype FirstCharacterLength(QByteArrayView bytes)
{
    const qsizetype most = std::min(kLongestCharacter, bytes.size());
    for (qsizetype length = 1; length <= most; ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

QString DecodedPiecewise(QByteArrayView bytes)
{
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = FirstCharacterLength(bytes);
        if (length > 0)
            text += Decoded(bytes.first(length)).value_or(QString());
        else
            text += QChar(kFirstEscape + static_cast<unsigned char>(bytes.front()));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

bool IsSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

bool StandsForByte(QChar character)
{
    const int byte = character.unicode() - kFirstEscape;
    return character == kEscapedBackslash || (byte >= kFirstByteNotAscii && byte <= kLastByte);
}

/// The bytes of one character; none for what no file name has.
std::optional<QByteArray> EncodedCharacter(QStringView character)
{
    const QChar first = character.front();
    if (IsSeparator(first))
        return QByteArray("/");
    if (StandsForByte(first))
        return QByteArray(1, static_cast<char>(first.unicode() - kFirstEscape));
    if (first.isNull() || !character.isValidUtf16())
        return std::nullopt;
    return character.toUtf8();
}

} // namespace

QString DecodedName(QByteArrayView name)
{
    const auto decoded = Decoded(name);
    QString text = decoded ? *decoded : DecodedPiecewise(name);
    return text.replace(u'\\', kEscapedBackslash);
}

std::optional<QByteArray> EncodedPath(QStringView path)
{
    QByteArray bytes;
    while (!path.isEmpty()) {
        const qsizetype length = CharacterLength(path, 0);
        const auto character = EncodedCharacter(path.first(length));
        if (!character)
            return std::nullopt;
        bytes += *character;
        path = path.sliced(length);
    }
    return bytes;
}

qsizetype CharacterLength(QStringView text, qsizetype at)
{
    const bool isPair = at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
    return isPair ? 2 : 1;
}

QString FolderPart(const QString& path)
{
    const auto separator = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    return path.left(path.rend() - separator);
}

QString CleanedPath(const QString& path)
{
    QString cleaned = QDir::cleanPath(QString(path).replace(u'\\', u'/'));
    while (cleaned == QLatin1String("/..") || cleaned.startsWith(QLatin1String("/../")))
        cleaned.remove(0, 3);
    return cleaned.isEmpty() && !path.isEmpty() ? QStringLiteral("/") : cleaned;
}

} // namespace schedules
