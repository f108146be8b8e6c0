// What the engine tells its printer, and the header that it builds.

#include "ScheduleFixture.h"
#include "common/Error.h"
#include "spread/PrintCodes.h"

#include <QLocale>

#include <vector>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// Writes down what it is told, a line each.
class RecordingPrinter : public ISheetPrinter
{
public:
    void SetOption(PrintOption option, bool print) override
    {
        static constexpr std::array kNames{"border", "grid", "shading", "column headers", "row headers"};
        Note(QStringLiteral("%1 %2").arg(kNames[static_cast<std::size_t>(option)], print ? "on" : "off"));
    }

    void SetHeader(const QString& codes) override
    {
        header = codes;
        Note(codes.isEmpty() ? QStringLiteral("no header") : QStringLiteral("header"));
    }

    void SetMargin(PageEdge edge, int twips) override
    {
        static constexpr std::array kNames{"left", "right", "top", "bottom"};
        Note(QStringLiteral("%1 %2").arg(kNames[static_cast<std::size_t>(edge)]).arg(twips));
    }

    void Print(const Sheet& printed, PrintAction action) override
    {
        if (failing)
            throw Error(kUnexpectedError, QStringLiteral("No paper"));
        sheet = &printed;
        Note(action == PrintAction::Smart ? QStringLiteral("smart print") : QStringLiteral("print"));
    }

    std::string told;
    QString header;
    const Sheet* sheet = nullptr;
    bool failing = false;

private:
    void Note(const QString& line) { told += (told.empty() ? "" : "\n") + line.toStdString(); }
};

struct CSchedulePrint : ScheduleFixture
{
    CSchedulePrint()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        engine.SetSheetPrinter(&printer);
        engine.SetClock([this] { return readings++ == 0 ? first : second; });
        engine.SetTitle(QStringLiteral("Pumps"));
    }
    ~CSchedulePrint() override { QLocale::setDefault(locale); }

    const QLocale locale;
    QDateTime first{QDate(2024, 12, 31), QTime(23, 59)};
    QDateTime second{QDate(2025, 1, 1), QTime(0, 5)};
    int readings = 0;
    RecordingPrinter printer;
};

const QString kTitleLine = QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/cPumps/n");
const QString kMomentLines = QStringLiteral("/fn\"Arial\"/fz\"8\"/fb0/l/r12/31/24/n/l/r12:05 AM/n");
const QString kPrintedMomentLines = QStringLiteral("/fn\"Arial\"/fz\"8\"/fb0/l/r") +
                                    ProtectedFromCodes(QStringLiteral("12/31/24")) + QStringLiteral("/n/l/r12:05 AM/n");

} // namespace

TEST_F(CSchedulePrint, PropertiesStartAtTheirDefaults)
{
    const CSchedule fresh(user);
    EXPECT_FALSE(fresh.SmartPrint());
    EXPECT_EQ(fresh.PrintHeaderText(), QString());
    EXPECT_EQ(fresh.PrintFooterText(), QString());
    EXPECT_TRUE(fresh.PrintHeader());
    EXPECT_TRUE(fresh.PrintFooter());
    EXPECT_EQ(fresh.PrintJobName(), QString());
    EXPECT_EQ(fresh.PrintAbortMsg(), QString());
    EXPECT_TRUE(fresh.PrintBorder());
    EXPECT_TRUE(fresh.PrintGrid());
    EXPECT_TRUE(fresh.PrintColHeaders());
    EXPECT_TRUE(fresh.PrintRowHeaders());
    EXPECT_FALSE(fresh.PrintShadows());
    EXPECT_EQ(fresh.PrintPageStart(), 0);
    EXPECT_EQ(fresh.PrintPageEnd(), 0);
    EXPECT_EQ(fresh.PrintType(), 0);
    EXPECT_FALSE(fresh.PrintProjectProperties());
}

TEST_F(CSchedulePrint, PropertiesKeepWhatIsSet)
{
    engine.SetSmartPrint(true);
    engine.SetPrintHeaderText(QStringLiteral("head"));
    engine.SetPrintFooterText(QStringLiteral("foot"));
    engine.SetPrintHeader(false);
    engine.SetPrintFooter(false);
    engine.SetPrintJobName(QStringLiteral("job"));
    engine.SetPrintAbortMsg(QStringLiteral("stop"));
    engine.SetPrintBorder(false);
    engine.SetPrintGrid(false);
    engine.SetPrintColHeaders(false);
    engine.SetPrintRowHeaders(false);
    engine.SetPrintShadows(true);
    engine.SetPrintPageStart(2);
    engine.SetPrintPageEnd(32767);
    engine.SetPrintType(3);
    engine.SetPrintProjectProperties(true);
    engine.PrintSched();
    EXPECT_TRUE(engine.SmartPrint());
    EXPECT_EQ(engine.PrintHeaderText(), QStringLiteral("head"));
    EXPECT_EQ(engine.PrintFooterText(), QStringLiteral("foot"));
    EXPECT_FALSE(engine.PrintHeader());
    EXPECT_FALSE(engine.PrintFooter());
    EXPECT_EQ(engine.PrintJobName(), QStringLiteral("job"));
    EXPECT_EQ(engine.PrintAbortMsg(), QStringLiteral("stop"));
    EXPECT_FALSE(engine.PrintBorder());
    EXPECT_FALSE(engine.PrintGrid());
    EXPECT_FALSE(engine.PrintColHeaders());
    EXPECT_FALSE(engine.PrintRowHeaders());
    EXPECT_TRUE(engine.PrintShadows());
    EXPECT_EQ(engine.PrintPageStart(), 2);
    EXPECT_EQ(engine.PrintPageEnd(), 32767);
    EXPECT_EQ(engine.PrintType(), 3);
    EXPECT_TRUE(engine.PrintProjectProperties());
}

TEST_F(CSchedulePrint, TheHeaderIsTitleDateAndTime)
{
    EXPECT_EQ(engine.GetPageHeader(), kTitleLine + kMomentLines);
}

TEST_F(CSchedulePrint, DateAndTimeAreTwoReadingsOfTheClock)
{
    engine.GetPageHeader();
    EXPECT_EQ(readings, 2);
}

TEST_F(CSchedulePrint, DateAndTimeAreInTheShortFormsOfTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    engine.SetTitle({});
    EXPECT_EQ(engine.GetPageHeader(), QStringLiteral("/fn\"Arial\"/fz\"8\"/fb0/l/r31.12.24/n/l/r00:05/n"));
}

TEST_F(CSchedulePrint, WithoutAHeaderTheTitleIsStillReturned)
{
    engine.SetPrintHeader(false);
    EXPECT_EQ(engine.GetPageHeader(), kTitleLine);
    EXPECT_EQ(readings, 0);
}

TEST_F(CSchedulePrint, WithNeitherTitleNorHeaderThereIsNothing)
{
    engine.SetPrintHeader(false);
    engine.SetTitle({});
    EXPECT_EQ(engine.GetPageHeader(), QString());
}

TEST_F(CSchedulePrint, ATitleOfBlanksGivesNoTitleLine)
{
    engine.SetTitle(QStringLiteral(" \t "));
    EXPECT_EQ(engine.GetPageHeader(), kMomentLines);
}

TEST_F(CSchedulePrint, TheTitleIsInsertedUntrimmed)
{
    engine.SetPrintHeader(false);
    engine.SetTitle(QStringLiteral("  Pumps "));
    EXPECT_EQ(engine.GetPageHeader(), QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/c  Pumps /n"));
}

TEST_F(CSchedulePrint, TheHeaderBearsTheTitleAsItStands)
{
    engine.SetPrintHeader(false);
    engine.SetTitle(QStringLiteral("Pumps/newly added"));
    EXPECT_EQ(engine.GetPageHeader(), QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/cPumps/newly added/n"));
}

TEST_F(CSchedulePrint, ProjectPropertiesAddNothing)
{
    engine.SetPrintProjectProperties(true);
    EXPECT_EQ(engine.GetPageHeader(), kTitleLine + kMomentLines);
}

TEST_F(CSchedulePrint, ThePrinterIsToldOptionsThenHeaderThenMargins)
{
    engine.PrintSched();
    EXPECT_EQ(printer.told, "border on\ngrid on\nshading off\ncolumn headers on\nrow headers on\n"
                            "header\nleft 720\nright 720\ntop 720\nbottom 720\nprint");
    EXPECT_EQ(printer.sheet, &sheet);
}

TEST_F(CSchedulePrint, EachOptionGoesToThePrinterByItself)
{
    engine.SetPrintBorder(false);
    engine.SetPrintShadows(true);
    engine.SetPrintRowHeaders(false);
    engine.PrintSched();
    EXPECT_TRUE(printer.told.starts_with("border off\ngrid on\nshading on\ncolumn headers on\nrow headers off\n"));
    printer.told.clear();
    engine.SetPrintGrid(false);
    engine.SetPrintColHeaders(false);
    engine.PrintSched();
    EXPECT_TRUE(printer.told.starts_with("border off\ngrid off\nshading on\ncolumn headers off\nrow headers off\n"));
}

TEST_F(CSchedulePrint, WithoutAHeaderNoneIsPrinted)
{
    engine.SetPrintHeader(false);
    engine.PrintSched();
    EXPECT_EQ(printer.told, "border on\ngrid on\nshading off\ncolumn headers on\nrow headers on\n"
                            "no header\nleft 720\nright 720\ntop 720\nbottom 720\nprint");
}

TEST_F(CSchedulePrint, SmartPrintTakesTheSmartAction)
{
    engine.SetSmartPrint(true);
    engine.PrintSched();
    EXPECT_TRUE(printer.told.ends_with("\nsmart print"));
}

TEST_F(CSchedulePrint, ThePrinterGetsTheHeader)
{
    engine.PrintSched();
    EXPECT_EQ(printer.header, kTitleLine + kPrintedMomentLines);
}

TEST_F(CSchedulePrint, ATitlesSlashesDoNotActAsCodesOnPaper)
{
    engine.SetTitle(QStringLiteral("Pumps/newly added"));
    engine.PrintSched();
    const std::vector<HeaderLine> lines = ReadPrintCodes(printer.header);
    ASSERT_EQ(lines.size(), 3u);
    const HeaderLook title{.font = QStringLiteral("Arial"), .size = 12, .bold = true};
    const HeaderLook moment{.font = QStringLiteral("Arial"), .size = 8, .bold = false};
    EXPECT_EQ(lines[0].Part(HeaderPart::Center), (std::vector{HeaderRun{QStringLiteral("Pumps/newly added"), title}}));
    EXPECT_EQ(lines[1].Part(HeaderPart::Right), (std::vector{HeaderRun{QStringLiteral("12/31/24"), moment}}));
    EXPECT_EQ(lines[2].Part(HeaderPart::Right), (std::vector{HeaderRun{QStringLiteral("12:05 AM"), moment}}));
    EXPECT_TRUE(lines[1].Part(HeaderPart::Left).empty());
}

TEST_F(CSchedulePrint, ADatesSlashesDoNotActAsCodesOnPaper)
{
    engine.PrintSched();
    EXPECT_FALSE(printer.header.contains(QStringLiteral("12/31/24")));
    EXPECT_TRUE(printer.header.contains(ProtectedFromCodes(QStringLiteral("12/31/24"))));
}

TEST_F(CSchedulePrint, ThePageHeaderBearsTheDateAsItStands)
{
    EXPECT_TRUE(engine.GetPageHeader().contains(QStringLiteral("/l/r12/31/24/n")));
}

TEST_F(CSchedulePrint, AFailureIsReportedAndThePropertiesStay)
{
    printer.failing = true;
    engine.SetSmartPrint(true);
    engine.PrintSched();
    ASSERT_EQ(user.boxes.size(), 1u);
    EXPECT_EQ(user.boxes.front().text, QStringLiteral("No paper"));
    EXPECT_EQ(Sources(), "Schedules.CSchedule.PrintSched");
    EXPECT_TRUE(engine.SmartPrint());
    EXPECT_EQ(printer.sheet, nullptr);
}

TEST_F(CSchedulePrint, AFailingClockPrintsNothing)
{
    engine.SetClock([]() -> QDateTime { throw Error(kUnexpectedError, QStringLiteral("No clock")); });
    engine.PrintSched();
    EXPECT_EQ(Sources(), "Schedules.CSchedule.PrintSched");
    EXPECT_EQ(printer.sheet, nullptr);
}

TEST_F(CSchedulePrint, WithoutAPrinterTheUserIsTold)
{
    engine.SetSheetPrinter(nullptr);
    engine.PrintSched();
    EXPECT_EQ(Sources(), "Schedules.CSchedule.PrintSched");
}

TEST_F(CSchedulePrint, WithoutASheetTheUserIsTold)
{
    engine.SetSched(nullptr);
    engine.PrintSched();
    EXPECT_EQ(Sources(), "Schedules.CSchedule.PrintSched");
    EXPECT_EQ(printer.told, "");
}
