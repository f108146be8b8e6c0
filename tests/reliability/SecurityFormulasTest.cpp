// What a cell holds is never run by a program that opens what was exported, whatever it looks like.

#include "TemplateHost.h"
#include "support/ScriptedUserInterface.h"

#include <QProcess>

namespace schedules::testing {

namespace {

const QStringList kDangerous{"=1+1",
                             "=cmd|' /C calc'!A0",
                             "+1+1",
                             "-1+1",
                             "-",
                             "@SUM(A1)",
                             "\t=1+1",
                             "\r=1+1",
                             " =1+1",
                             "=HYPERLINK(\"http://example.com\")",
                             "'=1+1",
                             "{=1+1}",
                             "DDE(\"a\";\"b\";\"c\")"};

/// Of a number's data type and of none, so that no reading as a number runs them either.
QString Schedule()
{
    QString rows;
    for (const QString& text : kDangerous) {
        const QString cell = EscapedXml(text);
        rows += "<TR><TH>x</TH><TD>" + cell + "</TD><TD dataType='DOUBLE'>" + cell + "</TD></TR>";
    }
    return "<TABLE><TR><TH/><TH>a</TH><TH>b</TH></TR>" + rows + "</TABLE>";
}

struct SecurityFormulas : ::testing::Test
{
    SecurityFormulas()
    {
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(Schedule());
        view.Ui().IToolUI_Activate();
    }

    QString Exported(const char* format) const
    {
        const QString fileName = host.PathOf(QLatin1String("schedule.") + format);
        view.WriteFile(format, fileName);
        return fileName;
    }

    /// What a program of another making tells of each cell: "kind text", both cells of a row on one line.
    static std::string Read(const QString& fileName)
    {
        QProcess reader;
        reader.start("/usr/bin/python3", {SCHEDULES_SOURCE_DIR "/tests/reliability/read_cells.py", fileName});
        EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0) << reader.readAllStandardError().constData();
        return reader.readAllStandardOutput().toStdString();
    }

    /// As the reader tells texts, each of them twice.
    static std::string AsTexts(const QStringList& texts)
    {
        QString lines;
        for (QString text : texts) {
            text.replace("\\", "\\\\").replace("\t", "\\t").replace("\r", "\\r").replace("\n", "\\n");
            lines += "text " + text + " | text " + text + '\n';
        }
        return lines.toStdString();
    }

    ScriptedUserInterface user;
    TemplateHost host;
    HostedView view{&user};
};

} // namespace

TEST_F(SecurityFormulas, AreTextsInAWorkbook)
{
    EXPECT_EQ(Read(Exported("xls")), AsTexts(kDangerous));
}

TEST_F(SecurityFormulas, AreTextsInTheOtherWorkbook)
{
    EXPECT_EQ(Read(Exported("xlsx")), AsTexts(kDangerous));
}

TEST_F(SecurityFormulas, AreTextsInAWebPage)
{
    EXPECT_EQ(Read(Exported("html")), AsTexts(kDangerous));
}

/// Only its first character tells a spreadsheet that a field of such a file is a formula.
TEST_F(SecurityFormulas, BeginWithAnApostropheInACsvFile)
{
    QStringList neutral = kDangerous;
    for (QString& text : neutral) {
        if (QString("=+-@\t\r").contains(text.front()))
            text.prepend(u'\'');
    }
    EXPECT_EQ(Read(Exported("csv")), AsTexts(neutral));
}

TEST_F(SecurityFormulas, TextsAreNoMarkupInAWebPage)
{
    view.Ui().IToolUI_XML("<TABLE><TR><TH/><TH>&lt;script&gt;a()&lt;/script&gt;</TH></TR>"
                          "<TR><TH>\"&gt;&lt;img src=x onerror=a()&gt;</TH>"
                          "<TD>&lt;/td&gt;&lt;iframe src='file:///etc/passwd'&gt;</TD></TR></TABLE>");
    view.Ui().IToolUI_Activate();
    QFile page(Exported("html"));
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    const QByteArray html = page.readAll();
    for (const char* markup : {"<script", "<img", "<iframe", "src=\"", "href", "http:", "url("})
        EXPECT_FALSE(html.contains(markup)) << markup;
}

} // namespace schedules::testing
