#pragma once

#include "framework/Envelope.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

namespace schedules {

/// The number that a parameter carries for the type of its value.
enum class ParameterType
{
    Text = 2,
    Number = 3,
    Xml = 4,
    Flag = 8
};

struct Parameter
{
    ParameterType type = ParameterType::Text;
    QString name;
    QVariant value;

    bool operator==(const Parameter&) const = default;
};

/// The parameters of a message, in the order in which they were added.
class ParameterList
{
public:
    /// `bKeep` is part of the host's calling convention; tools pass true.
    void Add(ParameterType type, const QString& name, const QVariant& value, bool bKeep = true);

    const QList<Parameter>& Items() const { return m_items; }
    bool operator==(const ParameterList&) const = default;

private:
    QList<Parameter> m_items;
};

/// A named message. Codes that are not set are 0.
struct Message
{
    QString name;
    int firstCode = 0;
    int secondCode = 0;
    ParameterList parameters;

    /// The message as XML on one line: `<message name="" code1="" code2=""><param type="" name="">value</param>...`.
    /// White space other than blanks is written as character references; characters that XML cannot hold become
    /// U+FFFD. A truth value is written as "-1" or "0".
    QString Text() const;

    bool operator==(const Message&) const = default;
};

struct RequestMessage : Message
{
    static constexpr MessageKind kKind = MessageKind::Request;
};

struct EventMessage : Message
{
    static constexpr MessageKind kKind = MessageKind::Event;
};

/// Reads the text form back; nothing when the text is not a message. Values come back as text.
std::optional<Message> ParseMessage(const QString& text);

/// `text` with everything escaped that may not stand in an XML text or attribute value as it is.
QString EscapedXml(QStringView text);

} // namespace schedules
