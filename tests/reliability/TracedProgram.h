#pragma once

#include <QMap>
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

    /// Which files it has changed, or tried to, outside of "out", "temp" and `others`.
    std::string Changed(const QStringList& others = {}) const;

    /// Which files it has read that are neither its own, nor the system's, nor in the folder.
    std::string ReadElsewhere() const;

    /// The calls in which a name occurs, anywhere.
    std::string Mentioning(const QString& name) const;

    /// The calls that have opened a file whose name ends so.
    std::string Opened(const QString& name) const;

    /// What is below "temp", "home" and "runtime" afterwards.
    std::string LeftBehind() const;

private:
    template <class Condition>
    std::string Lines(Condition&& condition) const;
    bool IsBelow(const QString& path, const QStringList& folders) const;

    QTemporaryDir m_folder;
    std::vector<SystemCall> m_calls;
};

} // namespace schedules::testing
