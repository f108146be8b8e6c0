// The commands on a project.

#include "ParsedCommandLine.h"
#include "host/cli/HelpText.h"

namespace schedules::host::testing {

namespace {

/// The commands with as much as each needs.
const QList<QStringList> kCommands{
    {"new", "p"},        {"import", "p", "t.csv"},         {"list", "p"},
    {"get", "p", "P-1"}, {"set", "p", "P-1", "Flow", "1"}, {"schedule", "p", "--category", "PUMPS", "--csv", "o"}};

} // namespace

TEST(CommandLineProject, AProjectOpensAWindowOnIt)
{
    EXPECT_EQ(Parsed({"p.schedules"}), (CommandLine{.files = {"p.schedules"}}));
    EXPECT_EQ(
        Parsed({"postgresql://me@host/plant", "--language", "fr"}),
        (CommandLine{.files = {"postgresql://me@host/plant"}, .session = {.language = "fr"}, .languageChosen = true}));
}

TEST(CommandLineProject, NewTakesAProjectAndWhatItHasAtFirst)
{
    EXPECT_EQ(Parsed({"new", "p"}), (CommandLine{.form = Form::New, .files = {"p"}}));
    EXPECT_EQ(Parsed({"new", "p", "--empty"}),
              (CommandLine{.form = Form::New, .files = {"p"}, .project = {.empty = true}}));
    EXPECT_EQ(Parsed({"new", "--sample", "p"}),
              (CommandLine{.form = Form::New, .files = {"p"}, .project = {.sample = true}}));
    EXPECT_EQ(Refused({"new", "p", "--empty", "--sample"}), "--empty and --sample exclude each other");
    EXPECT_EQ(Refused({"new"}), "this command takes one project");
    EXPECT_EQ(Refused({"new", "p", "q"}), "this command takes one project");
}

TEST(CommandLineProject, ImportTakesAProjectAndTables)
{
    EXPECT_EQ(Parsed({"import", "p", "a.csv"}), (CommandLine{.form = Form::Import, .files = {"p", "a.csv"}}));
    EXPECT_EQ(Parsed({"import", "p", "a.csv", "b.csv", "c.csv"}).files, (QStringList{"p", "a.csv", "b.csv", "c.csv"}));
    EXPECT_EQ(Refused({"import"}), "import takes a project and the tables to import");
    EXPECT_EQ(Refused({"import", "p"}), "import takes a project and the tables to import");
}

TEST(CommandLineProject, ListTakesAProjectAndACategory)
{
    EXPECT_EQ(Parsed({"list", "p"}), (CommandLine{.form = Form::List, .files = {"p"}}));
    EXPECT_EQ(Parsed({"list", "p", "--category", "PUMPS", "--json"}),
              (CommandLine{.form = Form::List, .files = {"p"}, .project = {.category = "PUMPS", .asJson = true}}));
    EXPECT_EQ(Refused({"list"}), "this command takes one project");
    EXPECT_EQ(Refused({"list", "p", "q"}), "this command takes one project");
}

TEST(CommandLineProject, GetTakesATagAndPerhapsADataItem)
{
    EXPECT_EQ(Parsed({"get", "p", "P-1"}), (CommandLine{.form = Form::Get, .files = {"p", "P-1"}}));
    EXPECT_EQ(Parsed({"get", "p", "P-1", "Flow", "--json"}),
              (CommandLine{.form = Form::Get, .files = {"p", "P-1", "Flow"}, .project = {.asJson = true}}));
    const QString needed = "get takes a project, a tag and, for one value, a data item";
    EXPECT_EQ(Refused({"get", "p"}), needed);
    EXPECT_EQ(Refused({"get", "p", "P-1", "Flow", "1"}), needed);
}

TEST(CommandLineProject, SetTakesATagADataItemAndAValue)
{
    EXPECT_EQ(Parsed({"set", "p", "P-1", "Flow", "12"}),
              (CommandLine{.form = Form::Set, .files = {"p", "P-1", "Flow", "12"}}));
    EXPECT_EQ(Parsed({"set", "p", "P-1", "Flow", ""}).files, (QStringList{"p", "P-1", "Flow", ""}));
    const QString needed = "set takes a project, a tag, a data item and a value";
    EXPECT_EQ(Refused({"set", "p", "P-1", "Flow"}), needed);
    EXPECT_EQ(Refused({"set", "p", "P-1", "Flow", "1", "2"}), needed);
}

TEST(CommandLineProject, AValueMayBeginWithAMinusSign)
{
    for (const char* value : {"-20", "-.5", "-,5", "-1e3 K"})
        EXPECT_EQ(Parsed({"set", "p", "P-1", "Flow", value}).files, (QStringList{"p", "P-1", "Flow", value}));
    EXPECT_EQ(Parsed({"set", "p", "P-1", "Note", "--", "-h"}).files, (QStringList{"p", "P-1", "Note", "-h"}));
    EXPECT_EQ(Parsed({"set", "p", "P-1", "Note", "-h"}).form, Form::Help);
    EXPECT_EQ(Refused({"set", "p", "P-1", "Note", "-x"}), "Unknown option 'x'.");
}

TEST(CommandLineProject, ScheduleTakesCategoryTagsTemplateAndOutputs)
{
    EXPECT_EQ(Parsed({"schedule",   "p",      "--category",  "PUMPS",   "--tags", "P-2,P-1",
                      "--template", "US.xml", "--transpose", "--png",   "o.png",  "--title",
                      "T",          "--pdf",  "o.pdf",       "--paper", "A3",     "--plain-print",
                      "--messages", "m",      "--palette",   "dark"}),
              (CommandLine{.form = Form::Schedule,
                           .files = {"p"},
                           .view = {.transpose = true},
                           .session = {.messages = "m"},
                           .render = {.outputs = {{"png", "o.png"}, {"pdf", "o.pdf"}},
                                      .title = "T",
                                      .smartPrint = false,
                                      .paper = QPageSize::A3},
                           .project = {.category = "PUMPS", .tags = {"P-2", "P-1"}, .templateFile = "US.xml"},
                           .palette = Palette::Dark}));
}

TEST(CommandLineProject, AScheduleNeedsACategoryAndAnOutput)
{
    EXPECT_EQ(Refused({"schedule", "p", "--csv", "o"}), "schedule needs --category NAME");
    EXPECT_EQ(Refused({"schedule", "p", "--category", "", "--csv", "o"}), "schedule needs --category NAME");
    EXPECT_EQ(Refused({"schedule", "p", "--category", "PUMPS"}), "schedule needs an output, such as --pdf FILE");
    EXPECT_EQ(Refused({"schedule", "--category", "PUMPS", "--csv", "o"}), "this command takes one project");
}

TEST(CommandLineProject, AnOptionOfAFormatNeedsThatFormat)
{
    EXPECT_EQ(Refused({"schedule", "p", "--category", "PUMPS", "--csv", "o", "--paper", "A3"}),
              "--paper belongs to pdf only");
    EXPECT_EQ(Refused({"schedule", "p", "--category", "PUMPS", "--csv", "o", "--title", "T"}),
              "--title belongs to png only");
}

TEST(CommandLineProject, NothingIsWrittenTwice)
{
    EXPECT_EQ(Refused({"schedule", "p", "--category", "PUMPS", "--csv", "o", "--html", "./o"}),
              "'./o' would be written twice");
    EXPECT_EQ(Refused({"schedule", "p", "--category", "PUMPS", "--csv", "o", "--messages", "o"}),
              "'o' would be written twice");
}

TEST(CommandLineProject, AnAddressMustNotBeEmpty)
{
    for (QStringList command : kCommands) {
        command[1] = QString();
        EXPECT_EQ(Refused(command), "the file name is empty") << qPrintable(command.first());
    }
}

TEST(CommandLineProject, OptionsOfOtherCommandsAreRefused)
{
    const QHash<QString, QStringList> taken{{"new", {"--empty", "--sample"}},
                                            {"list", {"--json", "--category"}},
                                            {"get", {"--json"}},
                                            {"schedule", {"--category", "--tags", "--template", "--transpose"}}};
    const QStringList flags{"--json", "--empty", "--sample", "--transpose", "--select-all", "--continue"};
    for (const QString& option : flags + QStringList{"--category", "--tags", "--template", "--edit", "--sort", "--as"})
    {
        const QStringList given = flags.contains(option) ? QStringList{option} : QStringList{option, "1"};
        for (const QStringList& command : kCommands) {
            if (taken[command.first()].contains(option))
                continue;
            EXPECT_EQ(Refused(command + given), option + " does not belong to this command")
                << qPrintable(command.first());
        }
    }
}

TEST(CommandLineProject, HelpNamesEveryCommandAndOption)
{
    for (const char* text :
         {"new PROJECT [--empty|--sample]", "import PROJECT FILE.csv", "list PROJECT [--category NAME] [--json]",
          "schedule PROJECT --category NAME", "get PROJECT TAG [ITEM] [--json]", "set PROJECT TAG ITEM VALUE"})
        EXPECT_TRUE(HelpText().contains(QStringLiteral("\n  schedhost %1").arg(text))) << text;
    for (const char* option : {"--empty", "--sample", "--category", "--tags", "--template", "--json"})
        EXPECT_TRUE(HelpText().contains(QStringLiteral("\n  %1").arg(option)) ||
                    HelpText().contains(QStringLiteral("[%1]").arg(option)))
            << option;
}

} // namespace schedules::host::testing
