#include "workbook/Workbook.h"

#include "common/FileReplacement.h"
#include "workbook/Globals.h"
#include "workbook/OleContainer.h"
#include "workbook/SheetName.h"
#include "workbook/SheetRecords.h"

namespace schedules {

namespace {

void WritePlanned(const SheetPlan& plan, const QString& sheetName, WorkbookStream& stream)
{
    RecordWriter records(stream);
    const std::uint32_t boundSheet = WriteGlobals(records, plan, LegalSheetName(sheetName));
    std::string start;
    Append(start, records.Position());
    SheetRecords(records, plan).Write();
    records.Patch(boundSheet, start);
}

} // namespace

void WriteWorkbook(const Sheet& sheet, const QString& sheetName, const QString& fileName, Qt::LayoutDirection direction)
{
    const SheetPlan plan(sheet, direction);
    ReplaceFile(fileName, [&](QFileDevice& file) {
        OleContainer container(file);
        WritePlanned(plan, sheetName, container);
        container.Close();
    });
}

void WriteRecords(const Sheet& sheet, const QString& sheetName, WorkbookStream& stream, Qt::LayoutDirection direction)
{
    WritePlanned(SheetPlan(sheet, direction), sheetName, stream);
}

} // namespace schedules
