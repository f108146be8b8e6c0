#pragma once

#include "common/MemberId.h"
#include "model/CCategory.h"
#include "model/CGroups.h"
#include "model/CProperties.h"

namespace schedules {

class Inside;
struct TemplateText;

/// A schedule template: which groups of data items a schedule shows, in which order, under which names. Its properties
/// and groups are what its file holds; everything else is known from the host's list.
class CTemplate
{
public:
    /// Failures are reported to the user, who must outlive it.
    explicit CTemplate(UserInterface& userInterface);
    Q_DISABLE_COPY_MOVE(CTemplate)

    /// What the catalogue gave it.
    int ID() const { return m_id.Value(); }
    void SetID(int id, Inside);
    const MemberId& Identity() const { return m_id; }

    /// Blanks at the ends are dropped.
    const QString& Name() const { return m_name; }
    void SetName(const QString& name);

    /// The folder of the file, with "\" or "/" between folders and at its end or not.
    const QString& FilePath() const { return m_filePath; }
    void SetFilePath(const QString& filePath) { m_filePath = filePath; }

    /// The name of the file in that folder. One that leads out of it, by ".." or by a link, is that of no file.
    const QString& Filename() const { return m_filename; }
    void SetFilename(const QString& filename) { m_filename = filename; }

    /// A text of the host's own.
    const QString& Pdsg() const { return m_pdsg; }
    void SetPdsg(const QString& pdsg) { m_pdsg = pdsg; }

    /// Whether the file must not be changed or deleted.
    bool Protected() const { return m_protected; }
    void SetProtected(bool isProtected) { m_protected = isProtected; }

    /// Whether the host's list calls it the default of its category.
    bool DefaultForCategory() const { return m_defaultForCategory; }
    void SetDefaultForCategory(bool isDefault) { m_defaultForCategory = isDefault; }

    /// Whether it has edits that are not saved.
    bool Dirty() const { return m_dirty; }
    void SetDirty(bool dirty, Inside);

    /// Nothing when the host's list names none that is known.
    std::shared_ptr<CCategory> Category() const { return m_category; }
    void SetCategory(const std::shared_ptr<CCategory>& category) { m_category = category; }

    CGroups& Groups() { return m_groups; }
    const CGroups& Groups() const { return m_groups; }

    CProperties& Properties() { return m_properties; }
    const CProperties& Properties() const { return m_properties; }

    /// The template as the text of an XML element "Template", without a declaration or any layout: properties as
    /// attributes, groups, items and their locations as elements. Empty, and reported, when a name or a value is none
    /// that XML can hold.
    QString ObjectToXML() const;

    /// Reads the file. False when there is no file or it is not well-formed, and then nothing has changed; when there
    /// is no element "Template" in it, and then the template is empty; when a group or an item has no name, which is
    /// reported, and then what stands before it has been read.
    bool XMLToObject();

    /// Whether the last reading came only as far as something without a name: writing the template would lose what
    /// stands behind it.
    bool ReadInPart() const { return m_readInPart; }

    /// Whether there is a file now that holds something else than what was read.
    bool FileDiffers() const;

    /// Whether it has been read and belongs to no category by its own account: its file says none. What the host's list
    /// calls a default does not count here.
    bool IsDefaultTemplate() const;

    /// The place of the first group with that number, counted from 1; -1 when there is none.
    int GroupIndexFromID(int groupId) const;

private:
    void Read(const TemplateText& text);

    UserInterface& m_userInterface;
    bool m_loaded = false;
    bool m_readInPart = false;
    std::optional<std::size_t> m_fileMark;
    MemberId m_id;
    QString m_name;
    QString m_filePath;
    QString m_filename;
    QString m_pdsg;
    bool m_protected = false;
    bool m_defaultForCategory = false;
    bool m_dirty = false;
    std::shared_ptr<CCategory> m_category;
    CGroups m_groups;
    CProperties m_properties;
};

} // namespace schedules
