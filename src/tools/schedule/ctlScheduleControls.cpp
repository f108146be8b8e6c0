// The controls around the grid: tool bar, command buttons and the host's message.

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/bar/ScheduleTools.h"
#include "tools/schedule/ctlSchedule.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>

namespace schedules {

void ctlSchedule::InitializeControls()
{
    if (m_initialised)
        return;
    TraceProcedure(__func__);
    m_initialised = true;
    for (const auto& tool : ScheduleToolsOf(m_viewType, m_printsSelections)) {
        AddToolbarButton(QLatin1String(tool.key), tool.image, QLatin1String(tool.caption), LoadResString(tool.tooltip),
                         true);
    }
    BuildExportMenu();
    m_toolbar->setAccessibleName(ComponentText(QT_TRANSLATE_NOOP("Schedules", "Toolbar")));
    ShowCustomMessage();
}

void ctlSchedule::AddToolbarButton(const QString& key, int image, const QString& caption, const QString& tooltip,
                                   bool visible)
{
    TellingUser(__func__, [&] {
        m_toolbar->AddViewTool({TypeName(), key, image, caption, tooltip, visible, ToolKind::Button});
        m_toolbar->updateGeometry();
        m_toolbar->update();
    });
}

void ctlSchedule::BuildExportMenu()
{
    m_exportMenu = new QMenu(LoadResString(kExportCaption), this);
    m_exportMenu->setObjectName(QStringLiteral("mnuExport"));
    AddExport("mnuExportExcel", static_cast<int>(CResEnum::ectlSchedule::mnuExportExcel_CAPTION));
    AddExport("mnuExportHtml", static_cast<int>(CResEnum::ectlSchedule::mnuExportHtml_CAPTION));
    m_toolbar->AddDropDown(QStringLiteral("btnExport"), m_exportMenu);
}

void ctlSchedule::AddExport(const char* name, int caption)
{
    m_toolbar->AddEntry(m_exportMenu, QLatin1String(name), LoadResString(caption));
}

int ctlSchedule::GetUniqueToolID()
{
    int identifier = 0;
    TellingHost(__func__, [&] { identifier = m_toolIdentifiers.Next(); });
    return identifier;
}

void ctlSchedule::AddMenu(const QString& sOwner, const QString& sKey, int lImage, const QString& sText,
                          const QString& sToolTipText, bool bVisible, int lToolType)
{
    TellingUser(__func__, [&] {
        // The view's own tools may not be there yet, but their keys are taken.
        if (IsScheduleTool(sKey))
            return;
        m_toolbar->AddHostTool({sOwner, sKey, lImage, sText, sToolTipText, bVisible, static_cast<ToolKind>(lToolType)});
    });
}

void ctlSchedule::ShowCommandButtons()
{
    constexpr auto kCancelCaption = static_cast<int>(CResEnum::ectlSchedule::cmdCancel_CAPTION);
    m_continue->setVisible(IsSelectorView());
    m_cancel->setText(LoadResString(IsSelectorView() ? kCancelCaption : kCloseCaption));
}

void ctlSchedule::ShowCustomMessage()
{
    m_customMessage->Show({m_customText, m_customBold, m_customItalic, m_customAlignment});
}

void ctlSchedule::SetTagDataDirty(bool dirty)
{
    m_engine.SetTagDataDirty(dirty);
    FollowTagDataDirty();
}

void ctlSchedule::FollowTagDataDirty()
{
    if (QAction* save = m_toolbar->Tool(QStringLiteral("btnSaveTag")))
        save->setEnabled(m_engine.TagDataDirty());
}

} // namespace schedules
