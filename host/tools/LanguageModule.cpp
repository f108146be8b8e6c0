#include "host/tools/LanguageModule.h"

#include "framework/IComponentFactory.h"
#include "host/base/DataFolder.h"

#include <QDir>

namespace schedules::host {

LanguageModule::LanguageModule(const QString& language)
    : m_handle(ComponentFactory().OpenResourceModule(
          QDir(DataFolder(QStringLiteral("languages"))).filePath(QStringLiteral("Schedules_%1.qm").arg(language))))
{
}

LanguageModule::~LanguageModule()
{
    ComponentFactory().UseResourceModule(0);
    if (m_handle > 0)
        ComponentFactory().CloseResourceModule(m_handle);
}

QString LanguageModule::Reply() const
{
    return m_handle > 0 ? QString::number(m_handle) : QString();
}

void LanguageModule::Use() const
{
    ComponentFactory().UseResourceModule(m_handle);
}

} // namespace schedules::host
