#pragma once

#include <cstdint>

namespace schedules {

/// The records of a workbook that are written here, by their names in the published format.
enum class RecordType : std::uint16_t
{
    EndOfFile = 0x000A, ///< EOF there, which is a macro here
    CalcCount = 0x000C,
    CalcMode = 0x000D,
    CalcPrecision = 0x000E,
    CalcRefMode = 0x000F,
    CalcDelta = 0x0010,
    CalcIter = 0x0011,
    Protect = 0x0012,
    Password = 0x0013,
    Header = 0x0014,
    Footer = 0x0015,
    WinProtect = 0x0019,
    Selection = 0x001D,
    Date1904 = 0x0022,
    PrintRowCol = 0x002A,
    PrintGrid = 0x002B,
    Font = 0x0031,
    Continue = 0x003C,
    Window1 = 0x003D,
    Backup = 0x0040,
    Pane = 0x0041,
    CodePage = 0x0042,
    DefColWidth = 0x0055,
    WriteAccess = 0x005C,
    CalcSaveRecalc = 0x005F,
    ColInfo = 0x007D,
    Guts = 0x0080,
    WsBool = 0x0081,
    GridSet = 0x0082,
    HCenter = 0x0083,
    VCenter = 0x0084,
    BoundSheet8 = 0x0085,
    Country = 0x008C,
    HideObj = 0x008D,
    Palette = 0x0092,
    BuiltInFnGroupCount = 0x009C,
    Setup = 0x00A1,
    Mms = 0x00C1,
    DBCell = 0x00D7,
    BookBool = 0x00DA,
    XF = 0x00E0,
    InterfaceHdr = 0x00E1,
    InterfaceEnd = 0x00E2,
    SST = 0x00FC,
    LabelSst = 0x00FD,
    ExtSST = 0x00FF,
    RRTabId = 0x013D,
    UsesELFs = 0x0160,
    DSF = 0x0161,
    Prot4Rev = 0x01AF,
    RefreshAll = 0x01B7,
    Prot4RevPass = 0x01BC,
    Dimensions = 0x0200,
    Blank = 0x0201,
    Number = 0x0203,
    RowRecord = 0x0208, ///< Row there, which is a type here
    Index = 0x020B,
    DefaultRowHeight = 0x0225,
    Window2 = 0x023E,
    Style = 0x0293,
    Format = 0x041E,
    BOF = 0x0809,
};

} // namespace schedules
