#include "tools/schedule/output/ExportFormats.h"

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "spread/VisibleCopy.h"
#include "webpage/WebPage.h"
#include "workbook/CsvWriter.h"
#include "workbook/Workbook.h"
#include "workbook/XlsxWriter.h"

#include <algorithm>
#include <array>

namespace schedules {

namespace {

// What the dialogs are asked for: prompts before overwriting, an existing path, and the like.
constexpr int kWorkbookDialogFlags = 2140166;
constexpr int kWebPageDialogFlags = 2054;

const Sheet& VisiblePart(const ExportSource& source)
{
    CopyVisible(source.shown, source.copy);
    return source.copy;
}

void WriteXls(const ExportSource& source, const QString& fileName)
{
    WriteWorkbook(VisiblePart(source), LoadResString(kDefaultTitle), fileName, source.direction);
}

void WriteXlsxFile(const ExportSource& source, const QString& fileName)
{
    WriteXlsx(VisiblePart(source), LoadResString(kDefaultTitle), fileName, source.direction);
}

void WriteCsvFile(const ExportSource& source, const QString& fileName)
{
    WriteCsv(VisiblePart(source), fileName);
}

void WriteHtml(const ExportSource& source, const QString& fileName)
{
    const QString language = ResourceLanguage();
    const PageInfo page{source.title, language.isEmpty() ? source.locale.bcp47Name() : language,
                        ComponentText("checked"), ComponentText("unchecked"), source.direction};
    WriteWebPage(source.shown, page, fileName);
}

constexpr std::array kFormats{
    ExportFormat{.name = "xls",
                 .write = WriteXls,
                 .entry = "mnuExportExcel",
                 .caption = static_cast<int>(CResEnum::ectlSchedule::mnuExportExcel_CAPTION),
                 .title = kExportWorkbookTitle,
                 .proposed = "Schedule",
                 .suffix = ".xls",
                 .filter = "Microsoft Excel 97 Workbook(*.xls)|*.xls",
                 .flags = kWorkbookDialogFlags},
    ExportFormat{.name = "html",
                 .write = WriteHtml,
                 .entry = "mnuExportHtml",
                 .caption = static_cast<int>(CResEnum::ectlSchedule::mnuExportHtml_CAPTION),
                 .title = kExportCaption,
                 .proposed = "*.htm",
                 .suffix = ".htm",
                 .filter = "Web Page (*.htm; *.html)|*.htm",
                 .flags = kWebPageDialogFlags,
                 .tellsResult = true},
    ExportFormat{.name = "xlsx", .write = WriteXlsxFile},
    ExportFormat{.name = "csv", .write = WriteCsvFile},
};

} // namespace

FileQuestion ExportFormat::Question() const
{
    return {LoadResString(title), QLatin1String(proposed), QLatin1String(suffix), {QLatin1String(filter)}, flags};
}

std::span<const ExportFormat> ExportFormats()
{
    return kFormats;
}

const ExportFormat* FormatOfName(const QString& name)
{
    const auto found =
        std::ranges::find_if(kFormats, [&](const ExportFormat& format) { return name == QLatin1String(format.name); });
    return found != kFormats.end() ? &*found : nullptr;
}

const ExportFormat* FormatOfEntry(const QString& entry)
{
    const auto found = std::ranges::find_if(
        kFormats, [&](const ExportFormat& format) { return format.entry && entry == QLatin1String(format.entry); });
    return found != kFormats.end() ? &*found : nullptr;
}

} // namespace schedules
