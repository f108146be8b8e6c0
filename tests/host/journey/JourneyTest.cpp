// A working day: the real window on the sample plant, driven by mouse and keyboard, and what is left of it afterwards.

#include "JourneyFolder.h"
#include "OpenWindow.h"
#include "host/import/SampleProject.h"
#include "host/tools/HostedSchedule.h"

#include <QFileInfo>

namespace schedules::host::testing {

namespace {

class Journey : public JourneyFolder
{
protected:
    Journey()
    {
        FillWithSample(*Project::Create(m_address));
        Start();
    }

    const QString& Address() const { return m_address; }

    void Start()
    {
        m_open.reset();
        m_open.emplace(m_address);
    }

    WindowUser& User() { return m_open->User(); }
    ProjectWindow& Window() { return m_open->Window(); }
    std::string Shown(const char* tag, const char* item) { return User().Grid().Text(tag, item).toStdString(); }

    void PickPumps()
    {
        User().ChooseCategory("Pumps");
        User().Pick({"P-101A", "P-102B"});
    }

    /// What another process finds.
    std::string Stored(const char* tag, const char* item) const
    {
        return Schedhost({"get", m_address, tag, item}).out.trimmed().toStdString();
    }

    QString PdfText(const QString& name) const { return Run("pdftotext", {"-layout", name, "-"}).out; }

    /// The cells of a workbook, a line for each row.
    QString WorkbookText(const QString& name) const
    {
        return Run("/usr/bin/python3", {"-c",
                                        "import sys, xlrd\n"
                                        "for row in xlrd.open_workbook(sys.argv[1]).sheet_by_index(0).get_rows():\n"
                                        "    print('|'.join(str(cell.value) for cell in row))\n",
                                        name})
            .out;
    }

private:
    QString m_address = Path("plant.schedules");
    std::optional<OpenWindow> m_open;
};

const QString kNote = QStringLiteral("Проверен 检查, Ω 12");

} // namespace

TEST_F(Journey, FromPickingTagsToFindingEverythingAgain)
{
    PickPumps();
    EXPECT_TRUE(User().Grid().Drawn().starts_with(" | P-101A | P-102B\n")) << User().Grid().Drawn();
    EXPECT_EQ(Shown("P-101A", "Design flow (m³/h)"), "412.0");

    User().Edit("P-101A", "Design flow (m³/h)", "415.5");
    User().Edit("P-102B", "Duty note", kNote);
    User().Save();
    EXPECT_EQ(User().Status(), "2 values saved");

    User().Rename("Vendor", "Duty note", "Operators' note");
    User().Apply();
    EXPECT_EQ(Shown("P-102B", "Operators' note"), kNote.toStdString());
    EXPECT_EQ(Shown("P-101A", "Operators' note"), "Min. 120 m³/h");

    User().PrintToPdf(Path("pumps.pdf"));
    const QString printed = PdfText("pumps.pdf");
    for (const QString& text : {QStringLiteral("P-102B"), QStringLiteral("415.5"), QStringLiteral("Operators' note")})
        EXPECT_TRUE(printed.contains(text)) << text.toStdString() << " in\n" << printed.toStdString();

    User().Export(Path("pumps.xls"));
    const QString exported = WorkbookText("pumps.xls");
    EXPECT_TRUE(exported.contains("Operators' note|Min. 120 m³/h|" + kNote)) << exported.toStdString();
    EXPECT_TRUE(exported.contains("|415.5|")) << exported.toStdString();

    User().Quit();
    ASSERT_FALSE(Window().isVisible()) << "nothing was unsaved, so nothing was asked";
    Start();
    PickPumps();
    EXPECT_EQ(Shown("P-101A", "Design flow (m³/h)"), "415.5");
    EXPECT_EQ(Shown("P-102B", "Operators' note"), kNote.toStdString());
    EXPECT_EQ(User().Told(), "");

    EXPECT_EQ(Stored("P-101A", "PUMPS/Design/Flow"), "415.5");
    EXPECT_EQ(Stored("P-102B", "Duty note"), kNote.toStdString());
    const Outcome csv = Schedhost(
        {"schedule", Address(), "--category", "PUMPS", "--tags", "P-101A,P-102B", "--csv", Path("pumps.csv")});
    EXPECT_EQ(csv.exitCode, 0) << csv.err.toStdString();
    QFile file(Path("pumps.csv"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString table = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(table.contains("\nOperators' note,Min. 120 m³/h,\"" + kNote + "\"\r\n")) << table.toStdString();
}

TEST_F(Journey, QuittingWithUnsavedValuesAsks)
{
    PickPumps();
    User().Edit("P-101A", "Design flow (m³/h)", "415.5");
    User().Quit("Cancel");
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Shown("P-101A", "Design flow (m³/h)"), "415.5");
    User().Quit("Save");
    EXPECT_FALSE(Window().isVisible());
    EXPECT_EQ(Stored("P-101A", "PUMPS/Design/Flow"), "415.5");
}

TEST_F(Journey, ValuesThatAreDiscardedWhenQuittingAreNotStored)
{
    PickPumps();
    User().Edit("P-101A", "Design flow (m³/h)", "415.5");
    User().Quit("Discard");
    EXPECT_FALSE(Window().isVisible());
    EXPECT_EQ(Stored("P-101A", "PUMPS/Design/Flow"), "412.0");
}

TEST_F(Journey, ATemplateSavedUnderAnotherNameIsThereAfterwards)
{
    PickPumps();
    User().Rename("Vendor", "Duty note", "Operators' note");
    User().SaveAs("Night shift");
    const std::string entries = User().Entries();
    EXPECT_NE(entries.find("\n  Night shift"), std::string::npos) << entries;
    User().Quit();
    ASSERT_FALSE(Window().isVisible());
    Start();
    EXPECT_EQ(User().Entries(), entries);
    const Outcome csv = Schedhost({"schedule", Address(), "--category", "PUMPS", "--template", "Night shift.xml",
                                   "--tags", "P-101A", "--csv", Path("night.csv")});
    EXPECT_EQ(csv.exitCode, 0) << csv.err.toStdString();
}

} // namespace schedules::host::testing
