#include "tools/schedule/bar/ControlsSetup.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/bar/ViewTools.h"
#include "tools/schedule/layout/ViewLayout.h"
#include "tools/schedule/output/ExportFormats.h"

#include <QMenu>

#include <utility>

namespace schedules {

ControlsSetup::ControlsSetup(const ViewLink& link, const ViewSettings& settings, const ViewLayout& layout)
    : m_link(link), m_settings(settings), m_layout(layout)
{
}

void ControlsSetup::InitializeControls()
{
    if (std::exchange(m_initialised, true))
        return;
    m_link.host.TraceProcedure(__func__);
    for (const ViewTool& tool : ViewToolsOf(m_settings))
        AddToolbarButton(tool.key, tool.image, tool.caption, tool.tooltip);
    BuildExportMenu();
    m_layout.toolbar->setAccessibleName(ComponentText(QT_TRANSLATE_NOOP("Schedules", "Toolbar")));
    m_layout.message->Show(m_settings.message);
}

void ControlsSetup::AddToolbarButton(const char* key, int image, const char* caption, int tooltip)
{
    m_link.host.TellingUser(__func__, [&] {
        m_layout.toolbar->AddViewTool({m_link.host.TypeName(), QLatin1String(key), image, QLatin1String(caption),
                                       LoadResString(tooltip), true, ToolKind::Button});
        m_layout.toolbar->updateGeometry();
        m_layout.toolbar->update();
    });
}

void ControlsSetup::BuildExportMenu()
{
    auto* menu = new QMenu(LoadResString(kExportCaption), &m_link.view);
    menu->setObjectName(QStringLiteral("mnuExport"));
    for (const ExportFormat& format : ExportFormats()) {
        if (format.entry)
            m_layout.toolbar->AddEntry(menu, QLatin1String(format.entry), LoadResString(format.caption));
    }
    m_layout.toolbar->AddDropDown(QStringLiteral("btnExport"), menu);
}

} // namespace schedules
