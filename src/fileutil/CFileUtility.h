#pragma once

#include "fileutil/DirectorySearch.h"

#include <QString>

#include <optional>

namespace schedules {

/// Finds the files that match a pattern, walks the matches one by one and tells what the current one is. One object
/// serves one search at a time.
///
/// The last part of a pattern may have "*" for any characters and "?" for one character; "*.*" means every name, as "*"
/// does. Matches come in the order of their names, files and folders alike, "." and ".." among them where the wildcards
/// match them. Without wildcards the name is looked up, so the file system decides about upper and lower case;
/// wildcards are compared exactly. "\" and "/" both separate folders.
///
/// A name that is no valid UTF-8 is a text, too: each byte that cannot be decoded is a lone surrogate, U+DC00 plus the
/// byte, and so is a backslash that is part of a name (U+DC5C). Handed in again, in a path or in a pattern, it means
/// that byte, so `DeleteFile(GetFilePath())` deletes the very file. Names are told without the blanks around them; a
/// file whose own name begins or ends with blanks is not found again by what is told.
///
/// A host that has loaded the component at run time gets one from its factory; the methods are virtual for its sake.
///
/// Nothing throws and nothing is reported. What fails gives false and leaves the current match as it is; before there
/// was any, texts are empty and numbers zero. The match outlives the end of the search.
class CFileUtility
{
public:
    CFileUtility() = default;
    virtual ~CFileUtility();
    Q_DISABLE_COPY_MOVE(CFileUtility)

    /// Closes an open search and begins one; an empty pattern means "*.*". True when there is a first match.
    virtual bool FindFile(const QString& strName);

    /// Moves to the next match; false when none is left or no search is open.
    virtual bool FindNextFile();

    /// Deletes a file; of a link the link itself. False when it is missing, read-only or a folder.
    virtual bool DeleteFile(const QString& strfilename);

    /// Ends the search. Destruction does it, too.
    virtual void FindClose();

    /// The attributes of the current match, as bits of `FileAttribute`.
    virtual unsigned GetAttributes() const;
    virtual bool IsReadOnly() const;
    virtual bool IsHidden() const;
    virtual bool IsSystem() const;
    virtual bool IsDirectory() const;
    virtual bool IsArchived() const;
    virtual bool IsNormal() const;
    virtual bool IsTemporary() const;
    virtual bool IsCompressed() const;

    /// Whether the match is "." or "..".
    virtual bool IsDots() const;

    /// Whether attributes and mask have a bit in common.
    virtual bool MatchesMask(unsigned dwMask) const;

    /// Local time as "2024, 03, 31 14:05:09": year, month, day, hour, minute and second.
    virtual QString GetLastWriteTime() const;
    virtual QString GetLastAccessTime() const;
    virtual QString GetCreationDate() const;

    /// The halves of the same as a count of 100 nanoseconds since the start of 1601, UTC.
    virtual int GetLastWriteTimeHigh() const;
    virtual int GetLastWriteTimeLow() const;
    virtual int GetLastAccessTimeHigh() const;
    virtual int GetLastAccessTimeLow() const;
    virtual int GetCreationDateHigh() const;
    virtual int GetCreationDateLow() const;

    /// The folder part of the latest pattern as it was written, with its separator, without blanks around it.
    virtual QString GetRoot() const;

    /// "file://" and the absolute path, with "/" for each separator, not percent-encoded. A relative pattern is taken
    /// from the folder that was current when its search began.
    virtual QString GetFileURL() const;

    /// The name up to its first "."; the whole name when there is none.
    virtual QString GetFileTitle() const;

    /// The folder part of the pattern that found the match, as it was written, and the name.
    virtual QString GetFilePath() const;

    virtual QString GetFileName() const;

    /// The same as the long forms, since files have no short names here.
    virtual QString GetShortPath() const;
    virtual QString GetShortName() const;

    /// The lower 32 bits of the size in bytes, as a signed number.
    virtual int GetLength() const;

    /// The size in bytes below 2 GiB. In general it is the upper half of the size times 2E+32 plus the lower half as a
    /// signed number: wrong from 2 GiB on, in the very way that callers know.
    virtual double GetLength64() const;

private:
    struct Folder
    {
        QString asWritten;
        QString absolute;
    };

    struct Match
    {
        Folder folder;
        FindRecord record;
    };

    void BeginSearch(const QString& pattern);
    bool MoveToNext();

    template <class Field>
    Field Told(Field FindRecord::*field) const
    {
        return m_match ? m_match->record.*field : Field();
    }
    QString TimeText(FileTime FindRecord::*time) const;

    Folder m_folder;
    std::optional<DirectorySearch> m_search;
    std::optional<Match> m_match;
};

} // namespace schedules
