#pragma once

#include "common/KeyedCollection.h"
#include "common/UserInterface.h"
#include "model/CCategories.h"
#include "model/CTemplate.h"

namespace schedules {

class HostListEntry;
class Inside;

/// What the host's list tells of a template beside its category.
struct CatalogueEntry
{
    QString name;
    QString filename;
    QString pdsg;
    bool isProtected = false;
    bool isDefault = false;
};

/// The catalogue: every template of the host's list, in its order, with its file read and its category found.
class CTemplates
{
public:
    /// Failures are reported to the user, who must outlive it and every template of it.
    explicit CTemplates(UserInterface& userInterface);
    Q_DISABLE_COPY_MOVE(CTemplates)

    /// By name without regard to case, or by place; nothing when there is none.
    std::shared_ptr<CTemplate> Item(const MemberKey& key) const noexcept { return m_templates.Item(key); }
    int Count() const { return m_templates.Count(); }

    /// All of them in order, as they are now.
    std::vector<std::shared_ptr<CTemplate>> NewEnum() const { return m_templates.Members(); }

    void Clear();

    /// Removes what has the name that `Item` finds for the key; nothing happens when there is none.
    void Remove(const MemberKey& key);

    /// Makes the catalogue anew from the host's list of templates, its list of categories, and the folder of the
    /// templates. A template whose file is missing or cannot be read is listed, too, without groups.
    ///
    /// False when one of the three is blank, and then nothing has changed; when the list of templates is no XML, which
    /// is told (1062), and then the categories and the folder are the new ones; when a flag in it is neither true nor
    /// false, which is reported, and then the templates before it are there.
    bool CreateObjects(const QString& templateList, const QString& categoryList, const QString& folder);

    /// The number of the first template in that file, without regard to case; -1 when there is none.
    int TemplateIDFromFileName(const QString& fileName) const;

    /// The first with that number; nothing when there is none. After a removal, a new one may get a number that another
    /// has.
    std::shared_ptr<CTemplate> Template(int id) const noexcept { return m_templates.ItemById(id); }

    /// Reads a template's file and puts it behind the others, with the number of templates as its own. Nothing for a
    /// blank name, and for one that is there already.
    std::shared_ptr<CTemplate> AddTemplate(const CatalogueEntry& entry, const std::shared_ptr<CCategory>& category,
                                           Inside);

private:
    void AddListed(const std::vector<HostListEntry>& listed);
    std::shared_ptr<CTemplate> Made(const CatalogueEntry& entry, const std::shared_ptr<CCategory>& category) const;

    UserInterface& m_userInterface;
    QString m_folder;
    CCategories m_categories;
    KeyedCollection<CTemplate> m_templates;
};

} // namespace schedules
