#include "host/CommandLine.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

CommandLine Parsed(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << qPrintable(error->line);
        return {};
    }
    return std::get<CommandLine>(parsed);
}

QString Refused(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return error ? error->line : QStringLiteral("(accepted)");
}

} // namespace

TEST(CommandLine, NothingOpensTheSample)
{
    EXPECT_EQ(Parsed({}), CommandLine{});
}

TEST(CommandLine, AFileOpensAWindowOnIt)
{
    EXPECT_EQ(Parsed({"a.xml"}), (CommandLine{.file = "a.xml"}));
}

TEST(CommandLine, AWindowTakesViewSelectAllMessagesAndLanguage)
{
    EXPECT_EQ(
        Parsed({"a.xml", "--view", "selector", "--select-all", "--messages", "m", "--language", "de"}),
        (CommandLine{
            .file = "a.xml", .view = {.view = View::Selector, .selectAll = true}, .messages = "m", .language = "de"}));
}

TEST(CommandLine, DumpTakesViewSelectAllTransposeAndMessages)
{
    EXPECT_EQ(Parsed({"dump", "a.xml", "--view", "selector", "--select-all", "--transpose", "--messages", "m"}),
              (CommandLine{.form = Form::Dump,
                           .file = "a.xml",
                           .view = {.view = View::Selector, .selectAll = true, .transpose = true},
                           .messages = "m"}));
}

TEST(CommandLine, RenderTakesAPictureAndATitleBeside)
{
    EXPECT_EQ(
        Parsed({"render", "a.xml", "--view=schedule", "--transpose", "--png", "p", "--title", "T t"}),
        (CommandLine{.form = Form::Render, .file = "a.xml", .view = {.transpose = true}, .png = "p", .title = "T t"}));
}

TEST(CommandLine, OptionsMayComeFirst)
{
    EXPECT_EQ(Parsed({"--transpose", "dump", "a.xml"}),
              (CommandLine{.form = Form::Dump, .file = "a.xml", .view = {.transpose = true}}));
}

TEST(CommandLine, AFileMayBeNamedLikeACommandOrAnOption)
{
    EXPECT_EQ(Parsed({"dump", "dump"}), (CommandLine{.form = Form::Dump, .file = "dump"}));
    EXPECT_EQ(Parsed({"./dump"}), (CommandLine{.file = "./dump"}));
    EXPECT_EQ(Parsed({"dump", "--", "--odd"}), (CommandLine{.form = Form::Dump, .file = "--odd"}));
}

TEST(CommandLine, HelpAndVersionWinOverTheRest)
{
    EXPECT_EQ(Parsed({"--help"}).form, Form::Help);
    EXPECT_EQ(Parsed({"dump", "-h"}).form, Form::Help);
    EXPECT_EQ(Parsed({"--version"}).form, Form::Version);
    EXPECT_EQ(Parsed({"-v"}).form, Form::Version);
}

TEST(CommandLine, ACommandNeedsExactlyOneFile)
{
    EXPECT_EQ(Refused({"dump"}), "a file is missing");
    EXPECT_EQ(Refused({"render", "--transpose"}), "a file is missing");
    EXPECT_EQ(Refused({"dump", "a.xml", "b.xml"}), "one file at a time, not also 'b.xml'");
    EXPECT_EQ(Refused({"a.xml", "b.xml"}), "one file at a time, not also 'b.xml'");
    EXPECT_EQ(Refused({"dump", ""}), "the file name is empty");
}

TEST(CommandLine, AnOptionOfAnotherCommandIsRefused)
{
    EXPECT_EQ(Refused({"a.xml", "--transpose"}), "--transpose does not belong to this command");
    EXPECT_EQ(Refused({"dump", "a.xml", "--png", "p"}), "--png does not belong to this command");
    EXPECT_EQ(Refused({"dump", "a.xml", "--title", "t"}), "--title does not belong to this command");
}

TEST(CommandLine, AnUnknownOptionOrAMissingValueIsRefused)
{
    EXPECT_EQ(Refused({"dump", "a.xml", "--nonsense"}), "Unknown option 'nonsense'.");
    EXPECT_EQ(Refused({"dump", "a.xml", "--view"}), "Missing value after '--view'.");
    EXPECT_EQ(Refused({"dump", "a.xml", "--transpose=1"}), "Unexpected value after '--transpose'.");
}

TEST(CommandLine, AValueThatIsNoChoiceIsRefused)
{
    EXPECT_EQ(Refused({"a.xml", "--view", "both"}), "--view must be one of: schedule, selector");
    EXPECT_EQ(Refused({"a.xml", "--view", ""}), "--view must be one of: schedule, selector");
    EXPECT_EQ(Refused({"a.xml", "--language", "nl"}), "--language must be one of: en, de, fr");
}

TEST(CommandLine, AFileNameMustNotBeEmpty)
{
    EXPECT_EQ(Refused({"a.xml", "--messages", ""}), "--messages needs a file name");
    EXPECT_EQ(Refused({"render", "a.xml", "--png", ""}), "--png needs a file name");
}

TEST(CommandLine, WrongUsageIsToldInOneLine)
{
    EXPECT_EQ(Refused({"--a\nb"}).count('\n'), 0);
    EXPECT_EQ(Refused({"a", "b\nc"}).count('\n'), 0);
}

TEST(CommandLine, HelpNamesEveryOption)
{
    for (const char* option : {"--view", "--select-all", "--transpose", "--png", "--title", "--messages", "--language",
                               "--help", "--version"})
        EXPECT_TRUE(HelpText().contains(QLatin1String(option))) << option;
}

} // namespace schedules::host
