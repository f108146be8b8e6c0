#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace schedules {

/// An attribute of a start tag; name and value are UTF-8, entities resolved.
struct XmlAttribute
{
    std::string_view name;
    std::string_view value;
    bool inNamespace = false;
    std::string_view prefix = {};
};

/// The start tag of an element, while it is being read.
struct XmlStartTag
{
    std::string_view name;
    bool inNamespace = false;
    std::span<const XmlAttribute> attributes;

    /// The tag as it stands, from its name to its last attribute, when the document has it in one plain piece: tags
    /// that are written alike say the same. Empty otherwise.
    std::string_view written;

    /// Where the tag begins, in bytes from the start of the document.
    std::size_t start = 0;

    /// The namespaces that it declares: "xmlns", or a name with the prefix "xmlns", and the namespace.
    std::span<const XmlAttribute> declarations = {};

    /// Whether this is an element of that name in no namespace.
    bool Is(std::string_view wanted) const { return !inNamespace && name == wanted; }
};

/// What a document consists of, told in document order. Exceptions stop the reading and come out of `ReadXml`.
class XmlHandler
{
public:
    virtual ~XmlHandler() = default;

    virtual void StartElement(const XmlStartTag& tag) = 0;
    /// `end` is where the element ends, in bytes from the start of the document.
    virtual void EndElement(std::size_t end) = 0;

    /// Text between markup; a long run may come in pieces.
    virtual void Text(std::string_view text) = 0;

    /// A comment, a processing instruction or a CDATA section.
    virtual void OtherNode() = 0;

    /// A CDATA section, for those who want its text.
    virtual void CData(std::string_view) { OtherNode(); }
};

/// Reads a document of UTF-8 text in one pass. False when it is not well-formed, breaks the namespace rules, has a
/// document type declaration or exceeds the bounds: elements nested more than 256 deep below the root,
/// more than 4,096 namespaces in scope, 4,096 attributes or 1 MiB in one tag.
/// What the handler was told before is void then. Nothing outside of the text is ever read.
bool ReadXml(const QByteArray& utf8, XmlHandler& handler);

/// An attribute under its name as it is written, with its prefix.
struct XmlWrittenAttribute
{
    QString name;
    QString value;
};

/// All attributes of a tag of `document` as they are written, namespace declarations among them, in their order.
std::vector<XmlWrittenAttribute> WrittenAttributes(std::string_view document, const XmlStartTag& tag);

/// A text handed over in memory as UTF-8; nothing when it holds unpaired surrogates or null characters.
std::optional<QByteArray> XmlUtf8(const QString& text);

} // namespace schedules
