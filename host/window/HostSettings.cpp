#include "host/window/HostSettings.h"

#include <QSettings>

namespace schedules::host {

namespace {

constexpr int kMostRecent = 8;

const QString kRecent = QStringLiteral("RecentProjects");
const QString kGeometry = QStringLiteral("WindowGeometry");
const QString kLayout = QStringLiteral("WindowLayout");
const QString kPalette = QStringLiteral("Palette");

class Settings : public QSettings
{
public:
    Settings() : QSettings(IniFormat, UserScope, QStringLiteral("schedhost"), QStringLiteral("window")) {}
};

} // namespace

QStringList HostSettings::RecentProjects() const
{
    return Settings().value(kRecent).toStringList();
}

void HostSettings::AddRecentProject(const QString& address)
{
    QStringList recent = RecentProjects();
    recent.removeAll(address);
    recent.prepend(address);
    Settings().setValue(kRecent, recent.mid(0, kMostRecent));
}

QByteArray HostSettings::Geometry() const
{
    return Settings().value(kGeometry).toByteArray();
}

QByteArray HostSettings::Layout() const
{
    return Settings().value(kLayout).toByteArray();
}

void HostSettings::SetWindow(const QByteArray& geometry, const QByteArray& layout)
{
    Settings settings;
    settings.setValue(kGeometry, geometry);
    settings.setValue(kLayout, layout);
}

QString HostSettings::Palette() const
{
    return Settings().value(kPalette).toString();
}

void HostSettings::SetPalette(const QString& name)
{
    Settings().setValue(kPalette, name);
}

} // namespace schedules::host
