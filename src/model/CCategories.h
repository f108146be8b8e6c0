#pragma once

#include "common/KeyedCollection.h"
#include "common/UserInterface.h"
#include "model/CCategory.h"

namespace schedules {

class Inside;

/// The categories that the host knows, found by name without regard to case.
class CCategories
{
public:
    /// Failures are reported to the user, who must outlive it.
    explicit CCategories(UserInterface& userInterface) : m_userInterface(userInterface) {}
    Q_DISABLE_COPY_MOVE(CCategories)

    /// Nothing when there is none.
    std::shared_ptr<CCategory> Item(const MemberKey& key) const noexcept;
    int Count() const { return m_categories.Count(); }

    /// By name as `Item`, but throws when there is not the memory to look.
    std::shared_ptr<CCategory> Find(const QString& name, Inside) const;

    /// All of them in order, as they are now.
    std::vector<std::shared_ptr<CCategory>> NewEnum() const { return m_categories.Members(); }

    /// Adds a category behind the others. One that is known gets the display name, and nothing else. Nothing for a
    /// blank name.
    std::shared_ptr<CCategory> Add(const QString& name, const QString& displayName, const QString& pdsg);

    void Clear();

    /// Leaves every category where it is, and always did: `Clear` is the way to empty the collection.
    void Remove(const MemberKey& key);

    /// Adds what each element "Category" of the host's list tells by its attributes "name", "displayname" and "pdsg";
    /// what is known stays. False when the text is no XML; also when something else fails, which is reported.
    bool CreateObjects(const QString& categoryList);

private:
    UserInterface& m_userInterface;
    KeyedCollection<CCategory> m_categories;
};

} // namespace schedules
