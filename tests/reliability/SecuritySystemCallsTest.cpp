// What the program and the component ask of the system while they load, edit, save, export, print and show rich text:
// no network, no process, no thread, no file that nobody named, whatever the data name.

#include "TracedProgram.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// Nobody but the data names it.
constexpr auto kBait = "bait";

/// Whatever a document may name a file or an address with.
QByteArray Table(const QByteArray& bait)
{
    return "<?xml version='1.0'?><?xml-stylesheet type='text/xsl' href='" + bait +
           "'?><TABLE xmlns:xi='http://www.w3.org/2001/XInclude' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
           "xsi:noNamespaceSchemaLocation='file://" +
           bait + "' xml:base='file://" + bait + "'><xi:include href='" + bait +
           "' parse='text'/><TR><TH/><TH>Flow</TH><TH>&lt;img src='" + bait +
           "'&gt;</TH></TR><TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD>&lt;img src='file://" + bait +
           "'&gt;http://example.com</TD></TR></TABLE>";
}

/// Pictures, fields, objects and templates of other files, and of other machines.
QByteArray RichText(const QByteArray& bait)
{
    return "{\\rtf1\\ansi{\\*\\template " + bait + "}{\\field{\\*\\fldinst INCLUDEPICTURE \"" + bait +
           "\" \\\\d}{\\fldrslt a}}{\\field{\\*\\fldinst INCLUDETEXT \"" + bait +
           "\"}{\\fldrslt b}}{\\field{\\*\\fldinst HYPERLINK \"http://example.com/" + bait +
           "\"}{\\fldrslt c}}{\\object\\objautlink\\objupdate{\\*\\objclass Package}{\\*\\objdata 0105}}"
           "{\\*\\filetbl{\\file\\fid0 " +
           bait + "}}{\\pict\\wmetafile8 " + bait + "}<img src=\"" + bait + "\"> These \\b pumps\\b0  are new.}";
}

QByteArray Template(const QByteArray& name)
{
    return "<Template Name=\"" + name + "\" DisplayName=\"" + name +
           "\" Category=\"PUMPS\"><Group Name=\"G\" DisplayName=\"G\" ShowThisGroup=\"-1\"/></Template>";
}

QByteArray TemplateList(const QByteArray& bait)
{
    QByteArray list = "<Templates>";
    int number = 0;
    const QByteArrayList files{
        "pumps.xml",  "../../bait/listed.xml", "..\\..\\bait\\listed.xml", bait + "/listed.xml", "link.xml",
        "../link.xml"};
    for (const QByteArray& file : files)
        list += "<Template name='" + QByteArray::number(++number) + "' filename='" + file +
                "' pdsg='' readonly='0' category='PUMPS' defaultforcategory='0'/>";
    return list + "</Templates>";
}

/// The folder of the bait lies beside what the program is given.
struct SecuritySystemCalls : ::testing::Test
{
    SecuritySystemCalls()
    {
        namespace fs = std::filesystem;
        fs::create_directories(program.PathOf("in/templates").toStdString());
        fs::create_directory(program.PathOf(kBait).toStdString());
        program.Write("bait/b.xml", Template("bait"));
        program.Write("bait/listed.xml", Template("bait"));
        fs::create_symlink("../../bait/listed.xml", program.PathOf("in/templates/link.xml").toStdString());
        fs::create_symlink("../bait/listed.xml", program.PathOf("in/link.xml").toStdString());
        const QByteArray bait = program.PathOf("bait/b.xml").toUtf8();
        program.Write("in/table.xml", Table(bait));
        program.Write("in/message.txt", RichText(bait));
        program.Write("in/list.xml", TemplateList(program.PathOf(kBait).toUtf8()));
        program.Write("in/categories.xml", "<Categories><Category name='PUMPS' displayname='Pumps'/></Categories>");
        program.Write("in/templates/pumps.xml", Template("pumps"));
    }

    /// `written` are the files that were named as to be written, all of which are there afterwards.
    void ExpectHarmless(const QStringList& written = {}) const
    {
        EXPECT_EQ(program.Reached(), "");
        EXPECT_EQ(program.OwnThreads(), 0);
        EXPECT_EQ(program.Changed(written), "");
        EXPECT_EQ(program.ReadElsewhere(), "");
        EXPECT_EQ(program.LeftBehind(written), "");
    }

    void Schedhost(const QStringList& arguments, int exitCode = 0) { program.Run("schedhost", arguments, exitCode); }

    TracedProgram program;
};

} // namespace

TEST_F(SecuritySystemCalls, OfTheComponentAtWorkAreHarmless)
{
    program.Run("reliability_worker", {});
    ExpectHarmless({"out/schedule.xls", "out/schedule.xlsx", "out/schedule.csv", "out/schedule.html",
                    "out/schedule.pdf", "in/templates/pumps.xml"});
    EXPECT_EQ(program.Mentioning("b.xml"), "");
    EXPECT_EQ(program.Opened("listed.xml") + program.Opened("link.xml"), "");
}

TEST_F(SecuritySystemCalls, OfExportsAndPrintsAreHarmless)
{
    Schedhost({"render", "in/table.xml", "--png", "out/s.png", "--pdf", "out/s.pdf", "--xls", "out/s.xls", "--xlsx",
               "out/s.xlsx", "--csv", "out/s.csv", "--html", "out/s.html", "--title", "<img src='bait/b.xml'>"});
    ExpectHarmless({"out/s.png", "out/s.pdf", "out/s.xls", "out/s.xlsx", "out/s.csv", "out/s.html"});
    EXPECT_EQ(program.Mentioning("b.xml"), "");
}

TEST_F(SecuritySystemCalls, OfEditingAndSavingAreHarmless)
{
    Schedhost({"dump", "in/table.xml", "--edit", "1,1=20", "--save", "out/saved.xml", "--messages", "out/messages"});
    ExpectHarmless({"out/saved.xml", "out/messages"});
    EXPECT_EQ(program.Mentioning("b.xml"), "");
}

TEST_F(SecuritySystemCalls, OfADocumentThatIncludesOthersAreHarmless)
{
    const QByteArray bait = program.PathOf("bait/b.xml").toUtf8();
    for (const QByteArray& type : {"<!DOCTYPE TABLE SYSTEM 'file://" + bait + "'>",
                                   "<!DOCTYPE TABLE [<!ENTITY e SYSTEM 'file://" + bait + "'>]>",
                                   "<!DOCTYPE TABLE [<!ENTITY % p SYSTEM 'file://" + bait + "'>%p;]>",
                                   QByteArray("<!DOCTYPE TABLE PUBLIC '-//X' 'http://example.com/x.dtd'>")})
    {
        program.Write("in/table.xml", type + "<TABLE><TR><TH>&e;</TH></TR></TABLE>");
        Schedhost({"dump", "in/table.xml"}, 1);
        ExpectHarmless();
        EXPECT_EQ(program.Mentioning("b.xml"), "") << type.constData();
    }
}

/// Where a link leads is asked for; what is there is not read.
TEST_F(SecuritySystemCalls, OfTemplatesThatAListNamesAreHarmless)
{
    Schedhost({"catalogue", "in/list.xml", "in/categories.xml", "in/templates"});
    ExpectHarmless();
    EXPECT_EQ(program.Opened("listed.xml") + program.Opened("link.xml"), "");
    EXPECT_NE(program.Opened("pumps.xml"), "");
    Schedhost({"options", "in/templates", "--list", "in/list.xml", "--categories", "in/categories.xml", "--current",
               "pumps.xml", "--png", "out/editor.png"});
    ExpectHarmless({"out/editor.png"});
    EXPECT_EQ(program.Opened("listed.xml") + program.Opened("link.xml"), "");
}

TEST_F(SecuritySystemCalls, OfProjectsAreHarmless)
{
    Schedhost({"new", "out/plant.schedules", "--sample"});
    ExpectHarmless({"out/plant.schedules"});
    Schedhost({"schedule", "out/plant.schedules", "--category", "PUMPS", "--pdf", "out/pumps.pdf", "--xlsx",
               "out/pumps.xlsx"});
    ExpectHarmless({"out/plant.schedules", "out/pumps.pdf", "out/pumps.xlsx"});
    program.Write("in/pumps.csv", "tag,category\nP-1,PUMPS\n");
    Schedhost({"import", "out/plant.schedules", "in/pumps.csv"});
    ExpectHarmless({"out/plant.schedules"});
}

/// So what is empty above is not empty because nobody looks.
TEST_F(SecuritySystemCalls, ThatWriteAFileWhichWasNotNamedAreSeen)
{
    Schedhost({"dump", "in/table.xml", "--edit", "1,1=20", "--save", "out/saved.xml"});
    EXPECT_EQ(program.Changed({"out/saved.xml"}), "");
    EXPECT_NE(program.Changed({"out/saved"}), "");
    EXPECT_NE(program.Changed({"out/saved.xml.bak"}), "");
    EXPECT_EQ(program.LeftBehind({"out/other.xml"}), " + out/saved.xml ? out/other.xml");
}

} // namespace schedules::testing
