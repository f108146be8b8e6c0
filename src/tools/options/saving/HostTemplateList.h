#pragma once

#include "common/XmlDocument.h"
#include "tools/options/saving/SaveError.h"

namespace schedules {

/// The host's list of templates as a document that is changed and sent back. What it holds beside the entries, and
/// attributes of theirs that nobody here knows, stay where they are.
class HostTemplateList
{
public:
    /// From what the host replied, blanks at its ends aside. Throws `Error` (`kSaveError`, 1062) when that is no XML.
    explicit HostTemplateList(const QString& reply);

    /// Whether there is an entry for exactly this file name: an element "Template" in no namespace, at any depth.
    bool Has(const QString& fileName) const { return static_cast<bool>(Entry(fileName)); }

    /// An entry for that file name, the first if there are several, gets the file name written again and nothing else;
    /// else a new one, neither the default of a category nor read-only, comes last under the root. Throws `Error`, and
    /// nothing has changed, when a text is none that XML can hold.
    void Put(const QString& fileName, const QString& name, const QString& pdsg);

    /// The whole list.
    QString ToText() const { return m_document.ToText(); }

private:
    XmlNode Entry(const QString& fileName) const;

    XmlDocument m_document;
};

} // namespace schedules
