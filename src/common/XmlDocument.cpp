#include "common/XmlDocument.h"

#include "common/Error.h"
#include "common/Utf8.h"
#include "common/XmlBounds.h"
#include "common/XmlLibraryErrors.h"
#include "common/XmlReader.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <iterator>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlsave.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>
#include <limits>
#include <new>
#include <string_view>

namespace schedules {

namespace {

using Kind = XmlNode::Kind;

/// Enough for any selection that is meant, and an end to those that would never come to one.
constexpr unsigned long kMostXPathSteps = 100'000'000;

template <auto Free>
struct Freeing
{
    template <class Object>
    void operator()(Object* object) const
    {
        Free(object);
    }
};

using Document = std::unique_ptr<xmlDoc, void (*)(xmlDoc*)>;
using Parser = std::unique_ptr<xmlParserCtxt, Freeing<xmlFreeParserCtxt>>;
using Buffer = std::unique_ptr<xmlBuffer, Freeing<xmlBufferFree>>;
using LooseNode = std::unique_ptr<xmlNode, Freeing<xmlFreeNode>>;
using XPathContext = std::unique_ptr<xmlXPathContext, Freeing<xmlXPathFreeContext>>;
using XPathResult = std::unique_ptr<xmlXPathObject, Freeing<xmlXPathFreeObject>>;

template <class Object>
Object* Made(Object* object)
{
    return object ? object : throw std::bad_alloc();
}

QString FromXml(const xmlChar* text)
{
    return text ? FromUtf8(reinterpret_cast<const char*>(text)) : QString();
}

QString TakenFromXml(xmlChar* text)
{
    const std::unique_ptr<xmlChar, void (*)(void*)> owned(text, xmlFree);
    return FromXml(text);
}

const xmlChar* ToXml(const QByteArray& text)
{
    return reinterpret_cast<const xmlChar*>(text.constData());
}

[[noreturn]] void Refuse(const QString& what)
{
    throw Error(kAutomationError, what);
}

QByteArray CheckedText(const QString& text)
{
    const auto utf8 = XmlUtf8(text);
    const auto allowed = [](char32_t character) { return xmlIsCharQ(static_cast<int>(character)); };
    if (!utf8 || !std::ranges::all_of(text.toUcs4(), allowed))
        Refuse(QStringLiteral("An XML document cannot hold this text."));
    return *utf8;
}

QByteArray CheckedName(const QString& name)
{
    const QByteArray utf8 = CheckedText(name);
    if (xmlValidateNCName(ToXml(utf8), 0) != 0)
        Refuse(QStringLiteral("\"%1\" is no XML name.").arg(name));
    return utf8;
}

Kind KindOf(const xmlNode* node)
{
    if (!node)
        return Kind::None;
    switch (node->type) {
    case XML_DOCUMENT_NODE:
        return Kind::Document;
    case XML_ELEMENT_NODE:
        return Kind::Element;
    case XML_ATTRIBUTE_NODE:
        return Kind::Attribute;
    case XML_TEXT_NODE:
        return Kind::Text;
    case XML_CDATA_SECTION_NODE:
        return Kind::CData;
    case XML_COMMENT_NODE:
        return Kind::Comment;
    case XML_PI_NODE:
        return Kind::Instruction;
    default:
        return Kind::None;
    }
}

bool HasName(Kind kind)
{
    return kind == Kind::Element || kind == Kind::Attribute || kind == Kind::Instruction;
}

bool HasChildren(Kind kind)
{
    return kind == Kind::Element || kind == Kind::Document;
}

bool IsLayout(xmlNode* node)
{
    return node->type == XML_TEXT_NODE && xmlIsBlankNode(node);
}

/// Whether elements without a prefix would be in a namespace below this one.
bool HasDefaultNamespace(xmlNode& node)
{
    const xmlNs* space = xmlSearchNs(node.doc, &node, nullptr);
    return space && *space->href != 0;
}

/// What the document type declaration would let in is never read.
void RefuseDocumentType(void* context, const xmlChar*, const xmlChar*, const xmlChar*)
{
    auto* parser = static_cast<xmlParserCtxt*>(context);
    xmlStopParser(parser);
    parser->wellFormed = 0;
}

Parser ParserOf(const QByteArray& bytes, int options)
{
    Parser parser(Made(xmlCreateMemoryParserCtxt(bytes.constData(), static_cast<int>(bytes.size()))));
    xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_NOENT | options);
    parser->sax->internalSubset = RefuseDocumentType;
    return parser;
}

/// Empty when the bytes are no document. `encoding` is theirs, whatever they declare; none when they say it themselves.
Document Parsed(const QByteArray& bytes, xmlCharEncoding encoding)
{
    const XmlLibraryErrors errors;
    const Parser parser = ParserOf(bytes, encoding == XML_CHAR_ENCODING_NONE ? 0 : XML_PARSE_IGNORE_ENC);
    if (encoding != XML_CHAR_ENCODING_NONE)
        xmlSwitchEncoding(parser.get(), encoding);
    xmlParseDocument(parser.get());
    Document document(parser->myDoc, xmlFreeDoc);
    errors.RequireMemory();
    return parser->wellFormed && parser->nsWellFormed ? std::move(document) : Document(nullptr, xmlFreeDoc);
}

bool Readable(const QByteArray& bytes)
{
    return !bytes.isEmpty() && bytes.size() <= std::numeric_limits<int>::max() &&
           WithinTagBounds({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// The text of bytes that are UTF-16 or UTF-32 or start with a byte-order mark; nothing for others.
std::optional<QString> DecodedUnicode(const QByteArray& bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding)
        return std::nullopt;
    QStringDecoder decoder(*encoding, QStringConverter::Flag::Stateless); // else a cut-off end goes unnoticed
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

QString Saved(xmlNode* node)
{
    const XmlLibraryErrors errors;
    const Buffer buffer(Made(xmlBufferCreate()));
    xmlSaveCtxt* saving = Made(xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL | XML_SAVE_AS_XML));
    xmlSaveTree(saving, node);
    xmlSaveClose(saving);
    errors.RequireMemory();
    return FromXml(xmlBufferContent(buffer.get()));
}

/// What the declaration of a document said, where it had one.
QString Declaration(const xmlDoc& document)
{
    constexpr int kNoDeclaration = -1;
    if (document.standalone == kNoDeclaration)
        return {};
    const char* standalone = document.standalone == 1   ? " standalone=\"yes\""
                             : document.standalone == 0 ? " standalone=\"no\""
                                                        : "";
    return QStringLiteral("<?xml version=\"%1\"%2?>\n").arg(FromXml(document.version), QLatin1String(standalone));
}

std::vector<XmlNode> NodesOf(xmlXPathObject& result)
{
    std::vector<XmlNode> nodes;
    if (!result.nodesetval)
        return nodes;
    xmlXPathNodeSetSort(result.nodesetval);
    for (int index = 0; index < result.nodesetval->nodeNr; ++index) {
        // Namespace declarations are copies that the result itself owns.
        xmlNode* node = result.nodesetval->nodeTab[index];
        if (node->type != XML_NAMESPACE_DECL)
            nodes.emplace_back(node);
    }
    return nodes;
}

} // namespace

Kind XmlNode::NodeKind() const
{
    return KindOf(m_node);
}

QString XmlNode::Name() const
{
    if (!HasName(NodeKind()))
        return {};
    const xmlNs* space = NodeKind() == Kind::Instruction ? nullptr : m_node->ns;
    const QString prefix = space && space->prefix ? FromXml(space->prefix) + u':' : QString();
    return prefix + FromXml(m_node->name);
}

QString XmlNode::FirstText() const
{
    const auto children = Children();
    const auto text = std::ranges::find(children, Kind::Text, &XmlNode::NodeKind);
    return text == children.end() ? QString() : text->WholeText();
}

QString XmlNode::WholeText() const
{
    return m_node ? TakenFromXml(xmlNodeGetContent(m_node)) : QString();
}

QString XmlNode::Attribute(const QString& name) const
{
    if (!HasAttribute(name))
        return {};
    return TakenFromXml(xmlGetNoNsProp(m_node, ToXml(name.toUtf8())));
}

bool XmlNode::HasAttribute(const QString& name) const
{
    return NodeKind() == Kind::Element && xmlHasNsProp(m_node, ToXml(name.toUtf8()), nullptr);
}

void XmlNode::SetAttribute(const QString& name, const QString& value)
{
    if (NodeKind() != Kind::Element)
        Refuse(QStringLiteral("There is no element to take the attribute \"%1\".").arg(name));
    Made(xmlSetNsProp(m_node, nullptr, ToXml(CheckedName(name)), ToXml(CheckedText(value))));
}

XmlNode XmlNode::Parent() const
{
    return XmlNode(m_node ? m_node->parent : nullptr);
}

std::vector<XmlNode> XmlNode::Children() const
{
    std::vector<XmlNode> children;
    if (!HasChildren(NodeKind()))
        return children;
    for (xmlNode* child = m_node->children; child; child = child->next) {
        if (!IsLayout(child))
            children.emplace_back(child);
    }
    return children;
}

std::vector<XmlNode> XmlNode::Select(const QString& xpath) const
{
    if (!m_node)
        return {};
    const XPathContext context(Made(xmlXPathNewContext(m_node->doc)));
    context->node = m_node;
    context->opLimit = kMostXPathSteps;
    context->error = [](void*, xmlErrorPtr) {};
    const XPathResult result(xmlXPathEval(ToXml(CheckedText(xpath)), context.get()));
    if (!result || result->type != XPATH_NODESET)
        Refuse(QStringLiteral("The selection \"%1\" gives no nodes.").arg(xpath));
    return NodesOf(*result);
}

XmlNode XmlNode::SelectOne(const QString& xpath) const
{
    const auto nodes = Select(xpath);
    return nodes.empty() ? XmlNode() : nodes.front();
}

void XmlNode::SetText(const QString& text)
{
    if (NodeKind() != Kind::Element)
        Refuse(QStringLiteral("There is no element to take the text."));
    const QByteArray content = CheckedText(text);
    xmlNodeSetContent(m_node, nullptr);
    if (!content.isEmpty())
        xmlNodeAddContent(m_node, ToXml(content));
}

void XmlNode::Rename(const QString& name)
{
    if (NodeKind() != Kind::Attribute)
        Refuse(QStringLiteral("There is no attribute to take the name \"%1\".").arg(name));
    xmlNodeSetName(m_node, ToXml(CheckedName(name)));
}

XmlNode XmlNode::AppendElement(const QString& name, std::initializer_list<NamedValue> attributes)
{
    if (NodeKind() != Kind::Element)
        Refuse(QStringLiteral("There is no element to take the element \"%1\".").arg(name));
    LooseNode element(Made(xmlNewDocNode(m_node->doc, nullptr, ToXml(CheckedName(name)), nullptr)));
    if (HasDefaultNamespace(*m_node))
        Made(xmlNewNs(element.get(), ToXml(QByteArrayLiteral("")), nullptr)); // else it would be read into that one
    for (const auto& [attribute, value] : attributes)
        XmlNode(element.get()).SetAttribute(attribute, value);
    return XmlNode(Made(xmlAddChild(m_node, element.release())));
}

QString XmlNode::ToText() const
{
    return m_node ? Saved(m_node) : QString();
}

XmlDocument::XmlDocument() : m_document(nullptr, xmlFreeDoc) {}

XmlDocument XmlDocument::FromText(const QString& text)
{
    const auto utf8 = XmlUtf8(text);
    if (!utf8 || !Readable(*utf8))
        return {};
    return XmlDocument(Parsed(*utf8, XML_CHAR_ENCODING_UTF8));
}

XmlDocument XmlDocument::FromBytes(const QByteArray& bytes)
{
    if (const auto text = DecodedUnicode(bytes))
        return FromText(*text);
    if (bytes.contains('\0') || !Readable(bytes))
        return {};
    return XmlDocument(Parsed(bytes, XML_CHAR_ENCODING_NONE));
}

XmlDocument XmlDocument::FromFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? FromBytes(bytes) : XmlDocument();
}

XmlDocument XmlDocument::WithRoot(const QString& name)
{
    const QByteArray checked = CheckedName(name);
    XmlDocument created({Made(xmlNewDoc(nullptr)), xmlFreeDoc});
    xmlDoc* document = created.m_document.get();
    xmlDocSetRootElement(document, Made(xmlNewDocNode(document, nullptr, ToXml(checked), nullptr)));
    return created;
}

XmlNode XmlDocument::Root() const
{
    return XmlNode(m_document ? xmlDocGetRootElement(m_document.get()) : nullptr);
}

XmlNode XmlDocument::Node() const
{
    return XmlNode(reinterpret_cast<_xmlNode*>(m_document.get()));
}

QString XmlDocument::ToText() const
{
    if (!m_document)
        return {};
    const QString nodes = Node().ToText();
    return Declaration(*m_document) + (nodes.endsWith(u'\n') ? nodes.chopped(1) : nodes);
}

} // namespace schedules
