#include "tools/schedule/bar/ViewTools.h"

#include "common/StringNumbers.h"
#include "tools/schedule/ViewSettings.h"

#include <algorithm>
#include <array>

namespace schedules {

namespace {

constexpr ViewTool kTranspose{ViewCommand::Transpose, "btnTranspose", "Transpose", 5, kTransposeTooltip};
constexpr ViewTool kSave{ViewCommand::Save, "btnSaveTag", "Save", 6, kSaveTooltip};
constexpr ViewTool kPrint{ViewCommand::Print, "btnPrint", "Print", 1, kPrintTooltip};
constexpr ViewTool kPrintSelections{ViewCommand::Print, "btnPrint", kPrint.caption, 1, kPrintSelectionsTooltip};
constexpr ViewTool kExport{ViewCommand::Export, "btnExport", "Export", 2, kExportCaption};
constexpr ViewTool kCustomize{ViewCommand::Customize, "btnCustomize", "Customize", 3, kCustomizeTooltip};
constexpr ViewTool kHelp{ViewCommand::Help, "btnHelp", "Help", 4, kHelpTooltip};

constexpr std::array kOfSchedule{kTranspose, kSave, kPrint, kExport, kCustomize, kHelp};
constexpr std::array kOfSelector{kTranspose, kPrintSelections, kExport, kHelp};

constexpr std::array kImages{"print", "export", "customize", "help", "transpose", "save"};

} // namespace

std::optional<ViewCommand> CommandOfKey(const QString& key)
{
    const auto tool =
        std::ranges::find_if(kOfSchedule, [&](const ViewTool& each) { return key == QLatin1String(each.key); });
    return tool != kOfSchedule.end() ? std::optional(tool->command) : std::nullopt;
}

std::vector<ViewTool> ViewToolsOf(const ViewSettings& settings)
{
    if (settings.IsScheduleView())
        return {kOfSchedule.begin(), kOfSchedule.end()};
    if (!settings.IsSelectorView())
        return {};
    std::vector<ViewTool> tools(kOfSelector.begin(), kOfSelector.end());
    if (!settings.printsSelections)
        std::erase_if(tools, [](const ViewTool& tool) { return tool.command == ViewCommand::Print; });
    return tools;
}

QString ImageFile(int image)
{
    if (image < 1 || image > std::ssize(kImages))
        return {};
    return QStringLiteral(":/schedules/icons/%1.svg").arg(QLatin1String(kImages.at(image - 1)));
}

} // namespace schedules
