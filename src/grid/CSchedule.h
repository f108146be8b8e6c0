#pragma once

#include "common/UserInterface.h"
#include "grid/ScheduleTable.h"
#include "spread/PrintSetup.h"
#include "spread/Sheet.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <functional>
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

    /// The clock that page headers are dated by; the computer's until another one is set.
    using Clock = std::function<QDateTime()>;
    void SetClock(Clock clock) { m_clock = std::move(clock); }

    /// Prints the whole sheet. A failure is told to the shared reporter, and nothing is printed then.
    void PrintSched();

    /// The header of every page in print codes (see spread/PrintCodes.h): the title as it stands, centred, and, with
    /// `PrintHeader`, date and time at the right. The title's own slashes are not protected in it, unlike in what
    /// `PrintSched` hands to the printer.
    QString GetPageHeader() const;

    /// Whether all columns are fitted on a page, by turning it and scaling down.
    bool SmartPrint() const { return m_smartPrint; }
    void SetSmartPrint(bool smart) { m_smartPrint = smart; }

    bool PrintHeader() const { return m_printHeader; }
    void SetPrintHeader(bool print) { m_printHeader = print; }

    bool PrintBorder() const { return m_printBorder; }
    void SetPrintBorder(bool print) { m_printBorder = print; }

    bool PrintGrid() const { return m_printGrid; }
    void SetPrintGrid(bool print) { m_printGrid = print; }

    bool PrintColHeaders() const { return m_printColHeaders; }
    void SetPrintColHeaders(bool print) { m_printColHeaders = print; }

    bool PrintRowHeaders() const { return m_printRowHeaders; }
    void SetPrintRowHeaders(bool print) { m_printRowHeaders = print; }

    /// Whether headers are shaded.
    bool PrintShadows() const { return m_printShadows; }
    void SetPrintShadows(bool print) { m_printShadows = print; }

    // These are kept for whoever set them; printing does not consult them.
    QString PrintHeaderText() const { return m_printHeaderText; }
    void SetPrintHeaderText(const QString& text) { m_printHeaderText = text; }

    QString PrintFooterText() const { return m_printFooterText; }
    void SetPrintFooterText(const QString& text) { m_printFooterText = text; }

    bool PrintFooter() const { return m_printFooter; }
    void SetPrintFooter(bool print) { m_printFooter = print; }

    QString PrintJobName() const { return m_printJobName; }
    void SetPrintJobName(const QString& name) { m_printJobName = name; }

    QString PrintAbortMsg() const { return m_printAbortMsg; }
    void SetPrintAbortMsg(const QString& text) { m_printAbortMsg = text; }

    std::int16_t PrintPageStart() const { return m_printPageStart; }
    void SetPrintPageStart(std::int16_t page) { m_printPageStart = page; }

    std::int16_t PrintPageEnd() const { return m_printPageEnd; }
    void SetPrintPageEnd(std::int16_t page) { m_printPageEnd = page; }

    std::int16_t PrintType() const { return m_printType; }
    void SetPrintType(std::int16_t type) { m_printType = type; }

    bool PrintProjectProperties() const { return m_printProjectProperties; }
    void SetPrintProjectProperties(bool print) { m_printProjectProperties = print; }

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
    void TickCheckBoxes(bool ticked);

    void SetGridSize(int columns, int rows);
    void HideRow(Row row);
    void HideColumn(Column column);

    bool SchedFormatData(int firstColumn);
    void AlignDataColumns(int firstColumn);
    void SizeColumns(int firstColumn);
    void StyleHeaderRow(VerticalAlignment alignment);
    void StyleRowHeaders();
    bool HasData() const;
    bool RowsActOnColumns() const { return m_schedOrientation == 1; }
    int WidthOf(Column column) const;

    ISheetPrinter& RequiredPrinter() const;
    void SetPrintOptions(ISheetPrinter& printer) const;
    /// `written` is how a text stands among the codes.
    QString HeaderWith(QString (*written)(QString text)) const;

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
    int m_columnMargin = 0;
    int m_headerRowMinimumHeight = 0;

    ISheetPrinter* m_printer = nullptr;
    Clock m_clock = [] { return QDateTime::currentDateTime(); };
    bool m_smartPrint = false;
    bool m_printHeader = true;
    bool m_printBorder = true;
    bool m_printGrid = true;
    bool m_printColHeaders = true;
    bool m_printRowHeaders = true;
    bool m_printShadows = false;
    QString m_printHeaderText;
    QString m_printFooterText;
    bool m_printFooter = true;
    QString m_printJobName;
    QString m_printAbortMsg;
    std::int16_t m_printPageStart = 0;
    std::int16_t m_printPageEnd = 0;
    std::int16_t m_printType = 0;
    bool m_printProjectProperties = false;
};

} // namespace schedules
