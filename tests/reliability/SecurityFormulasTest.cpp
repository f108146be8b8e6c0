// What a cell or a header holds is never run by a program that opens what was exported, whatever it looks like.

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

/// Each text is a column's header, a tag's name, and all cells of its row, every other of a number's data type, so that
/// no reading as a number runs it either.
QString Schedule()
{
    QString headers = "<TH>" + EscapedXml(kDangerous.first()) + "</TH>";
    QString rows;
    for (const QString& text : kDangerous) {
        const QString escaped = EscapedXml(text);
        headers += "<TH>" + escaped + "</TH>";
        rows += "<TR><TH>" + escaped + "</TH>";
        for (qsizetype column = 0; column < kDangerous.size(); ++column)
            rows += (column % 2 == 0 ? "<TD>" : "<TD dataType='DOUBLE'>") + escaped + "</TD>";
        rows += "</TR>";
    }
    return "<TABLE><TR>" + headers + "</TR>" + rows + "</TABLE>";
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

    /// What a program of another making tells of each cell: "kind text", a row a line.
    static std::string Read(const QString& fileName)
    {
        QProcess reader;
        reader.start("/usr/bin/python3", {SCHEDULES_SOURCE_DIR "/tests/reliability/read_cells.py", fileName});
        EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0) << reader.readAllStandardError().constData();
        return reader.readAllStandardOutput().toStdString();
    }

    /// The schedule of such texts, as the reader tells it.
    static std::string AsTexts(QStringList texts)
    {
        for (QString& text : texts)
            text.replace("\\", "\\\\").replace("\t", "\\t").replace("\r", "\\r").replace("\n", "\\n").prepend("text ");
        QStringList lines{(texts.first(1) + texts).join(" | ")};
        for (const QString& text : texts)
            lines += QStringList(texts.size() + 1, text).join(" | ");
        return (lines.join(u'\n') + u'\n').toStdString();
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
