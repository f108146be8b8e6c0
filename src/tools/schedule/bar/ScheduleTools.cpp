#include "tools/schedule/bar/ScheduleTools.h"

#include "common/CResEnum.h"
#include "common/StringNumbers.h"

#include <array>

namespace schedules {

namespace {

constexpr ScheduleTool kTranspose{"btnTranspose", "Transpose", 5, kTransposeTooltip};
constexpr ScheduleTool kSave{"btnSaveTag", "Save", 6, kSaveTooltip};
constexpr ScheduleTool kPrint{"btnPrint", "Print", 1, kPrintTooltip};
constexpr ScheduleTool kPrintSelections{"btnPrint", kPrint.caption, 1, kPrintSelectionsTooltip};
constexpr ScheduleTool kExport{"btnExport", "Export", 2, kExportCaption};
constexpr ScheduleTool kCustomize{"btnCustomize", "Customize", 3, kCustomizeTooltip};
constexpr ScheduleTool kHelp{"btnHelp", "Help", 4, kHelpTooltip};

constexpr std::array kImages{"print", "export", "customize", "help", "transpose", "save"};

} // namespace

bool IsScheduleTool(const QString& key)
{
    constexpr std::array kAll{kTranspose, kSave, kPrint, kExport, kCustomize, kHelp};
    return std::ranges::any_of(kAll, [&](const ScheduleTool& tool) { return key == QLatin1String(tool.key); });
}

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

QString ImageFile(int image)
{
    if (image < 1 || image > std::ssize(kImages))
        return {};
    return QStringLiteral(":/schedules/icons/%1.svg").arg(QLatin1String(kImages.at(image - 1)));
}

} // namespace schedules
