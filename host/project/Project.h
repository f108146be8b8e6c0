#pragma once

#include "host/project/ProjectAddress.h"
#include "host/project/ProjectTypes.h"

#include <memory>

namespace schedules::host {

class Database;
class Transaction;

/// What a host knows: categories, tags, data items and their values, templates. All of it is in one database, a file or
/// one on a server, which several programs may have open at once; nothing is held here, so that each answer is of now.
///
/// Every change is one transaction: it is there as a whole when the call returns, or not at all when it throws. All
/// methods throw `HostError`, in one line for the user.
class Project
{
public:
    /// Opens a project, and brings one of an older schema up to date. Throws as well when there is none, when the file
    /// is no project or one of a newer program, when it is locked or cannot be written.
    static std::unique_ptr<Project> Open(const QString& address);

    /// Makes an empty project. Throws when there is one, or any other file of that name.
    static std::unique_ptr<Project> Create(const QString& address);

    ~Project();
    Q_DISABLE_COPY_MOVE(Project)

    /// While one lives, all that is read of the project is of one moment, whatever others store meanwhile, and costs a
    /// server fewer round trips. Nothing can be written then; further ones change nothing.
    class Moment
    {
    public:
        explicit Moment(const Project& project);
        ~Moment();
        Q_DISABLE_COPY_MOVE(Moment)

    private:
        std::unique_ptr<Transaction> m_transaction;
    };

    const ProjectAddress& Address() const { return m_address; }

    /// A text of its own that each project gets when it is made, and that may name a folder.
    QString Id() const;

    /// The language of the component's texts, a code like "en".
    QString Language() const;
    void SetLanguage(const QString& language);

    QList<Category> Categories() const;

    /// In the order in which they were put; of one category, or of all when none is named.
    QList<Tag> Tags(const QString& category = {}) const;
    QList<DataItem> Items() const;

    /// Adds those that are new and changes those that there are, in one transaction: categories, then tags and items,
    /// then values (whose versions are not looked at; a text that is stored already is left alone). An empty text takes
    /// the place of the one that is stored, as in `Save`: versions go on, so that conflicts are found. Throws when a
    /// tag's category, or a value's tag or item, is neither there nor among them, and when a name or location is empty.
    struct Content
    {
        QList<Category> categories;
        QList<Tag> tags;
        QList<DataItem> items;
        QList<ValueEdit> values;
    };
    void Put(const Content& content);

    /// What is stored for tags and items that are given by name and location. Those that are not there have no values.
    ValueTable Values(const QStringList& tags, const QStringList& items) const;

    /// Stores what can be stored, in one transaction. An edit whose text is stored already changes nothing, whatever
    /// its version; one whose version is not the stored one is a conflict. What is not stored counts as an empty text
    /// of version 0. Throws, storing nothing, when a tag or an item is not there, or the item may not be edited.
    SaveResult Save(const QList<ValueEdit>& edits);

    /// The list of templates, in its order.
    QList<TemplateEntry> Templates() const;

    /// The text of a template's file; empty when there is no such template.
    QString TemplateText(const QString& fileName) const;

    /// Changes the list from what somebody was shown to what he wants: entries that are new are added, entries that he
    /// changed are changed, entries that he no longer has are removed; what others have done to further entries since
    /// stays. An entry is known by its file name. What he changed or wrote is there afterwards, also when another one
    /// has removed it since. `texts` holds the texts of files by their names, which are stored as well; a template that
    /// has one need not be changed otherwise. Throws when two entries would have one name or one file name (which is so
    /// as well when another one has made a template of that file name since), and for the text of a file in no entry.
    /// `known` holds texts that he has seen; when another one is stored by now, `TextsChanged` is thrown.
    void MergeTemplates(const QList<TemplateEntry>& shown, const QList<TemplateEntry>& wanted,
                        const QList<QPair<QString, QString>>& texts, const QList<QPair<QString, QString>>& known = {});

    /// Takes a template from the list, and its text. A category that used it uses its default from then on, or none.
    /// Nothing happens when there is no such template.
    void RemoveTemplate(const QString& fileName);

    /// The file name of the template that the schedule of a category uses: the one that was set last, else the default
    /// of the category, else none.
    QString CurrentTemplate(const QString& category) const;
    /// Throws when there is no such template.
    void SetCurrentTemplate(const QString& category, const QString& fileName);

private:
    explicit Project(const ProjectAddress& address);

    ProjectAddress m_address;
    std::unique_ptr<Database> m_database;
};

} // namespace schedules::host
