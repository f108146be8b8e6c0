#include "host/HostProgram.h"

#include <QDir>
#include <QStringConverter>

namespace schedules::host::testing {

namespace {

const QByteArray kTemplate = "<Template Name=\"Pumps\" Category=\"PUMPS\">"
                             "<Group Name=\"Design\" DisplayName=\"Design\">"
                             "<Item Name=\"Flow\" ShowThisItem=\"-1\"><Location>PUMPS/Flow</Location></Item>"
                             "</Group></Template>";

struct SchedhostTemplate : HostProgram
{
    Outcome Run(const QByteArray& xml, const QStringList& options = {})
    {
        return Schedhost(QStringList{"template", Written(QStringLiteral("given.xml"), xml)} + options);
    }

    /// The line on standard error of a run that has failed as a run does.
    std::string Failure(const Outcome& run)
    {
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
        return run.err.toStdString();
    }

    std::string Failure(const QByteArray& xml, const QStringList& options = {}) { return Failure(Run(xml, options)); }

    void ExpectPrinted(const QString& path)
    {
        const Outcome run = Schedhost({"template", path});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(path);
        EXPECT_EQ(run.out, kTemplate) << qPrintable(path);
        EXPECT_EQ(run.err, "") << qPrintable(path);
    }

    QString InFolder(const QString& folder, const QString& name)
    {
        EXPECT_TRUE(QDir(Path(QString())).mkpath(folder));
        return Written(folder + '/' + name, kTemplate);
    }
};

} // namespace

TEST_F(SchedhostTemplate, PrintsTheTemplateAsItIsSavedAndNothingElse)
{
    const Outcome run = Run(R"(<?xml version="1.0"?>
<!-- pumps -->
<Template Name=" Pümps " Note="a&#10;b &lt; 水">
  <Group Name="Design"><Item Name="Flow"><Location> P/Flow </Location></Item></Group>
  <Other/>
  <Group Name="DESIGN"/>
  <Group Name="Empty"><Item Name="Head"/></Group>
</Template>
)");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out.toStdString(),
              "<Template Name=\" Pümps \" Note=\"a&#10;b &lt; 水\">"
              "<Group Name=\"Design\"><Item Name=\"Flow\"><Location>P/Flow</Location></Item></Group>"
              "<Group Name=\"Empty\"><Item Name=\"Head\"><Location/></Item></Group></Template>");
    EXPECT_EQ(run.err, "");
}

TEST_F(SchedhostTemplate, WhatItPrintsItReads)
{
    const QByteArray printed = Run(kTemplate).out;
    EXPECT_EQ(printed, kTemplate);
    EXPECT_EQ(Run(printed).out, printed);
}

TEST_F(SchedhostTemplate, TheFileMayBeInAnyFolder)
{
    ExpectPrinted(InFolder("here", "pumps.xml"));
    ExpectPrinted(Path(InFolder("a/b", "pumps.xml")));
    ExpectPrinted("./a/../a/b/pumps.xml");
    ExpectPrinted("a\\b\\pumps.xml");
}

TEST_F(SchedhostTemplate, NamesMayHaveAnyLetters)
{
    ExpectPrinted(Written("насос 水 😀.xml", kTemplate));
    ExpectPrinted(InFolder("ψυγεία/ポンプ", "é e\u0301.xml"));
}

TEST_F(SchedhostTemplate, NamesMayBeginAndEndWithBlanks)
{
    ExpectPrinted(Written(" pumps ", kTemplate));
    ExpectPrinted(InFolder(" of blanks ", " pumps.xml "));
    ExpectPrinted(Path(" of blanks / pumps.xml "));
}

TEST_F(SchedhostTemplate, TheEncodingIsThatOfMarkOrDeclaration)
{
    const QString xml = "<Template Name=\"é\"/>";
    const QByteArray utf16 = QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(xml);
    EXPECT_EQ(Run(utf16).out, xml.toUtf8());
    EXPECT_EQ(Run("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + xml.toLatin1()).out, xml.toUtf8());
}

TEST_F(SchedhostTemplate, AFileThatIsNotThereFails)
{
    EXPECT_EQ(Failure(Schedhost({"template", "absent.xml"})), "no template can be read from absent.xml\n");
    EXPECT_EQ(Failure(Schedhost({"template", "no\nfile"})), "no template can be read from no file\n");
}

TEST_F(SchedhostTemplate, AFolderFails)
{
    EXPECT_EQ(Failure(Schedhost({"template", "."})), "no template can be read from .\n");
    EXPECT_EQ(Failure(Schedhost({"template", "./"})), "no template can be read from ./\n");
}

TEST_F(SchedhostTemplate, WhatIsNotWellFormedFails)
{
    const std::string line = "no template can be read from given.xml\n";
    EXPECT_EQ(Failure(""), line);
    EXPECT_EQ(Failure("<Template>"), line);
    EXPECT_EQ(Failure("<Template Name=\"\xE9\"/>"), line);
    EXPECT_EQ(Failure("<!DOCTYPE Template [<!ENTITY e \"x\">]><Template Name=\"&e;\"/>"), line);
}

TEST_F(SchedhostTemplate, ADocumentWithoutATemplateFails)
{
    EXPECT_EQ(Failure("<Schedule><Group Name=\"a\"/></Schedule>"), "no template can be read from given.xml\n");
}

TEST_F(SchedhostTemplate, AGroupWithoutANameIs3023)
{
    EXPECT_EQ(Failure("<Template><Group Name=\"a\"/><Group Name=\" \"/></Template>"),
              "A group in the template has no name. (3023)\n");
}

TEST_F(SchedhostTemplate, AnItemWithoutANameIs3022)
{
    EXPECT_EQ(Failure("<Template><Group Name=\"a\"><Item/></Group></Template>"),
              "A data item in the template has no name. (3022)\n");
}

TEST_F(SchedhostTemplate, TheMessageIsInTheLanguageAskedFor)
{
    const QByteArray nameless = "<Template><Group/></Template>";
    EXPECT_EQ(Failure(nameless, {"--language", "de"}), "Eine Gruppe in der Vorlage hat keinen Namen. (3023)\n");
    EXPECT_EQ(Failure(nameless, {"--language", "en"}), "A group in the template has no name. (3023)\n");
    const std::string french = Failure(nameless, {"--language", "fr"});
    EXPECT_TRUE(french.ends_with(" (3023)\n")) << french;
    EXPECT_NE(french, Failure(nameless));
}

TEST_F(SchedhostTemplate, WhatCanBeReadAndNotWrittenFails)
{
    const std::string line = Failure("<a xmlns:p=\"urn:p\"><Template p:x=\"1\"/></a>");
    EXPECT_NE(line.find("p:x"), std::string::npos) << line;
}

TEST_F(SchedhostTemplate, NeedsNoPlatform)
{
    auto environment = Bare();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    const QString file = Written("pumps.xml", kTemplate);
    EXPECT_EQ(Schedhost({"template", file}, environment).out, kTemplate);
}

} // namespace schedules::host::testing
