#include "common/XmlReader.h"

#include "common/Utf8.h"
#include "common/XmlBounds.h"
#include "common/XmlLibraryErrors.h"

#include <QStringEncoder>

#include <algorithm>
#include <exception>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <limits>
#include <memory>
#include <vector>

namespace schedules {

namespace {

constexpr int kFieldsPerAttribute = 5;
constexpr int kFieldsPerDeclaration = 2;
constexpr std::string_view kDeclaration = "xmlns";

/// The parser searches the namespaces in scope for every prefix; each takes two places of its stack.
constexpr int kMaxNamespacePlaces = 2 * 4096;

std::string_view View(const xmlChar* text)
{
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// An attribute out of the parser's five pointers: name, prefix, namespace, start and end of the value.
XmlAttribute AttributeAt(const xmlChar** fields)
{
    const auto* start = reinterpret_cast<const char*>(fields[3]);
    return {View(fields[0]),
            {start, static_cast<std::size_t>(fields[4] - fields[3])},
            fields[2] != nullptr,
            View(fields[1])};
}

/// A namespace declaration out of the parser's two pointers: prefix and namespace.
XmlAttribute DeclarationAt(const xmlChar** fields)
{
    if (!fields[0])
        return {kDeclaration, View(fields[1])};
    return {View(fields[0]), View(fields[1]), true, kDeclaration};
}

QString WrittenName(const XmlAttribute& attribute)
{
    return attribute.prefix.empty() ? FromUtf8(attribute.name)
                                    : FromUtf8(attribute.prefix) + u':' + FromUtf8(attribute.name);
}

/// The names of the attributes of a well-formed tag, as they are written.
std::vector<std::string_view> NamesIn(std::string_view tag)
{
    constexpr std::string_view kSpaces = " \t\r\n";
    std::vector<std::string_view> names;
    std::size_t at = tag.find_first_of(" \t\r\n/>");
    while ((at = tag.find_first_not_of(kSpaces, at)) < tag.size() && tag[at] != '/' && tag[at] != '>') {
        const std::size_t end = tag.find_first_of(" \t\r\n=", at);
        names.push_back(tag.substr(at, end - at));
        const std::size_t quote = tag.find_first_of("\"'", end);
        at = tag.find(tag[quote], quote + 1) + 1;
    }
    return names;
}

/// One reading: passes the parser's calls on, and keeps exceptions from crossing the parser's frames.
class Reading
{
public:
    Reading(const QByteArray& utf8, XmlHandler& handler)
        : m_text(utf8.constData(), static_cast<std::size_t>(utf8.size())),
          m_handler(handler),
          m_parser(xmlCreateMemoryParserCtxt(utf8.constData(), static_cast<int>(utf8.size())), xmlFreeParserCtxt)
    {
        if (!m_parser)
            throw std::bad_alloc();
        *m_parser->sax = Callbacks();
        m_parser->userData = this;
        xmlCtxtUseOptions(m_parser.get(), XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC);
        xmlSwitchEncoding(m_parser.get(), XML_CHAR_ENCODING_UTF8);
    }

    bool Run()
    {
        xmlParseDocument(m_parser.get());
        if (m_exception)
            std::rethrow_exception(m_exception);
        m_errors.RequireMemory(); // else it would seem to be the document's fault
        return m_parser->wellFormed && m_parser->nsWellFormed && !m_refused;
    }

private:
    static Reading& Of(void* context) { return *static_cast<Reading*>(context); }

    static xmlSAXHandler Callbacks()
    {
        xmlSAXHandler sax{};
        sax.initialized = XML_SAX2_MAGIC;
        sax.startElementNs = OnStart;
        sax.endElementNs = [](void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
            Of(context).Guarded([&](XmlHandler& handler) { handler.EndElement(Of(context).Offset()); });
        };
        sax.characters = OnText;
        sax.ignorableWhitespace = OnText;
        sax.comment = [](void* context, const xmlChar*) { Of(context).TellOtherNode(); };
        sax.cdataBlock = OnCData;
        sax.processingInstruction = [](void* context, const xmlChar*, const xmlChar*) { Of(context).TellOtherNode(); };
        sax.internalSubset = [](void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
            Of(context).Refuse();
        };
        return sax;
    }

    static void OnStart(void* context, const xmlChar* name, const xmlChar*, const xmlChar* uri, int declarationCount,
                        const xmlChar** declarations, int count, int, const xmlChar** attributes)
    {
        if (Of(context).m_parser->nsNr > kMaxNamespacePlaces || !Of(context).StandsAtEndOfTag())
            return Of(context).Refuse();
        Of(context).Guarded([&](XmlHandler& handler) {
            // The parser stands behind the attributes, which hold no "<".
            handler.StartElement({View(name),
                                  uri != nullptr,
                                  Of(context).Attributes(attributes, count),
                                  {},
                                  Of(context).m_text.rfind('<', Of(context).Offset()),
                                  Of(context).Declarations(declarations, declarationCount)});
        });
    }

    static void OnText(void* context, const xmlChar* text, int length)
    {
        Of(context).Guarded([&](XmlHandler& handler) {
            handler.Text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
        });
    }

    static void OnCData(void* context, const xmlChar* text, int length)
    {
        Of(context).Guarded([&](XmlHandler& handler) {
            handler.CData({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
        });
    }

    /// At a control character the parser leaves off a tag, tells of it, and sees only then that it does not end there.
    bool StandsAtEndOfTag() const
    {
        const std::string_view rest = m_text.substr(Offset());
        return rest.starts_with('>') || rest.starts_with("/>");
    }

    std::size_t Offset() const { return static_cast<std::size_t>(xmlByteConsumed(m_parser.get())); }

    std::span<const XmlAttribute> Attributes(const xmlChar** fields, int count)
    {
        m_attributes.clear();
        for (int index = 0; index < count; ++index)
            m_attributes.push_back(AttributeAt(fields + index * kFieldsPerAttribute));
        return m_attributes;
    }

    std::span<const XmlAttribute> Declarations(const xmlChar** fields, int count)
    {
        m_declarations.clear();
        for (int index = 0; index < count; ++index)
            m_declarations.push_back(DeclarationAt(fields + index * kFieldsPerDeclaration));
        return m_declarations;
    }

    template <class Call>
    void Guarded(Call&& call) noexcept
    {
        if (m_exception || m_refused)
            return;
        try {
            call(m_handler);
        } catch (...) {
            m_exception = std::current_exception();
            xmlStopParser(m_parser.get());
        }
    }

    void TellOtherNode()
    {
        Guarded([](XmlHandler& handler) { handler.OtherNode(); });
    }

    void Refuse()
    {
        m_refused = true;
        xmlStopParser(m_parser.get());
    }

    const XmlLibraryErrors m_errors;
    const std::string_view m_text;
    XmlHandler& m_handler;
    std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> m_parser;
    std::vector<XmlAttribute> m_attributes;
    std::vector<XmlAttribute> m_declarations;
    std::exception_ptr m_exception;
    bool m_refused = false;
};

} // namespace

bool ReadXml(const QByteArray& utf8, XmlHandler& handler)
{
    const bool readable = !utf8.isEmpty() && utf8.size() <= std::numeric_limits<int>::max() &&
                          WithinTagBounds({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    return readable && Reading(utf8, handler).Run();
}

std::vector<XmlWrittenAttribute> WrittenAttributes(std::string_view document, const XmlStartTag& tag)
{
    std::vector<XmlWrittenAttribute> written;
    const auto add = [&written](const XmlAttribute& attribute) {
        written.push_back({WrittenName(attribute), FromUtf8(attribute.value)});
    };
    if (tag.declarations.empty()) {
        std::ranges::for_each(tag.attributes, add);
        return written;
    }
    // The parser tells both kinds apart, each in its order; the document knows how they mix.
    auto attribute = tag.attributes.begin();
    auto declaration = tag.declarations.begin();
    for (const std::string_view name : NamesIn(document.substr(tag.start))) {
        if (name != kDeclaration && !name.starts_with("xmlns:"))
            add(*attribute++);
        else if (declaration != tag.declarations.end() && WrittenName(*declaration) == FromUtf8(name))
            add(*declaration++); // else it declares the prefix "xml", of which the parser does not tell
    }
    return written;
}

std::optional<QByteArray> XmlUtf8(const QString& text)
{
    QStringEncoder encoder(QStringConverter::Utf8);
    QByteArray utf8 = encoder(text);
    // The encoder keeps half a pair at the end back, waiting for the other half.
    const bool endsInHalfAPair = !text.isEmpty() && text.back().isHighSurrogate();
    if (encoder.hasError() || endsInHalfAPair || utf8.contains('\0'))
        return std::nullopt;
    return utf8;
}

} // namespace schedules
