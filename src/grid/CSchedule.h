#pragma once

#include "common/UserInterface.h"
#include "grid/ScheduleLayout.h"
#include "grid/SchedulePrint.h"
#include "grid/ScheduleTable.h"
#include "spread/Sheet.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace schedules {

/// The schedule grid engine: fills a sheet from the XML of a schedule table, lays it out and prints it.
///
/// A failed load shows a message, leaves the sheet as it was after the reset, and returns false. Unexpected failures
/// are told to the shared reporter; nothing is thrown. Whoever shows such a message may delete the sheet meanwhile, and
/// the engine with it.
class CSchedule
{
public:
    explicit CSchedule(UserInterface& userInterface);

    /// The sheet that the engine fills. A sheet that is attached is initialised; the caller keeps owning it.
    Sheet* Sched() const { return m_sched; }
    void SetSched(Sheet* sheet);

    /// Brings the sheet into its empty starting state, 500 by 500 cells of plain text.
    bool SchedInitialize();

    /// Loads a schedule; a sheet that holds data is reset first.
    bool LoadScheduleData(const QString& xml);

    /// Loads the table of the selector view, without a reset. Every check box then reads "1" or "0".
    bool LoadSelectionData(const QString& xml, bool selectAllTags);

    /// Shrinks the sheet to the cells that hold data.
    void SchedAutoSize();

    /// Sizes the row-header column to its text.
    void AutoSizeRowHeader();

    /// Makes a column as wide as one of its texts needs, never narrower; to be called after each edit.
    void WidenToCell(Cell cell);

    /// Lays the sheet out after a change of `ShowUnits`. Its contents are gone then; the caller fills it again.
    void SchedShowUnits();

    /// The rows of the last loaded table that head a group: those whose first `TH` is bold, in order; the header row is
    /// not one. They are numbers of `TR` elements, which are rows of the sheet as long as the data are not transposed.
    /// None once the sheet has been reset; a load that fails changes nothing else about them.
    const std::vector<int>& GroupHeadings() const { return m_groupHeadings; }

    /// "(ft)" for the unit "ft", nothing for no unit.
    static QString GetUnitLabel(const QString& unit);

    // 1: the lines of the table are shown as columns, and what its rows set acts on columns; see
    // docs/schedule-xml.md for where each attribute lands.
    int SchedOrientation() const { return m_schedOrientation; }
    void SetSchedOrientation(int orientation) { m_schedOrientation = orientation; }

    /// Whether cell and row index are swapped when cells are placed.
    bool TransposeData() const { return m_transposeData; }
    void SetTransposeData(bool transpose) { m_transposeData = transpose; }

    int DefaultColWidth() const { return m_defaultColWidth; }
    void SetDefaultColWidth(int twips) { m_defaultColWidth = twips; }

    bool ShowUnits() const { return m_showUnits; }
    void SetShowUnits(bool show) { m_showUnits = show; }

    bool ShowGroupHeaders() const { return m_showGroupHeaders; }
    void SetShowGroupHeaders(bool show) { m_showGroupHeaders = show; }

    /// Whether there are edited values that have not been saved.
    bool TagDataDirty() const { return m_tagDataDirty; }
    void SetTagDataDirty(bool dirty) { m_tagDataDirty = dirty; }

    QString TemplateName() const { return m_templateName; }
    void SetTemplateName(const QString& name) { m_templateName = name; }

    int TemplateID() const { return m_templateID; }
    void SetTemplateID(int id) { m_templateID = id; }

    /// The localised default title as long as nobody has set one.
    QString Title() const;
    void SetTitle(const QString& title) { m_title = title; }

    /// What prints; none until it is set. The caller keeps owning it.
    void SetSheetPrinter(ISheetPrinter* printer) { m_printer = printer; }

    /// The clock that page headers are dated by; at first the computer's.
    using Clock = PageClock;
    void SetClock(Clock clock) { m_clock = std::move(clock); }

    /// Prints the whole sheet. A failure is told to the shared reporter, and nothing is printed then.
    void PrintSched();

    /// The header of every page in print codes (see spread/PrintCodes.h): the title as it stands, centred, and, with
    /// `PrintHeader`, date and time at the right. The title's own slashes are not protected in it, unlike in what
    /// `PrintSched` hands to the printer.
    QString GetPageHeader() const;

    /// Whether all columns are fitted on a page, by turning it and scaling down.
    bool SmartPrint() const { return m_print.smart; }
    void SetSmartPrint(bool smart) { m_print.smart = smart; }

    bool PrintHeader() const { return m_print.header; }
    void SetPrintHeader(bool print) { m_print.header = print; }

    bool PrintBorder() const { return m_print.border; }
    void SetPrintBorder(bool print) { m_print.border = print; }

    bool PrintGrid() const { return m_print.grid; }
    void SetPrintGrid(bool print) { m_print.grid = print; }

    bool PrintColHeaders() const { return m_print.colHeaders; }
    void SetPrintColHeaders(bool print) { m_print.colHeaders = print; }

    bool PrintRowHeaders() const { return m_print.rowHeaders; }
    void SetPrintRowHeaders(bool print) { m_print.rowHeaders = print; }

    /// Whether headers are shaded.
    bool PrintShadows() const { return m_print.shadows; }
    void SetPrintShadows(bool print) { m_print.shadows = print; }

    // These are kept for whoever set them; printing does not consult them.
    QString PrintHeaderText() const { return m_print.headerText; }
    void SetPrintHeaderText(const QString& text) { m_print.headerText = text; }

    QString PrintFooterText() const { return m_print.footerText; }
    void SetPrintFooterText(const QString& text) { m_print.footerText = text; }

    bool PrintFooter() const { return m_print.footer; }
    void SetPrintFooter(bool print) { m_print.footer = print; }

    QString PrintJobName() const { return m_print.jobName; }
    void SetPrintJobName(const QString& name) { m_print.jobName = name; }

    QString PrintAbortMsg() const { return m_print.abortMsg; }
    void SetPrintAbortMsg(const QString& text) { m_print.abortMsg = text; }

    std::int16_t PrintPageStart() const { return m_print.pageStart; }
    void SetPrintPageStart(std::int16_t page) { m_print.pageStart = page; }

    std::int16_t PrintPageEnd() const { return m_print.pageEnd; }
    void SetPrintPageEnd(std::int16_t page) { m_print.pageEnd = page; }

    std::int16_t PrintType() const { return m_print.type; }
    void SetPrintType(std::int16_t type) { m_print.type = type; }

    bool PrintProjectProperties() const { return m_print.projectProperties; }
    void SetPrintProjectProperties(bool print) { m_print.projectProperties = print; }

private:
    /// Throws `Error` when no sheet is attached.
    void RequireSheet() const;

    bool LoadXmlIntoSpreadSheet(const QString& xml);
    TableFault TakeTable(const QString& xml);
    void PlaceTable(ScheduleTable table);
    void ApplyRow(const RowAttributes& row);
    void ApplyHeader(int index, const HeaderAttributes& header);
    void ResetFilledSheet();
    void ResetSheet();
    void TickAll(bool ticked);

    void SetGridSize(int columns, int rows);

    bool SchedFormatData(int firstColumn);
    bool RowsActOnColumns() const { return m_schedOrientation == 1; }
    ScheduleLayout Layout() const { return {*m_sched, RowsActOnColumns()}; }

    ISheetPrinter& RequiredPrinter() const;

    class BusyPointer;

    UserInterface& m_userInterface;
    std::shared_ptr<BusyPointer> m_busyPointer; ///< shown while a table is loaded
    Sheet* m_sched = nullptr;
    int m_schedOrientation = 0;
    bool m_transposeData = false;
    int m_defaultColWidth = 1440;
    bool m_showUnits = true;
    bool m_showGroupHeaders = false;
    bool m_tagDataDirty = false;
    QString m_templateName = QStringLiteral("(Default)");
    int m_templateID = 0;
    std::optional<QString> m_title;
    std::vector<int> m_groupHeadings;

    ISheetPrinter* m_printer = nullptr;
    Clock m_clock = [] { return QDateTime::currentDateTime(); };
    PrintChoices m_print;
};

} // namespace schedules
