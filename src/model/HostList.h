#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace schedules {

/// An entry of a list that the host supplies: the attributes of an element, without those in namespaces.
class HostListEntry
{
public:
    void Add(const QString& name, const QString& value) { m_attributes.push_back({name, value}); }

    /// Names are compared exactly; blanks at the ends of the value are dropped. Nothing when there is no such
    /// attribute.
    std::optional<QString> Attribute(const char* name) const;

    /// The same; empty when there is no such attribute.
    QString Text(const char* name) const { return Attribute(name).value_or(QString()); }

private:
    struct Pair
    {
        QString name;
        QString value;
    };

    std::vector<Pair> m_attributes;
};

/// The entries of a list: every element of that name in no namespace, at any depth, in document order. Nothing when the
/// text is no XML, or out of the bounds of `ReadXml`.
std::optional<std::vector<HostListEntry>> ReadHostList(const QString& xml, const char* element);

} // namespace schedules
