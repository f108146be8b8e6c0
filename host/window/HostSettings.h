#pragma once

#include <QByteArray>
#include <QStringList>

namespace schedules::host {

/// What the host remembers for its user from one run to the next. What cannot be written is forgotten without a word.
class HostSettings
{
public:
    /// The addresses of projects, the latest first; at most eight.
    QStringList RecentProjects() const;
    void AddRecentProject(const QString& address);

    /// Size and place of the window, and of what is docked in it.
    QByteArray Geometry() const;
    QByteArray Layout() const;
    void SetWindow(const QByteArray& geometry, const QByteArray& layout);

    /// The colours, by their name on the command line.
    QString Palette() const;
    void SetPalette(const QString& name);
};

} // namespace schedules::host
