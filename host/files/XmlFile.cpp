#include "host/files/XmlFile.h"

#include "host/base/HostError.h"
#include "host/files/FileReplacement.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringConverter>

#include <array>
#include <cerrno>
#include <iconv.h>

namespace schedules::host {

namespace {

constexpr QChar kNotXml{0xFFFF};
constexpr const char* kOwnEncoding = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE";

/// Converts from an encoding, as far as the bytes are of that encoding.
class Decoder
{
public:
    explicit Decoder(const char* encoding) : m_converter(iconv_open(kOwnEncoding, encoding)) {}
    ~Decoder()
    {
        if (Known())
            iconv_close(m_converter);
    }
    Q_DISABLE_COPY_MOVE(Decoder)

    QString Decoded(QByteArrayView bytes)
    {
        if (!Known())
            return kNotXml;
        char* input = const_cast<char*>(bytes.data());
        auto left = static_cast<std::size_t>(bytes.size());
        QString text;
        text.reserve(bytes.size());
        // The second run, without input, brings out what the converter still holds back.
        if (!Convert(&input, &left, text) || !Convert(nullptr, nullptr, text))
            text += kNotXml;
        return text;
    }

private:
    bool Known() const { return m_converter != reinterpret_cast<iconv_t>(-1); }

    bool Convert(char** input, std::size_t* left, QString& text)
    {
        std::array<char16_t, 8192> buffer;
        for (;;) {
            auto* output = reinterpret_cast<char*>(buffer.data());
            std::size_t room = sizeof buffer;
            const bool done = iconv(m_converter, input, left, &output, &room) != std::size_t(-1);
            const bool full = !done && errno == E2BIG;
            text.append(reinterpret_cast<const QChar*>(buffer.data()),
                        qsizetype((sizeof buffer - room) / sizeof(QChar)));
            if (!full)
                return done;
        }
    }

    iconv_t m_converter;
};

constexpr qsizetype kLongestDeclaration = 1024;

/// Where a text declares its encoding: the first part that is captured is the name.
QRegularExpressionMatch DeclarationIn(const QString& head)
{
    static const QRegularExpression declaration(QStringLiteral(
        R"re(^<\?xml\s+version\s*=\s*(?:"[^"]*"|'[^']*')\s+encoding\s*=\s*["']([A-Za-z][A-Za-z0-9._-]*)["'])re"));
    return declaration.match(head);
}

QByteArray DeclaredEncoding(QByteArrayView bytes)
{
    const auto head = QString::fromLatin1(bytes.first(qMin(bytes.size(), kLongestDeclaration)));
    return DeclarationIn(head).captured(1).toLatin1();
}

QString DecodedAsDeclared(QByteArrayView bytes)
{
    const QByteArray encoding = DeclaredEncoding(bytes);
    if (encoding.isEmpty())
        return Decoder("UTF-8").Decoded(bytes);
    const QString text = Decoder(encoding.constData()).Decoded(bytes);
    // A declaration that its own encoding cannot read, such as one of UTF-16 in single bytes, is wrong.
    return text.startsWith(QLatin1String("<?xml")) ? text : QString(kNotXml);
}

} // namespace

QString DecodedXml(QByteArrayView bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding)
        return DecodedAsDeclared(bytes);
    QString text = Decoder(QStringConverter::nameForEncoding(*encoding)).Decoded(bytes);
    return text.startsWith(QChar::ByteOrderMark) ? text.remove(0, 1) : text;
}

QString ReadXmlFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw HostError(QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString()));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw HostError(QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString()));
    return DecodedXml(bytes);
}

QByteArray EncodedXml(const QString& text)
{
    const auto declaration = DeclarationIn(text.left(kLongestDeclaration));
    constexpr QLatin1String kUtf8("UTF-8");
    if (!declaration.hasMatch() || declaration.captured(1).compare(kUtf8, Qt::CaseInsensitive) == 0)
        return text.toUtf8();
    QString renamed = text;
    return renamed.replace(declaration.capturedStart(1), declaration.capturedLength(1), kUtf8).toUtf8();
}

void WriteXmlFile(const QString& fileName, const QString& text)
{
    ReplaceFile(fileName, EncodedXml(text));
}

} // namespace schedules::host
