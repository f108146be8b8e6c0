// The schedule of a project's category, written and read back by other programs.

#include "host/ProjectProgram.h"

#include <QFileInfo>
#include <QImage>

namespace schedules::host::testing {

namespace {

struct SchedhostSchedule : ProjectProgram
{
    Outcome Pumps(const QStringList& options) { return On("schedule", QStringList{"--category", "PUMPS"} + options); }

    /// What the schedule looks like as text.
    std::string Csv(const QStringList& options = {})
    {
        ExpectDone(Pumps(options + QStringList{"--csv", "out.csv"}), "out.csv\n");
        return QString::fromUtf8(Read(QStringLiteral("out.csv"))).remove(u'\r').toStdString();
    }

    /// Why it is not written.
    std::string Refused(const QStringList& options)
    {
        const std::string why = Failed("schedule", options + QStringList{"--csv", "out.csv"});
        EXPECT_FALSE(QFileInfo::exists(Path("out.csv")));
        return why;
    }

    QString SheetName(const QStringList& options = {})
    {
        ExpectDone(Pumps(options + QStringList{"--xls", "out.xls"}), "out.xls\n");
        return QString::fromUtf8(WorkbookText("out.xls")).section(u'\n', 0, 0);
    }
};

} // namespace

TEST_F(SchedhostSchedule, HasAllTagsInTheTemplateOfTheCategory)
{
    EXPECT_EQ(Csv(), ",P-1,P-2\nFlow,12,13\nHead,48,49\n");
}

TEST_F(SchedhostSchedule, HasTheTagsThatAreNamedInTheirOrder)
{
    EXPECT_EQ(Csv({"--tags", "p-2,P-1"}), ",P-2,P-1\nFlow,13,12\nHead,49,48\n");
    EXPECT_EQ(Csv({"--tags", "P-2"}), ",P-2\nFlow,13\nHead,49\n");
}

TEST_F(SchedhostSchedule, FollowsTheTemplateThatIsNamedByFileOrByName)
{
    const char* converted = ",P-1,P-2\nFlow (gpm),52.8,57.2\n";
    EXPECT_EQ(Csv({"--template", "pumpsus.xml"}), converted);
    EXPECT_EQ(Csv({"--template", "US Units"}), converted);
    EXPECT_EQ(Stored()->CurrentTemplate("PUMPS"), "Both.xml") << "which stays the one in use";
}

TEST_F(SchedhostSchedule, FollowsTheTemplateThatTheProjectUses)
{
    Stored()->SetCurrentTemplate("PUMPS", "PumpsUS.xml");
    EXPECT_EQ(Csv(), ",P-1,P-2\nFlow (gpm),52.8,57.2\n");
}

TEST_F(SchedhostSchedule, IsTransposed)
{
    EXPECT_EQ(Csv({"--transpose"}), ",Flow,Head\nP-1,12,48\nP-2,13,49\n");
}

TEST_F(SchedhostSchedule, IsWrittenIntoEveryFormatAtOnce)
{
    ExpectDone(Pumps({"--html", "o.html", "--csv", "o.csv", "--xlsx", "o.xlsx", "--xls", "o.xls", "--pdf", "o.pdf",
                      "--png", "o.png", "--title", "Pumps"}),
               "o.png\no.pdf\no.xls\no.xlsx\no.csv\no.html\n");
    EXPECT_EQ(Read("o.csv"), ",P-1,P-2\r\nFlow,12,13\r\nHead,48,49\r\n");
    EXPECT_EQ(WorkbookText("o.xls"), "Equipment schedule\n|P-1|P-2\nFlow|12.0|13.0\nHead|48.0|49.0\n");
    EXPECT_EQ(OfficeOpenXmlValues("o.xlsx"), (QStringList{"P-1", "P-2", "Flow", "12", "13", "Head", "48", "49"}));
    EXPECT_TRUE(PdfWords("o.pdf").join(u' ').contains("P-1 P-2 Flow 12 13 Head 48 49"));
    for (const char* text : {">P-1<", ">P-2<", ">Flow<", ">12<", ">13<", ">Head<", ">48<", ">49<"})
        EXPECT_EQ(Read("o.html").count(text), 1) << text;
    EXPECT_FALSE(QImage(Path("o.png"), "png").isNull());
}

TEST_F(SchedhostSchedule, ATitleMakesThePictureHigher)
{
    ExpectDone(Pumps({"--png", "plain.png"}), "plain.png\n");
    ExpectDone(Pumps({"--png", "titled.png", "--title", "Pumps"}), "titled.png\n");
    EXPECT_GT(QImage(Path("titled.png")).height(), QImage(Path("plain.png")).height());
}

TEST_F(SchedhostSchedule, SpeaksTheProjectsLanguageUnlessOneIsNamed)
{
    EXPECT_EQ(SheetName(), "Equipment schedule");
    Stored()->SetLanguage("de");
    EXPECT_EQ(SheetName(), "Ausrüstungsliste");
    EXPECT_EQ(SheetName({"--language", "en"}), "Equipment schedule");
}

TEST_F(SchedhostSchedule, MessagesGoToTheirFile)
{
    ExpectDone(Pumps({"--csv", "out.csv", "--messages", "log"}), "out.csv\n");
    EXPECT_EQ(Read("log").count("InitializeSchedule"), 1);
}

TEST_F(SchedhostSchedule, WhatIsNotThereIsTold)
{
    EXPECT_EQ(Refused({"--category", "VALVES"}), "there is no category VALVES");
    EXPECT_EQ(Refused({"--category", "PUMPS", "--tags", "P-1,P-9"}), "there is no tag P-9 in the category PUMPS");
    EXPECT_EQ(Refused({"--category", "PUMPS", "--tags", "F-1"}), "there is no tag F-1 in the category PUMPS");
    EXPECT_EQ(Refused({"--category", "PUMPS", "--template", "Valves"}), "there is no template Valves");
    EXPECT_EQ(Refused({"--category", "FANS"}), "the category FANS has no template");
}

TEST_F(SchedhostSchedule, TheProjectIsNotWrittenOver)
{
    EXPECT_EQ(Failed("schedule", {"--category", "PUMPS", "--csv", kProject}),
              "small.schedules is the file to be read, and is not written");
    EXPECT_EQ(StoredText("P-1", kFlow), "12");
}

TEST_F(SchedhostSchedule, AnOutputThatCannotBeWrittenIsTold)
{
    EXPECT_EQ(Failed("schedule", {"--category", "PUMPS", "--csv", "no/out.csv"}),
              "cannot write no/out.csv: No such file or directory");
}

} // namespace schedules::host::testing
