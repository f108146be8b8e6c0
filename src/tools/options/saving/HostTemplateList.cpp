#include "tools/options/saving/HostTemplateList.h"

#include "common/Blanks.h"

#include <algorithm>

namespace schedules {

namespace {

const QString kFileName = QStringLiteral("filename");

} // namespace

HostTemplateList::HostTemplateList(const QString& reply) : m_document(XmlDocument::FromText(TrimmedOfBlanks(reply)))
{
    if (!m_document)
        throw SaveError(kTemplateListUnreadable);
}

void HostTemplateList::Put(const QString& fileName, const QString& name, const QString& pdsg)
{
    if (XmlNode known = Entry(fileName)) {
        known.SetAttribute(kFileName, fileName);
        return;
    }
    const QString no = QStringLiteral("False");
    m_document.Root().AppendElement(QStringLiteral("Template"), {{QStringLiteral("pdsg"), pdsg},
                                                                 {QStringLiteral("name"), name},
                                                                 {kFileName, fileName},
                                                                 {QStringLiteral("defaultforcategory"), no},
                                                                 {QStringLiteral("readonly"), no}});
}

XmlNode HostTemplateList::Entry(const QString& fileName) const
{
    const auto entries = m_document.Select(QStringLiteral("//Template[@filename]"));
    const auto found =
        std::ranges::find_if(entries, [&](const XmlNode& entry) { return entry.Attribute(kFileName) == fileName; });
    return found == entries.end() ? XmlNode() : *found;
}

} // namespace schedules
