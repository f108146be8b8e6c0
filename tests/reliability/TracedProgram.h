#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace schedules::testing {

/// A call of the system: its name, the texts among its arguments, and the whole of it.
struct SystemCall
{
    QString name;
    QStringList paths;
    QString line;

    bool Succeeded() const;
    bool StartsThread() const;
    bool OpensForWriting() const;
    bool MakesUnnamed() const; ///< a file in a folder, which gets a name when it is complete
    bool ChangesFiles() const;
};

/// A program that is watched while it runs, in a folder with folders of its own: "in", "out", "temp", "home" and
/// "runtime".
class TracedProgram
{
public:
    TracedProgram();

    QString PathOf(const QString& name) const { return m_folder.filePath(name); }
    void Write(const QString& name, const QByteArray& content) const;

    /// Runs a program of the build, which must end with that code.
    void Run(const QString& program, const QStringList& arguments, int exitCode = 0);

    /// What it must not have done, a line for each call: talked to another machine, started a process.
    std::string Reached() const;

    /// How many threads it has started, beside those that the toolkit fills large areas with.
    int OwnThreads() const;

    /// What it has done to files, or tried to, that are neither `named` nor written beside one of these until it is
    /// complete, nor lie in "temp" or "runtime".
    std::string Changed(const QStringList& named) const;

    /// Which files it has read that are neither its own, nor the system's, nor in the folder.
    std::string ReadElsewhere() const;

    /// The calls in which a name occurs, anywhere.
    std::string Mentioning(const QString& name) const;

    /// The calls that have opened a file whose name ends so.
    std::string Opened(const QString& name) const;

    /// How the folder is another one afterwards, beside the files that are `named`: what has come into it (" + "), or
    /// has gone from it (" - "); and which of these files are not there (" ? ").
    std::string LeftBehind(const QStringList& named) const;

private:
    template <class Condition>
    std::string Lines(Condition&& condition) const;
    QString Whole(const QString& path) const;
    bool IsBelow(const QString& path, const QStringList& folders) const;
    bool IsBeside(const QString& path, const QString& named) const;
    QSet<QString> Listing() const;

    QTemporaryDir m_folder;
    QSet<QString> m_before;
    std::vector<SystemCall> m_calls;
};

} // namespace schedules::testing
