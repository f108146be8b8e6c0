#include "tools/options/TemplateFilesTest.h"

#include <sys/stat.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

namespace fs = std::filesystem;

constexpr const char* kUnusual[]{
    "it's.xml", "say \"x\".xml", "*.xml", "a?.xml", "*", "[a-z].xml", "Насосы.xml", "𝄞.xml",
    " x .xml",  ".hidden",       "...",   "a..b",   "-", "~",         "%1.xml",     "c:"};

} // namespace

TEST(TemplateFiles, IsKnownUnlessBlank)
{
    EXPECT_FALSE(TemplateFiles({}).IsKnown());
    EXPECT_FALSE(TemplateFiles(Text("   ")).IsKnown());
    EXPECT_TRUE(TemplateFiles(Text(" /x ")).IsKnown());
}

TEST(TemplateFiles, APathIsTheFolderASeparatorAndTheName)
{
    EXPECT_EQ(TemplateFiles(Text("C:\\t")).PathOf(Text("a.xml")), Text("C:\\t\\a.xml"));
    EXPECT_EQ(TemplateFiles(Text(" C:\\t\\ ")).PathOf(Text("a.xml")), Text("C:\\t\\a.xml"));
    EXPECT_EQ(TemplateFiles(Text("/t")).PathOf(Text("a.xml")), Text("/t\\a.xml"));
}

TEST_F(TemplateFilesTest, EveryWayToWriteTheFolderLeadsThere)
{
    Write("a.xml", "a");
    const QString path = m_around.path() + "/templates";
    for (const QString& written : {path, path + '/', path + '\\', "  " + path + "  ", QString(path).replace('/', '\\')})
    {
        const TemplateFiles folder(written);
        EXPECT_TRUE(folder.Holds("a.xml")) << written.toStdString();
        EXPECT_TRUE(folder.HasFile("a.xml")) << written.toStdString();
        EXPECT_EQ(folder.Content("a.xml"), QByteArray("a")) << written.toStdString();
        folder.Replace("b.xml", "b");
        EXPECT_EQ(Read("b.xml"), "b") << written.toStdString();
        folder.Delete("b.xml");
        EXPECT_EQ(Names(), "a.xml") << written.toStdString();
    }
}

TEST_F(TemplateFilesTest, AnUnknownFolderHoldsNothing)
{
    const TemplateFiles unknown(Text("  "));
    EXPECT_FALSE(unknown.Holds("a.xml"));
    EXPECT_FALSE(unknown.HasFile("."));
    EXPECT_EQ(unknown.Content("a.xml"), std::nullopt);
    EXPECT_EQ(Failure([&] { unknown.Replace("a.xml", {}); }), "Missing: 3073");
    EXPECT_EQ(Failure([&] { unknown.Delete("a.xml"); }), "Missing: 3073");
    EXPECT_EQ(Failure([&] { unknown.RequireDeletable("a.xml"); }), "Missing: 3073");
}

TEST_F(TemplateFilesTest, NamesThatLeadElsewhereOrNowhereAreRefused)
{
    const QString names[]{"../outside.xml",
                          "..\\outside.xml",
                          "sub/a.xml",
                          "sub\\a.xml",
                          "/etc/passwd",
                          ".",
                          "..",
                          "a\nb.xml",
                          "a\tb",
                          QString("a") + QChar(0),
                          QString(256, 'a'),
                          QString(128, QChar(0x416)),
                          QString("a") + QChar(0xD800),
                          QString("a") + QChar(0xDCFF),
                          QString("a") + QChar(0xFFFF)};
    for (const QString& name : names) {
        EXPECT_FALSE(Folder().Holds(name)) << name.toStdString();
        EXPECT_FALSE(Folder().HasFile(name)) << name.toStdString();
        EXPECT_EQ(Folder().Content(name), std::nullopt) << name.toStdString();
        EXPECT_EQ(Failure([&] { Folder().Replace(name, "new"); }), kRefused) << name.toStdString();
        EXPECT_EQ(Failure([&] { Folder().Delete(name); }), kRefused) << name.toStdString();
        EXPECT_EQ(Failure([&] { Folder().RequireDeletable(name); }), kRefused) << name.toStdString();
    }
    EXPECT_EQ(Names(), "");
}

TEST_F(TemplateFilesTest, ABlankNameIsNoneAndDeletesNothing)
{
    Write("a.xml", "a");
    for (const char* name : {"", "  "}) {
        EXPECT_FALSE(Folder().Holds(Text(name)));
        EXPECT_FALSE(Folder().HasFile(Text(name)));
        EXPECT_EQ(ReplaceFailure(name), kRefused);
        EXPECT_EQ(DeleteFailure(name), "");
        EXPECT_EQ(Failure([&] { TemplateFiles({}).Delete(Text(name)); }), "");
    }
    EXPECT_EQ(Names(), "a.xml");
}

TEST_F(TemplateFilesTest, UnusualNamesAreTakenLiterally)
{
    for (const char* name : kUnusual) {
        Write("decoy.xml", "decoy");
        Write("ab.xml", "ab");
        EXPECT_TRUE(Folder().Holds(Text(name))) << name;
        EXPECT_FALSE(Folder().HasFile(Text(name))) << name;
        EXPECT_EQ(DeleteFailure(name), "") << name;
        Folder().Replace(Text(name), name);
        EXPECT_EQ(Read(name), name);
        EXPECT_TRUE(Folder().HasFile(Text(name))) << name;
        EXPECT_EQ(Folder().Content(Text(name)), QByteArray(name));
        EXPECT_EQ(DeleteFailure(name), "") << name;
        EXPECT_EQ(Names(), "ab.xml decoy.xml") << name;
    }
}

TEST_F(TemplateFilesTest, TheLongestNameIsHeld)
{
    const QString longest(255, 'a');
    EXPECT_TRUE(Folder().Holds(longest));
    EXPECT_TRUE(Folder().Holds(QString(127, QChar(0x416)) + 'a'));
    Folder().Replace(longest, "long");
    EXPECT_EQ(Folder().Content(longest), QByteArray("long"));
    Folder().Delete(longest);
    EXPECT_EQ(Names(), "");
}

TEST_F(TemplateFilesTest, OnlyFilesHaveContent)
{
    fs::create_directory(Place("sub"));
    ASSERT_EQ(::mkfifo(Place("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Folder().Content("sub"), std::nullopt);
    EXPECT_EQ(Folder().Content("pipe"), std::nullopt);
    EXPECT_EQ(Folder().Content("none.xml"), std::nullopt);
}

TEST_F(TemplateFilesTest, ContentIsByteForByte)
{
    const QByteArray content("\xEF\xBB\xBF<a>\r\n\0\xFF</a>", 14);
    Write("a.xml", content);
    EXPECT_EQ(Folder().Content("a.xml"), content);
    Folder().Replace("b.xml", content);
    EXPECT_EQ(Read("b.xml"), content);
    Folder().Replace("b.xml", {});
    EXPECT_EQ(Folder().Content("b.xml"), QByteArray(""));
}

TEST_F(TemplateFilesTest, ContentIsBounded)
{
    constexpr std::uintmax_t kMost = 64 * 1024 * 1024;
    Write("large.xml", {});
    fs::resize_file(Place("large.xml"), kMost);
    EXPECT_EQ(Folder().Content("large.xml")->size(), static_cast<qsizetype>(kMost));
    fs::resize_file(Place("large.xml"), kMost + 1);
    EXPECT_EQ(Folder().Content("large.xml"), std::nullopt);
}

TEST_F(TemplateFilesTest, ThePermissionsOfAReplacedFileStay)
{
    Write("a.xml", "a");
    Mode("a.xml", 0640);
    Folder().Replace("a.xml", "new");
    EXPECT_EQ(fs::status(Place("a.xml")).permissions(), static_cast<fs::perms>(0640));
}
