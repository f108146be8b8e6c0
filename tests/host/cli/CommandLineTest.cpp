#include "ParsedCommandLine.h"
#include "host/cli/HelpText.h"

#include <string_view>

namespace schedules::host::testing {

TEST(CommandLine, NothingOpensTheSample)
{
    EXPECT_EQ(Parsed({}), CommandLine{});
}

TEST(CommandLine, AFileOpensAWindowOnIt)
{
    EXPECT_EQ(Parsed({"a.xml"}), (CommandLine{.files = {"a.xml"}}));
}

TEST(CommandLine, AWindowTakesViewSelectAllMessagesAndLanguage)
{
    EXPECT_EQ(Parsed({"a.xml", "--view", "selector", "--select-all", "--messages", "m", "--language", "de"}),
              (CommandLine{.files = {"a.xml"},
                           .view = {.view = View::Selector, .selectAll = true},
                           .session = {.language = "de", .messages = "m"},
                           .languageChosen = true}));
}

TEST(CommandLine, DumpTakesViewSelectAllTransposeAndMessages)
{
    EXPECT_EQ(Parsed({"dump", "a.xml", "--view", "selector", "--select-all", "--transpose", "--messages", "m"}),
              (CommandLine{.form = Form::Dump,
                           .files = {"a.xml"},
                           .view = {.view = View::Selector, .selectAll = true, .transpose = true},
                           .session = {.messages = "m"}}));
}

TEST(CommandLine, ScheduleViewTakesEditsASortAndASave)
{
    const UserActions actions{.edits = {{1, 2, "a=b,c"}, {10, 0, ""}}, .sort = SortColumn{3, true}, .save = "out.xml"};
    EXPECT_EQ(
        Parsed({"dump", "a.xml", "--edit", "1,2=a=b,c", "--sort", "3:desc", "--edit", "10,0=", "--save", "out.xml"}),
        (CommandLine{.form = Form::Dump, .files = {"a.xml"}, .actions = actions}));
    EXPECT_EQ(Parsed({"dump", "a.xml", "--sort", "3"}).actions.sort, (SortColumn{3, false}));
    EXPECT_EQ(Parsed({"dump", "a.xml", "--edit", "1,1=a\nb"}).actions.edits, (QList<CellText>{{1, 1, "a\nb"}}));
}

TEST(CommandLine, SelectorViewTakesTicksAndContinue)
{
    const UserActions actions{.ticks = {"P-1", "P-2"}, .pressContinue = true};
    EXPECT_EQ(
        Parsed({"render", "a.xml", "--view", "selector", "--tick", "P-1", "--continue", "--tick", "P-2"}),
        (CommandLine{.form = Form::Render, .files = {"a.xml"}, .view = {.view = View::Selector}, .actions = actions}));
}

TEST(CommandLine, EveryFormTakesAPalette)
{
    EXPECT_EQ(Parsed({}).palette, Palette::Desktop);
    EXPECT_EQ(Parsed({"--palette", "desktop"}).palette, Palette::Desktop);
    EXPECT_EQ(Parsed({"--palette", "light"}).palette, Palette::Light);
    EXPECT_EQ(Parsed({"render", "a.xml", "--palette", "dark"}).palette, Palette::Dark);
    EXPECT_EQ(Refused({"--palette", "blue"}), "--palette must be one of: desktop, light, dark");
    EXPECT_EQ(Parsed({"dump", "a.xml", "--palette", "dark"}).palette, Palette::Dark) << "for scripts that do both";
}

TEST(CommandLine, AnEditOrASortThatIsNoneIsRefused)
{
    for (const char* edit : {"", "1", "1,2", "1=x", ",2=x", "-1,2=x", "1,a=x", " 1,2=x", "1234567890,1=x"})
        EXPECT_EQ(Refused({"dump", "a.xml", "--edit", edit}),
                  QStringLiteral("--edit must be COLUMN,ROW=TEXT, not '%1'").arg(edit).simplified());
    for (const char* sort : {"", "a", "-1", "1:", "1:asc", "1:desc:"})
        EXPECT_EQ(Refused({"dump", "a.xml", "--sort", sort}),
                  QStringLiteral("--sort must be COLUMN or COLUMN:desc, not '%1'").arg(sort));
}

TEST(CommandLine, AnOptionOfTheOtherViewIsRefused)
{
    EXPECT_EQ(Refused({"dump", "a.xml", "--tick", "P-1"}), "--tick does not belong to the schedule view");
    EXPECT_EQ(Refused({"dump", "a.xml", "--continue"}), "--continue does not belong to the schedule view");
    EXPECT_EQ(Refused({"dump", "a.xml", "--view", "selector", "--edit", "1,1=a"}),
              "--edit does not belong to the selector view");
    EXPECT_EQ(Refused({"dump", "a.xml", "--view", "selector", "--save", "b"}),
              "--save does not belong to the selector view");
}

TEST(CommandLine, TemplateTakesAFileAndALanguage)
{
    EXPECT_EQ(Parsed({"template", "a.xml", "--language", "de"}),
              (CommandLine{
                  .form = Form::Template, .files = {"a.xml"}, .session = {.language = "de"}, .languageChosen = true}));
    EXPECT_EQ(Refused({"template"}), "a file is missing");
    EXPECT_EQ(Refused({"template", "a.xml", "b.xml"}), "one file at a time, not also 'b.xml'");
    EXPECT_EQ(Refused({"template", ""}), "the file name is empty");
}

TEST(CommandLine, CatalogueTakesTwoListsAFolderAndALanguage)
{
    EXPECT_EQ(Parsed({"catalogue", "l.xml", "c.xml", "folder", "--language", "fr"}),
              (CommandLine{.form = Form::Catalogue,
                           .files = {"l.xml", "c.xml", "folder"},
                           .session = {.language = "fr"},
                           .languageChosen = true}));
    EXPECT_EQ(Parsed({"catalogue", "l.xml", "c.xml", ""}).files, (QStringList{"l.xml", "c.xml", ""}));
    const QString needed = "catalogue takes a list of templates, a list of categories, and a folder";
    EXPECT_EQ(Refused({"catalogue"}), needed);
    EXPECT_EQ(Refused({"catalogue", "l.xml", "c.xml"}), needed);
    EXPECT_EQ(Refused({"catalogue", "l.xml", "c.xml", "folder", "more"}), needed);
    EXPECT_EQ(Refused({"catalogue", "", "c.xml", "folder"}), "the file name is empty");
    EXPECT_EQ(Refused({"catalogue", "l.xml", "", "folder"}), "the file name is empty");
}

TEST(CommandLine, FindTakesAPatternAndALanguage)
{
    EXPECT_EQ(
        Parsed({"find", "a/*.xml", "--language", "de"}),
        (CommandLine{.form = Form::Find, .files = {"a/*.xml"}, .session = {.language = "de"}, .languageChosen = true}));
    EXPECT_EQ(Parsed({"find", ""}).files, QStringList{""});
    const QString needed = "find takes one pattern, in quotes if a shell would expand it";
    EXPECT_EQ(Refused({"find"}), needed);
    EXPECT_EQ(Refused({"find", "a", "b"}), needed);
}

TEST(CommandLine, WhatShowsNoTableTakesNoOptionOfOne)
{
    const QList<QStringList> commands{{"template", "a.xml"}, {"catalogue", "l", "c", "f"}, {"find", "a"}};
    for (const QStringList& command : commands) {
        for (const char* option : {"--messages", "--palette", "--edit", "--png"}) {
            const QString value = option == std::string_view("--palette") ? "dark" : "1";
            EXPECT_EQ(Refused(command + QStringList{option, value}),
                      QStringLiteral("%1 does not belong to this command").arg(option));
        }
        for (const char* option : {"--select-all", "--transpose"})
            EXPECT_EQ(Refused(command + QStringList{option}),
                      QStringLiteral("%1 does not belong to this command").arg(option));
    }
}

TEST(CommandLine, OptionsMayComeFirst)
{
    EXPECT_EQ(Parsed({"--transpose", "dump", "a.xml"}),
              (CommandLine{.form = Form::Dump, .files = {"a.xml"}, .view = {.transpose = true}}));
}

TEST(CommandLine, AFileMayBeNamedLikeACommandOrAnOption)
{
    EXPECT_EQ(Parsed({"dump", "dump"}), (CommandLine{.form = Form::Dump, .files = {"dump"}}));
    EXPECT_EQ(Parsed({"./dump"}), (CommandLine{.files = {"./dump"}}));
    EXPECT_EQ(Parsed({"./template"}), (CommandLine{.files = {"./template"}}));
    EXPECT_EQ(Parsed({"dump", "--", "--odd"}), (CommandLine{.form = Form::Dump, .files = {"--odd"}}));
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
    for (const char* option : {"--edit", "--tick", "--sort", "--save"})
        EXPECT_EQ(Refused({"a.xml", option, "1"}), QStringLiteral("%1 does not belong to this command").arg(option));
    EXPECT_EQ(Refused({"a.xml", "--continue"}), "--continue does not belong to this command");
    for (const char* option : {"--title", "--pdf", "--xls", "--xlsx", "--csv", "--html", "--out", "--as", "--paper"})
        EXPECT_EQ(Refused({"dump", "a.xml", option, "t"}),
                  QStringLiteral("%1 does not belong to this command").arg(option));
    EXPECT_EQ(Refused({"dump", "a.xml", "--plain-print"}), "--plain-print does not belong to this command");
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
    EXPECT_EQ(Refused({"dump", "a.xml", "--save", ""}), "--save needs a file name");
}

TEST(CommandLine, WrongUsageIsToldInOneLine)
{
    EXPECT_EQ(Refused({"--a\nb"}).count('\n'), 0);
    EXPECT_EQ(Refused({"a", "b\nc"}).count('\n'), 0);
}

TEST(CommandLine, HelpNamesEveryOption)
{
    for (const char* option :
         {"--view",    "--select-all", "--transpose",    "--png",      "--title",      "--messages", "--language",
          "--edit",    "--tick",       "--sort",         "--continue", "--save",       "--palette",  "--help",
          "--version", "--pdf",        "--xls",          "--xlsx",     "--csv",        "--html",     "--out",
          "--as",      "--paper",      "--plain-print",  "--list",     "--categories", "--current",  "--select",
          "--group",   "--item",       "--right-to-left"})
        EXPECT_TRUE(HelpText().contains(QLatin1String(option))) << option;
}

TEST(CommandLine, HelpNamesEveryCommand)
{
    for (const char* command : {"options [FOLDER --list FILE --categories FILE]", "dump FILE.xml", "render FILE.xml",
                                "template FILE.xml", "catalogue LIST.xml CATEGORIES.xml FOLDER", "find PATTERN"})
        EXPECT_TRUE(HelpText().contains(QStringLiteral("\n  schedhost %1").arg(command))) << command;
}

} // namespace schedules::host::testing
