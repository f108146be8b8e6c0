#include "workbook/Globals.h"

#include "workbook/EncodedText.h"

namespace schedules {

namespace {

constexpr Word kVersion = 0x0600;
constexpr Word kGlobals = 0x0005;
constexpr Word kBuild = 0x0DBB;
constexpr Word kBuildYear = 1996;
constexpr DWord kLowestVersion = 6;
constexpr Word kUnicode = 1200;
constexpr Word kBuiltInFunctionGroups = 14;
constexpr Word kScrollBarsAndTabs = 0x0038;
constexpr Word kTabsShare = 600; ///< of the window's width, in thousandths

constexpr std::string_view kWriter = "Schedules";
constexpr std::size_t kWriterSize = 112;

void WriteOrigin(RecordWriter& records)
{
    records.Write(RecordType::BOF, kVersion, kGlobals, kBuild, kBuildYear, DWord{1}, kLowestVersion);
    records.Write(RecordType::InterfaceHdr, kUnicode);
    records.Write(RecordType::Mms, Word{0});
    records.Write(RecordType::InterfaceEnd);
    std::string writer;
    Append(writer, static_cast<Word>(kWriter.size()), Byte{0});
    writer += kWriter;
    writer.resize(kWriterSize, ' ');
    records.WriteData(RecordType::WriteAccess, writer);
    records.Write(RecordType::CodePage, kUnicode);
    records.Write(RecordType::DSF, Word{0});
    records.Write(RecordType::RRTabId, Word{1});
    records.Write(RecordType::BuiltInFnGroupCount, kBuiltInFunctionGroups);
}

void WriteProtection(RecordWriter& records)
{
    for (const RecordType type : {RecordType::WinProtect, RecordType::Protect, RecordType::Password,
                                  RecordType::Prot4Rev, RecordType::Prot4RevPass})
        records.Write(type, Word{0});
}

void WriteOptions(RecordWriter& records)
{
    records.Write(RecordType::Window1, Word{0}, Word{0}, Word{0x4000}, Word{0x2000}, kScrollBarsAndTabs, Word{0},
                  Word{0}, Word{1}, kTabsShare);
    records.Write(RecordType::Backup, Word{0});
    records.Write(RecordType::HideObj, Word{0});
    records.Write(RecordType::Date1904, Word{0});
    records.Write(RecordType::CalcPrecision, Word{1});
    records.Write(RecordType::RefreshAll, Word{0});
    records.Write(RecordType::BookBool, Word{0});
}

std::uint32_t WriteBoundSheet(RecordWriter& records, const QString& sheetName)
{
    const std::uint32_t position = records.Position() + RecordWriter::kHeaderSize;
    const EncodedText name = Encoded(sheetName.toStdString());
    std::string data;
    Append(data, DWord{0}, Byte{0}, Byte{0}, static_cast<Byte>(name.Units()), Byte{name.wide});
    records.WriteData(RecordType::BoundSheet8, data += name.bytes);
    return position;
}

} // namespace

std::uint32_t WriteGlobals(RecordWriter& records, const SheetPlan& plan, const QString& sheetName)
{
    WriteOrigin(records);
    WriteProtection(records);
    WriteOptions(records);
    plan.Formats().WriteTo(records);
    records.Write(RecordType::UsesELFs, Word{0});
    const std::uint32_t position = WriteBoundSheet(records, sheetName);
    records.Write(RecordType::Country, Word{1}, Word{1});
    plan.Strings().WriteTo(records);
    records.Write(RecordType::EndOfFile);
    return position;
}

} // namespace schedules
