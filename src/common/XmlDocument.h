#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

struct _xmlDoc;
struct _xmlNode;

namespace schedules {

/// A handle on a node of a document, valid as long as the document lives and the node is part of it.
///
/// An empty handle is a legal value: asked for anything it answers with nothing, so that chains of lookups need no
/// checks in between. Changing what is not there throws `Error`, and so do texts and names that no XML can hold.
///
/// Text of white space alone is no node. It is kept when the document is written, and XPath expressions see it.
class XmlNode
{
public:
    enum class Kind
    {
        None,
        Document,
        Element,
        Attribute,
        Text,
        CData,
        Comment,
        Instruction
    };

    XmlNode() = default;
    explicit XmlNode(_xmlNode* node) : m_node(node) {}

    explicit operator bool() const { return m_node != nullptr; }
    bool operator==(const XmlNode&) const = default;

    Kind NodeKind() const;

    /// The name as it is written, with its prefix.
    QString Name() const;

    /// The value of the first text among the children; null when there is none.
    QString FirstText() const;

    /// All text below, CDATA included; the value of an attribute, a text or a comment.
    QString WholeText() const;

    /// The value of an attribute without a prefix; null when the element has none of that name.
    QString Attribute(const QString& name) const;
    bool HasAttribute(const QString& name) const;
    void SetAttribute(const QString& name, const QString& value);

    XmlNode Parent() const;

    /// In document order; attributes are no children.
    std::vector<XmlNode> Children() const;

    /// The nodes that an XPath expression selects from here, in document order. Throws `Error` when the expression is
    /// none or gives something else than nodes.
    std::vector<XmlNode> Select(const QString& xpath) const;

    /// The first of these; empty when there is none.
    XmlNode SelectOne(const QString& xpath) const;

    /// Replaces all children of an element by a text; handles on them become void.
    void SetText(const QString& text);

    /// Gives an attribute another name and leaves it where it is; that no other one has the name is up to the caller.
    void Rename(const QString& name);

    using NamedValue = std::pair<QString, QString>;

    /// Adds an element without a namespace, with these attributes in their order, behind the last child. Nothing has
    /// changed when it throws.
    XmlNode AppendElement(const QString& name, std::initializer_list<NamedValue> attributes = {});

    /// The node as XML, without any layout of its own.
    QString ToText() const;

private:
    _xmlNode* m_node = nullptr;
};

/// An XML document as a tree. One that could not be read is empty, and its nodes are empty handles.
///
/// What is not well-formed, breaks the namespace rules, has a document type declaration or exceeds the bounds of
/// `ReadXml` is not read. Nothing outside of the text or the file is ever read.
class XmlDocument
{
public:
    XmlDocument();

    /// From a text in memory; an encoding that it declares says nothing about it and is ignored.
    static XmlDocument FromText(const QString& text);

    /// From the bytes of a file, in the encoding that their byte-order mark or their declaration names, or UTF-8.
    static XmlDocument FromBytes(const QByteArray& bytes);

    /// From a file; empty also when the file cannot be read.
    static XmlDocument FromFile(const QString& fileName);

    /// A new document of one element. Throws `Error` when that is no name.
    static XmlDocument WithRoot(const QString& name);

    explicit operator bool() const { return m_document != nullptr; }

    XmlNode Root() const;
    XmlNode Node() const; ///< the document itself, the parent of the root
    std::vector<XmlNode> Select(const QString& xpath) const { return Node().Select(xpath); }
    XmlNode SelectOne(const QString& xpath) const { return Node().SelectOne(xpath); }

    /// The whole document as XML. It has an XML declaration when it was read from one that had, without the name of an
    /// encoding, which would say nothing about a text.
    QString ToText() const;

private:
    using Owned = std::unique_ptr<_xmlDoc, void (*)(_xmlDoc*)>;

    explicit XmlDocument(Owned document) : m_document(std::move(document)) {}

    Owned m_document;
};

} // namespace schedules
