#include "common/XmlBytes.h"

#include "common/XmlLibraryErrors.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringConverter>

#include <libxml/encoding.h>
#include <libxml/tree.h>
#include <memory>
#include <new>

namespace schedules {

namespace {

using Buffer = std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)>;

Buffer NewBuffer()
{
    Buffer buffer(xmlBufferCreate(), xmlBufferFree);
    return buffer ? std::move(buffer) : throw std::bad_alloc();
}

/// The encoding that the declaration names; empty when it names none.
QByteArray DeclaredEncoding(const QByteArray& bytes)
{
    static const QRegularExpression kEncoding(
        QStringLiteral(R"re(^<\?xml(?=\s)[^>]*?\sencoding\s*=\s*["']([A-Za-z0-9._-]+)["'])re"));
    constexpr qsizetype kLongestDeclaration = 1024;
    return kEncoding.match(QString::fromLatin1(bytes.left(kLongestDeclaration))).captured(1).toLatin1();
}

std::optional<QByteArray> FromEncoding(const QByteArray& bytes, const QByteArray& encoding)
{
    const XmlLibraryErrors errors;
    xmlCharEncodingHandler* handler = xmlFindCharEncodingHandler(encoding.constData());
    errors.RequireMemory();
    if (!handler)
        return std::nullopt;
    const std::unique_ptr<xmlCharEncodingHandler, int (*)(xmlCharEncodingHandler*)> owned(handler, xmlCharEncCloseFunc);
    const Buffer in = NewBuffer();
    const Buffer out = NewBuffer();
    xmlBufferAdd(in.get(), reinterpret_cast<const xmlChar*>(bytes.constData()), static_cast<int>(bytes.size()));
    errors.RequireMemory();
    while (xmlBufferLength(in.get()) > 0) {
        const bool isConverted = xmlCharEncInFunc(handler, out.get(), in.get()) > 0;
        errors.RequireMemory();
        if (!isConverted)
            return std::nullopt;
    }
    return QByteArray(reinterpret_cast<const char*>(xmlBufferContent(out.get())), xmlBufferLength(out.get()));
}

/// The encoding that the first bytes show, or that the declaration names, or UTF-8.
QByteArray EncodingOf(const QByteArray& bytes)
{
    if (const auto encoding = QStringConverter::encodingForData(bytes, u'<'))
        return QStringConverter::nameForEncoding(*encoding);
    const QByteArray declared = DeclaredEncoding(bytes);
    return declared.isEmpty() ? QByteArrayLiteral("UTF-8") : declared;
}

std::optional<QByteArray> Decoded(const QByteArray& bytes)
{
    const QByteArray encoding = EncodingOf(bytes);
    const bool isUtf8 = encoding.compare("UTF-8", Qt::CaseInsensitive) == 0;
    auto utf8 = isUtf8 ? std::optional(bytes) : FromEncoding(bytes, encoding);
    // The library lets halves of pairs pass, and takes a null character for the end.
    const bool isText = utf8 && utf8->isValidUtf8() && !utf8->contains('\0');
    return isText ? std::move(utf8) : std::nullopt;
}

} // namespace

std::optional<QByteArray> XmlUtf8FromBytes(const QByteArray& bytes)
{
    auto utf8 = Decoded(bytes);
    if (utf8 && utf8->contains('\r'))
        utf8->replace("\r\n", "\n").replace('\r', '\n');
    return utf8;
}

std::optional<QByteArray> XmlUtf8FromFile(const QString& fileName, qint64 mostBytes)
{
    QFile file(fileName);
    // What is no file, such as a pipe, might never end.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (file.size() > mostBytes)
        return std::nullopt;
    const QByteArray bytes = file.read(file.size() + 1);
    return file.error() == QFileDevice::NoError ? XmlUtf8FromBytes(bytes) : std::nullopt;
}

} // namespace schedules
