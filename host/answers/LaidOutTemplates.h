#pragma once

#include "host/project/ProjectTypes.h"

#include <QHash>

namespace schedules::host {

class Project;

/// The texts of files by their names.
using FileTexts = QList<QPair<QString, QString>>;

/// A project's templates laid out as files, which is how the options editor reads and writes them. All of them lie
/// directly in the folder: a name by which the project leads elsewhere throws `HostError`.
///
/// The folder remembers what was laid out, so that a file that the editor has changed is told from one that another
/// client has changed in the project. What was saved into the folder and never reached the project, since the program
/// was killed in between, is not lost: it becomes an orphan, a file that the list does not name.
class LaidOutTemplates
{
public:
    /// Makes the folder when there is none. The project must outlive this object. Throws `HostError`, as all methods
    /// do.
    LaidOutTemplates(Project& project, const QString& folder);

    /// The absolute path.
    const QString& Path() const { return m_path; }

    /// Makes the folder what the project says: writes what is missing or was changed there, takes away what was removed
    /// there. A changed file that the project does not have is kept, under a name of its own.
    void LayOut();

    /// The files that the project names and that have been changed here since they were laid out, and those of the
    /// `expected` names that the project does not have yet.
    FileTexts Changed(const QStringList& expected) const;

    /// Those texts of the project that another client has stored since they were laid out here, where other ones have
    /// been made here. Both lists name the same files.
    FileTexts ChangedElsewhere(const FileTexts& stored, const FileTexts& changed) const;

    /// The files here are what the project has: it was given them just now.
    void Remember(const FileTexts& texts);

    /// The files that no entry of the list names.
    QStringList Orphans() const;

    /// Enters an orphan in the list, by what its root says. Throws as well when it is no template, or its name is
    /// taken.
    void Adopt(const QString& fileName);

private:
    QString FileOf(const QString& fileName) const;
    QString MemoryFile() const;
    QString TextOf(const QString& fileName) const;
    bool IsChanged(const QString& fileName, const QString& text) const;
    void KeepAside(const QString& fileName);
    void RemoveGone(const QStringList& listed);
    void ReadMemory();
    void WriteMemory() const;

    Project& m_project;
    QString m_path;
    QHash<QString, QString> m_laidOut; ///< checksums of what was laid out, by folded names of files
};

/// The folder for a project's templates among the user's own files. Throws `HostError` when the project's identifier
/// cannot name one.
QString OwnTemplateFolder(const Project& project);

/// A name of a file for a template, whose own name may have what no file's name can.
QString FileNameFor(const QString& templateName);

/// What the list says of a template that only its file knows: name, display name and category from its root. Throws
/// `HostError` for a text that is no template.
TemplateEntry EntryOfFile(const QString& fileName, const QString& text);

} // namespace schedules::host
