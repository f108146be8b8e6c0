// The command that opens the options editor.

#include "ParsedCommandLine.h"

namespace schedules::host {

namespace {

CommandLine Parsed(const QStringList& arguments)
{
    return testing::Parsed(QStringList{"options"} + arguments);
}

QString Refused(const QStringList& arguments)
{
    return testing::Refused(QStringList{"options"} + arguments);
}

const QStringList kFiles{"folder", "--list", "l.xml", "--categories", "c.xml"};

} // namespace

TEST(CommandLineOptions, NothingOpensTheSamples)
{
    EXPECT_EQ(Parsed({}), CommandLine{.form = Form::Options});
}

TEST(CommandLineOptions, AFolderIsOpenedWithItsListsAndTheTemplateInUse)
{
    EXPECT_EQ(Parsed(kFiles + QStringList{"--current", "Pumps.xml"}),
              (CommandLine{.form = Form::Options,
                           .files = {"folder"},
                           .editor = {.list = "l.xml", .categories = "c.xml", .current = "Pumps.xml"}}));
    EXPECT_EQ(Parsed(kFiles).editor.current, QString());
}

TEST(CommandLineOptions, APictureIsNamedAndWhatItShows)
{
    const EditorOptions editor{
        .picture = "p.png", .templateFile = "Fans.xml", .group = "Motor", .item = "Power", .rightToLeft = true};
    EXPECT_EQ(
        Parsed({"--png", "p.png", "--select", "Fans.xml", "--group", "Motor", "--item", "Power", "--right-to-left"}),
        (CommandLine{.form = Form::Options, .editor = editor}));
}

TEST(CommandLineOptions, LanguagePaletteAndMessagesAreTaken)
{
    EXPECT_EQ(Parsed({"--language", "de", "--palette", "dark", "--messages", "m"}),
              (CommandLine{.form = Form::Options,
                           .session = {.language = "de", .messages = "m"},
                           .languageChosen = true,
                           .palette = Palette::Dark}));
}

TEST(CommandLineOptions, OnlyAWindowNeedsADisplay)
{
    EXPECT_TRUE(Parsed({}).ShowsWindow());
    EXPECT_FALSE(Parsed({"--png", "p"}).ShowsWindow());
    EXPECT_TRUE(CommandLine{}.ShowsWindow());
    EXPECT_FALSE(CommandLine{.form = Form::Render}.ShowsWindow());
}

TEST(CommandLineOptions, AFolderAndItsListsGoTogether)
{
    const QString needed = "a FOLDER needs --list FILE and --categories FILE";
    EXPECT_EQ(Refused({"folder"}), needed);
    EXPECT_EQ(Refused({"folder", "--list", "l"}), needed);
    EXPECT_EQ(Refused({"folder", "--categories", "c"}), needed);
    for (const char* option : {"--list", "--categories"})
        EXPECT_EQ(Refused({option, "x"}), "--list and --categories need the FOLDER of the templates");
}

TEST(CommandLineOptions, OneFolderAtATimeAndNoneWithoutAName)
{
    EXPECT_EQ(Refused({"folder", "other", "--list", "l", "--categories", "c"}),
              "one folder at a time, not also 'other'");
    EXPECT_EQ(Refused({"", "--list", "l", "--categories", "c"}), "the folder's name is empty");
}

TEST(CommandLineOptions, FileNamesMustNotBeEmpty)
{
    for (const char* option : {"list", "categories", "png", "messages"})
        EXPECT_EQ(Refused(QStringList{QStringLiteral("--%1").arg(option), ""}),
                  QStringLiteral("--%1 needs a file name").arg(option));
}

TEST(CommandLineOptions, AnItemNeedsItsGroup)
{
    EXPECT_EQ(Refused({"--item", "Power"}), "--item needs --group NAME");
}

TEST(CommandLineOptions, ThePictureIsNotWrittenOverTheMessages)
{
    EXPECT_EQ(Refused({"--png", "a", "--messages", "./a"}), "'a' would be written twice");
}

TEST(CommandLineOptions, OptionsOfATableAreRefused)
{
    for (const char* option : {"--view", "--edit", "--save", "--pdf", "--out", "--title"})
        EXPECT_EQ(Refused({option, "selector"}), QStringLiteral("%1 does not belong to this command").arg(option));
    EXPECT_EQ(Refused({"--transpose"}), "--transpose does not belong to this command");
}

TEST(CommandLineOptions, OtherCommandsTakeNoneOfTheEditors)
{
    for (const char* option : {"--list", "--categories", "--current", "--select", "--group", "--item"}) {
        const auto parsed = ParseCommandLine({"render", "a.xml", option, "x"});
        const auto* error = std::get_if<UsageError>(&parsed);
        ASSERT_NE(error, nullptr) << option;
        EXPECT_EQ(error->line, QStringLiteral("%1 does not belong to this command").arg(option));
    }
    EXPECT_TRUE(std::holds_alternative<UsageError>(ParseCommandLine({"a.xml", "--right-to-left"})));
}

} // namespace schedules::host
