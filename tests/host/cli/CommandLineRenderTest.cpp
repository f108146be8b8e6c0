#include "host/cli/CommandLine.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

RenderOptions Parsed(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(QStringList{"render"} + arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << qPrintable(error->line);
        return {};
    }
    return std::get<CommandLine>(parsed).render;
}

QString Refused(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(QStringList{"render"} + arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return error ? error->line : QStringLiteral("(accepted)");
}

} // namespace

TEST(CommandLineRender, APictureIsTheFirstChoice)
{
    EXPECT_EQ(Parsed({"a.xml"}), RenderOptions{});
    EXPECT_EQ(RenderOptions().OutputsOf("in/a.b.xml"), (QList<Output>{{"png", "a.b.png"}}));
}

TEST(CommandLineRender, EveryFormatTakesAName)
{
    EXPECT_EQ(Parsed({"a.xml", "--csv", "c", "--xlsx", "x", "--xls", "w", "--html", "h", "--pdf", "d", "--png", "p"}),
              (RenderOptions{
                  .outputs = {{"png", "p"}, {"pdf", "d"}, {"xls", "w"}, {"xlsx", "x"}, {"csv", "c"}, {"html", "h"}}}));
    EXPECT_EQ(Parsed({"a.xml", "--xls", "w"}).OutputsOf("a.xml"), (QList<Output>{{"xls", "w"}})) << "no picture then";
}

TEST(CommandLineRender, SeveralFilesGoIntoAFolderInTheFormatsOfAList)
{
    const RenderOptions options = Parsed({"in/a.xml", "b.xml", "--out", "o", "--as", "pdf,csv"});
    EXPECT_EQ(options, (RenderOptions{.formats = {"pdf", "csv"}, .folder = "o"}));
    EXPECT_EQ(options.OutputsOf("in/a.xml"), (QList<Output>{{"pdf", "o/a.pdf"}, {"csv", "o/a.csv"}}));
    EXPECT_EQ(Parsed({"a.xml", "b.xml", "--out", "o"}).OutputsOf("b.xml"), (QList<Output>{{"png", "o/b.png"}}));
    EXPECT_EQ(Parsed({"a.xml", "--as", "xls"}).OutputsOf("a.xml"), (QList<Output>{{"xls", "a.xls"}}));
    EXPECT_EQ(Parsed({"a.xml", "--as", "xls,csv,xls"}).formats, (QStringList{"xls", "csv"}));
}

TEST(CommandLineRender, SeveralFilesNeedAFolder)
{
    EXPECT_EQ(Refused({"a.xml", "b.xml"}), "several files need --out FOLDER");
    EXPECT_EQ(Refused({"a.xml", "b.xml", "--as", "pdf"}), "several files need --out FOLDER");
    EXPECT_EQ(Refused({"a.xml", "b.xml", "--pdf", "p"}), "several files need --out FOLDER");
    EXPECT_EQ(Refused({"a.xml", "", "--out", "o"}), "the file name is empty");
    EXPECT_EQ(Refused({"a.xml", "--out", ""}), "--out needs a file name");
}

TEST(CommandLineRender, NamesAndAFolderExcludeEachOther)
{
    for (const char* format : {"png", "pdf", "xls", "xlsx", "csv", "html"}) {
        const QString option = QStringLiteral("--%1").arg(format);
        EXPECT_EQ(Refused({"a.xml", option, "f", "--out", "o"}),
                  QStringLiteral("--out and %1 exclude each other").arg(option));
        EXPECT_EQ(Refused({"a.xml", option, "f", "--as", "pdf"}),
                  QStringLiteral("--as and %1 exclude each other").arg(option));
        EXPECT_EQ(Refused({"a.xml", option, ""}), QStringLiteral("%1 needs a file name").arg(option));
    }
}

TEST(CommandLineRender, AListHoldsFormatsOnly)
{
    for (const char* list : {"", "doc", "pdf,", "pdf, csv", "PDF"})
        EXPECT_EQ(Refused({"a.xml", "--as", list}), "--as must be a list of: png, pdf, xls, xlsx, csv, html") << list;
}

TEST(CommandLineRender, PaperAndPlainPrintingBelongToAPdf)
{
    EXPECT_EQ(Parsed({"a.xml", "--pdf", "p", "--paper", "Letter", "--plain-print"}),
              (RenderOptions{.outputs = {{"pdf", "p"}}, .smartPrint = false, .paper = QPageSize::Letter}));
    EXPECT_EQ(Parsed({"a.xml", "--as", "pdf", "--paper", "A3"}).paper, QPageSize::A3);
    EXPECT_EQ(Parsed({"a.xml", "--pdf", "p"}).paper, QPageSize::A4);
    EXPECT_EQ(Refused({"a.xml", "--paper", "A3"}), "--paper belongs to pdf only");
    EXPECT_EQ(Refused({"a.xml", "--plain-print", "--xls", "w"}), "--plain-print belongs to pdf only");
    EXPECT_EQ(Refused({"a.xml", "--pdf", "p", "--paper", "a4"}),
              "--paper must be one of: A4, A3, A2, A1, A0, A5, Letter, Legal, Tabloid");
}

TEST(CommandLineRender, EveryPaperHasItsSize)
{
    const QList<std::pair<const char*, QPageSize::PageSizeId>> papers{
        {"A0", QPageSize::A0},         {"A1", QPageSize::A1},       {"A2", QPageSize::A2},
        {"A3", QPageSize::A3},         {"A4", QPageSize::A4},       {"A5", QPageSize::A5},
        {"Letter", QPageSize::Letter}, {"Legal", QPageSize::Legal}, {"Tabloid", QPageSize::Tabloid}};
    for (const auto& [name, size] : papers)
        EXPECT_EQ(Parsed({"a.xml", "--pdf", "p", "--paper", name}).paper, size) << name;
}

TEST(CommandLineRender, ATitleBelongsToAPicture)
{
    EXPECT_EQ(Parsed({"a.xml", "--png", "p", "--title", "T t"}),
              (RenderOptions{.outputs = {{"png", "p"}}, .title = "T t"}));
    EXPECT_EQ(Parsed({"a.xml", "--title", "T t"}).title, "T t");
    EXPECT_EQ(Refused({"a.xml", "--title", "T", "--pdf", "p"}), "--title belongs to png only");
}

TEST(CommandLineRender, NothingIsWrittenTwice)
{
    EXPECT_EQ(Refused({"a.xml", "--pdf", "f", "--xls", "./f"}), "'./f' would be written twice");
    EXPECT_EQ(Refused({"a.xml", "--pdf", "f", "--messages", "f"}), "'f' would be written twice");
    EXPECT_EQ(Refused({"a.xml", "--pdf", "f", "--save", "f"}), "'f' would be written twice");
    EXPECT_EQ(Refused({"a/x.xml", "b/x.xml", "--out", "o"}), "'o/x.png' would be written twice");
    EXPECT_EQ(Refused({"a.xml", "b.xml", "--out", "o", "--save", "s"}), "--save takes one file at a time");
}

} // namespace schedules::host
