#include "host/HostProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringConverter>

namespace schedules::host::testing {

namespace {

struct SchedhostDump : HostProgram
{
    QByteArray Dumped(const QByteArray& xml, const QStringList& options = {})
    {
        const Outcome run = Schedhost(QStringList{"dump", Written(QStringLiteral("table.xml"), xml)} + options);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        return run.out;
    }

    /// The texts of the cells as "column,row text".
    QStringList Texts(const QByteArray& xml, const QStringList& options = {})
    {
        QStringList texts;
        for (const QJsonValue cell : QJsonDocument::fromJson(Dumped(xml, options))[QStringLiteral("cells")].toArray()) {
            if (!cell[QStringLiteral("text")].toString().isEmpty())
                texts.append(QStringLiteral("%1,%2 %3")
                                 .arg(cell[QStringLiteral("column")].toInt())
                                 .arg(cell[QStringLiteral("row")].toInt())
                                 .arg(cell[QStringLiteral("text")].toString()));
        }
        return texts;
    }

    void ExpectFailure(const QByteArray& xml, int number, const QStringList& options = {})
    {
        const Outcome run = Schedhost(QStringList{"dump", Written(QStringLiteral("table.xml"), xml)} + options);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        const QRegularExpression line(QStringLiteral("^[^\\n]*\\w[^\\n]* \\(%1\\)\\n$").arg(number));
        EXPECT_TRUE(line.match(QString::fromUtf8(run.err)).hasMatch()) << run.err.constData();
    }
};

constexpr auto kSelection = "<TABLE><TR><TH>No</TH><TH>1</TH><TH>2</TH></TR>"
                            "<TR><TH>Tag</TH><TD>P-1</TD><TD>P-2</TD></TR>"
                            "<TR><TH>Select</TH><TD dataType=\"CHECKBOX\" visible=\"-1\">1</TD>"
                            "<TD dataType=\"CHECKBOX\" visible=\"-1\"/></TR></TABLE>";

} // namespace

TEST_F(SchedhostDump, PrintsTheLoadedGrid)
{
    const QByteArray xml = R"(<TABLE>
      <TR><TH/><TH bgColor="255">a</TH><TH fontBold="-1">b</TH><TH hidden="-1">c</TH></TR>
      <TR><TH>r</TH><TD>1</TD><TD dataType="CHECKBOX" visible="-1">1</TD><TD/></TR>
      <TR><TH>s</TH><TD/><TD>2</TD><TD>3</TD></TR>
      <TR><TH>t</TH><TD>4</TD><TD/><TD/></TR>
    </TABLE>)";
    EXPECT_EQ(Dumped(xml).toStdString(), R"({"columns":3,"rows":3,"orientation":0,"transposed":false,
"columnWidths":[1440,360,360,360],
"hiddenColumns":[],
"hiddenRows":[3],
"cells":[
{"column":1,"row":0,"text":"a","type":"text","bold":false,"backColor":null},
{"column":2,"row":0,"text":"b","type":"text","bold":true,"backColor":null},
{"column":3,"row":0,"text":"c","type":"text","bold":false,"backColor":null},
{"column":0,"row":1,"text":"r","type":"text","bold":false,"backColor":2147483663},
{"column":1,"row":1,"text":"1","type":"text","bold":false,"backColor":255},
{"column":2,"row":1,"text":"1","type":"checkbox","bold":true,"backColor":255},
{"column":3,"row":1,"text":"","type":"text","bold":false,"backColor":255},
{"column":0,"row":2,"text":"s","type":"text","bold":false,"backColor":2147483663},
{"column":2,"row":2,"text":"2","type":"text","bold":true,"backColor":null},
{"column":3,"row":2,"text":"3","type":"text","bold":false,"backColor":null},
{"column":0,"row":3,"text":"t","type":"text","bold":false,"backColor":2147483663},
{"column":1,"row":3,"text":"4","type":"text","bold":false,"backColor":null},
{"column":2,"row":3,"text":"","type":"text","bold":true,"backColor":null}
]}
)");
}

TEST_F(SchedhostDump, TransposeDoesWhatTheCommandDoes)
{
    const auto dumped = QJsonDocument::fromJson(Dumped(kSmallTable, {"--transpose"}));
    EXPECT_EQ(dumped[QStringLiteral("orientation")].toInt(-1), 1);
    EXPECT_EQ(dumped[QStringLiteral("transposed")], QJsonValue(true));
    EXPECT_EQ(Texts(kSmallTable, {"--transpose"}),
              (QStringList{"0,0 h", "1,0 r", "2,0 s", "0,1 a", "1,1 1", "2,1 3", "0,2 b", "1,2 2", "2,2 4"}));
}

TEST_F(SchedhostDump, TheSelectorViewLoadsATableOfTags)
{
    const auto dumped = QJsonDocument::fromJson(Dumped(kSelection, {"--view", "selector"}));
    EXPECT_EQ(dumped[QStringLiteral("orientation")].toInt(-1), 1);
    EXPECT_EQ(dumped[QStringLiteral("transposed")], QJsonValue(false));
    EXPECT_EQ(Texts(kSelection, {"--view", "selector"}), (QStringList{"0,0 No", "1,0 1", "2,0 2", "0,1 Tag", "1,1 P-1",
                                                                      "2,1 P-2", "0,2 Select", "1,2 0", "2,2 0"}));
}

TEST_F(SchedhostDump, SelectAllTicksEveryTag)
{
    EXPECT_EQ(Texts(kSelection, {"--view", "selector", "--select-all"}).mid(7), (QStringList{"1,2 1", "2,2 1"}));
}

TEST_F(SchedhostDump, TheSelectorTransposesToo)
{
    const QStringList options{"--view", "selector", "--select-all", "--transpose"};
    const auto dumped = QJsonDocument::fromJson(Dumped(kSelection, options));
    EXPECT_EQ(dumped[QStringLiteral("orientation")].toInt(-1), 0);
    EXPECT_EQ(dumped[QStringLiteral("transposed")], QJsonValue(true));
    EXPECT_EQ(Texts(kSelection, options).mid(3),
              (QStringList{"0,1 1", "1,1 P-1", "2,1 1", "0,2 2", "1,2 P-2", "2,2 1"}));
}

TEST_F(SchedhostDump, TextWithoutAnyRowIs1066)
{
    ExpectFailure("<TABLE/>", 1066);
    ExpectFailure("<TABLE/>", 1066, {"--view", "selector"});
}

TEST_F(SchedhostDump, WhatIsNotWellFormedIs1064)
{
    ExpectFailure("<TABLE><TR>", 1064);
    ExpectFailure("<TABLE><TR>", 1064, {"--view", "selector"});
    ExpectFailure("<TABLE><TR>", 1064, {"--transpose"});
}

TEST_F(SchedhostDump, AnEmptyFileIs1064)
{
    ExpectFailure("", 1064);
}

TEST_F(SchedhostDump, BytesThatAreNotOfTheEncodingAre1064)
{
    ExpectFailure("<TABLE><TR><TH>\xE9</TH></TR></TABLE>", 1064);
    ExpectFailure("<TABLE><TR/></TABLE><!-- \xE9 -->", 1064);
    ExpectFailure("<?xml version='1.0' encoding='nonsense'?><TABLE><TR/></TABLE>", 1064);
}

TEST_F(SchedhostDump, TheEncodingIsThatOfMarkOrDeclaration)
{
    const QString table = QStringLiteral("<TABLE><TR><TH>h</TH><TH>é</TH></TR><TR><TH>r</TH><TD>é</TD></TR></TABLE>");
    const QStringList texts{"0,0 h", "1,0 é", "0,1 r", "1,1 é"};
    const auto encoded = [&](QStringConverter::Encoding encoding) -> QByteArray {
        return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(table);
    };
    EXPECT_EQ(Texts(table.toUtf8()), texts);
    EXPECT_EQ(Texts(encoded(QStringConverter::Utf8)), texts);
    EXPECT_EQ(Texts(encoded(QStringConverter::Utf16LE)), texts);
    EXPECT_EQ(Texts(encoded(QStringConverter::Utf16BE)), texts);
    EXPECT_EQ(Texts("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + table.toLatin1()), texts);
}

TEST_F(SchedhostDump, TheMessageIsInTheLanguageAskedFor)
{
    const QString file = Written(QStringLiteral("bad.xml"), "<TABLE>");
    const QByteArray english = Schedhost({"dump", file}).err;
    const QByteArray german = Schedhost({"dump", file, "--language", "de"}).err;
    const QByteArray french = Schedhost({"dump", file, "--language", "fr"}).err;
    EXPECT_FALSE(english.startsWith("Missing")) << english.constData();
    EXPECT_NE(english, german);
    EXPECT_NE(english, french);
    EXPECT_NE(german, french);
    EXPECT_EQ(Schedhost({"dump", file, "--language", "en"}).err, english);
}

TEST_F(SchedhostDump, AFileThatIsNotThereIsToldInOneLine)
{
    const Outcome run = Schedhost({"dump", "absent.xml"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "cannot read absent.xml: No such file or directory\n");
}

TEST_F(SchedhostDump, FileNamesMayHaveAnyLetters)
{
    const Outcome run = Schedhost({"dump", Written(QStringLiteral("насос 水.xml"), kSmallTable)});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
}

TEST_F(SchedhostDump, NeedsNoDisplayEvenWhenOneIsNamed)
{
    auto environment = Bare();
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    EXPECT_EQ(Schedhost({"dump", Written(QStringLiteral("a.xml"), kSmallTable)}, environment).exitCode, 0);
}

} // namespace schedules::host::testing
