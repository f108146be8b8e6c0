#include "tools/schedule/ScheduleTools.h"

#include "common/CResEnum.h"
#include "common/StringNumbers.h"

namespace schedules {

namespace {

constexpr ScheduleTool kTranspose{"btnTranspose", "Transpose", 5, kTransposeTooltip};
constexpr ScheduleTool kSave{"btnSaveTag", "Save", 6, kSaveTooltip};
constexpr ScheduleTool kPrint{"btnPrint", "Print", 1, kPrintTooltip};
constexpr ScheduleTool kPrintSelections{"btnPrint", kPrint.caption, 1, kPrintSelectionsTooltip};
constexpr ScheduleTool kExport{"btnExport", "Export", 2, kExportCaption};
constexpr ScheduleTool kCustomize{"btnCustomize", "Customize", 3, kCustomizeTooltip};
constexpr ScheduleTool kHelp{"btnHelp", "Help", 4, kHelpTooltip};

} // namespace

std::vector<ScheduleTool> ScheduleToolsOf(int viewType, bool printsSelections)
{
    switch (static_cast<CResEnum::eViewType>(viewType)) {
    case CResEnum::eViewType::vtSCHEDULE_VIEW:
        return {kTranspose, kSave, kPrint, kExport, kCustomize, kHelp};
    case CResEnum::eViewType::vtSELECTOR_VIEW:
        if (printsSelections)
            return {kTranspose, kPrintSelections, kExport, kHelp};
        return {kTranspose, kExport, kHelp};
    }
    return {};
}

} // namespace schedules
