#include "host/HostProgram.h"

#include <QDir>
#include <QStringConverter>

namespace schedules::host::testing {

namespace {

const QByteArray kCategories = "<Categories><Category name=\"PUMPS\" displayname=\"Pumps\"/></Categories>";

/// An entry of the list, and its line in what is printed when there is no such file.
const QByteArray kEntry = "<Template name=\"A\" filename=\"none.xml\"/>";
const std::string kLine = R"({"id":1,"name":"A","filename":"none.xml","pdsg":"","protected":false,)"
                          R"("defaultForCategory":false,"category":null,"categoryDisplayName":null,)"
                          R"("isDefaultTemplate":false,"groups":[]})";

struct SchedhostCatalogue : HostProgram
{
    Outcome Run(const QByteArray& list, const QByteArray& categories = kCategories, const QStringList& more = {"."})
    {
        return Schedhost(QStringList{"catalogue", Written("list.xml", list), Written("categories.xml", categories)} +
                         more);
    }

    static QByteArray List(const QByteArray& entries) { return "<Templates>" + entries + "</Templates>"; }

    /// What is printed for these entries, nothing being wrong with them.
    std::string Printed(const QByteArray& entries, const QStringList& more = {"."})
    {
        const Outcome run = Run(List(entries), kCategories, more);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        return run.out.toStdString();
    }

    std::string Failure(const Outcome& run)
    {
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
        return run.err.toStdString();
    }
};

} // namespace

TEST_F(SchedhostCatalogue, PrintsTheCatalogue)
{
    Written("pumps.xml", "<Template Category=\"PUMPS\">"
                         "<Group Name=\"Design\"><Item Name=\"Flow\"><Location>P/\"Flow\"</Location></Item>"
                         "<Item Name=\"Head\"/></Group><Group Name=\"Vendor\"/></Template>");
    Written("general.xml", "<Template><Group Name=\"Основное\"/></Template>");
    EXPECT_EQ(Printed("<Template name=\"Pumps\" filename=\"pumps.xml\" pdsg=\"D-1\" readonly=\"-1\" category=\"pumps\" "
                      "defaultforcategory=\"True\"/>"
                      "<Template name=\"General\" filename=\"general.xml\" pdsg=\"\" readonly=\"0\" "
                      "category=\"UNKNOWN\" defaultforcategory=\"0\"/>"),
              R"([
{"id":1,"name":"Pumps","filename":"pumps.xml","pdsg":"D-1","protected":true,"defaultForCategory":true,"category":"PUMPS","categoryDisplayName":"Pumps","isDefaultTemplate":false,"groups":[{"id":1,"name":"Design","items":[{"id":1,"name":"Flow","location":"P/\"Flow\""},{"id":2,"name":"Head","location":""}]},{"id":2,"name":"Vendor","items":[]}]},
{"id":2,"name":"General","filename":"general.xml","pdsg":"","protected":false,"defaultForCategory":false,"category":null,"categoryDisplayName":null,"isDefaultTemplate":true,"groups":[{"id":1,"name":"Основное","items":[]}]}
]
)");
}

TEST_F(SchedhostCatalogue, AListWithoutTemplatesIsAnEmptyArray)
{
    EXPECT_EQ(Printed(""), "[]\n");
}

TEST_F(SchedhostCatalogue, ATemplateWhoseFileIsMissingIsListedAndNotTold)
{
    EXPECT_EQ(Printed(kEntry), "[\n" + kLine + "\n]\n");
}

TEST_F(SchedhostCatalogue, TheFolderMayHaveAnyLettersAndSeparators)
{
    ASSERT_TRUE(QDir(Path(QString())).mkpath("папка 水/b"));
    Written("папка 水/b/a.xml", "<Template><Group Name=\"found\"/></Template>");
    const QStringList folders{"папка 水/b", "папка 水/b/", "папка 水\\b\\", Path("папка 水/b")};
    for (const QString& folder : folders)
        EXPECT_NE(Printed("<Template name=\"A\" filename=\"a.xml\"/>", {folder}).find("found"), std::string::npos)
            << qPrintable(folder);
}

TEST_F(SchedhostCatalogue, AListThatIsNotWellFormedIs1062)
{
    const std::string line = "The list of schedule templates could not be read. (1062)\n";
    EXPECT_EQ(Failure(Run("<Templates>")), line);
    EXPECT_EQ(Failure(Run("<Templates name=\"\xE9\"/>")), line);
    EXPECT_EQ(Failure(Run("no list")), line);
}

TEST_F(SchedhostCatalogue, TheMessageIsInTheLanguageAskedFor)
{
    EXPECT_EQ(Failure(Run("<Templates>", kCategories, {".", "--language", "de"})),
              "Die Liste der Vorlagen konnte nicht gelesen werden. (1062)\n");
}

TEST_F(SchedhostCatalogue, ABlankListOrFolderIsAFailureWithoutANumber)
{
    const std::string line = "a list or the folder's name is blank\n";
    EXPECT_EQ(Failure(Run("")), line);
    EXPECT_EQ(Failure(Run("  ")), line);
    EXPECT_EQ(Failure(Run(List(kEntry), " ")), line);
    EXPECT_EQ(Failure(Run(List(kEntry), kCategories, {" "})), line);
    EXPECT_EQ(Failure(Run(List(kEntry), kCategories, {""})), line);
}

TEST_F(SchedhostCatalogue, CategoriesThatCannotBeReadAreNone)
{
    const Outcome run = Run(List(kEntry), "<Categories>");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out.toStdString(), "[\n" + kLine + "\n]\n");
    EXPECT_EQ(run.err, "");
}

TEST_F(SchedhostCatalogue, AListThatIsNotThereIsToldInOneLine)
{
    const QString list = Written("list.xml", List(kEntry));
    EXPECT_EQ(Failure(Schedhost({"catalogue", "absent.xml", list, "."})),
              "cannot read absent.xml: No such file or directory\n");
    EXPECT_EQ(Failure(Schedhost({"catalogue", list, "absent.xml", "."})),
              "cannot read absent.xml: No such file or directory\n");
}

TEST_F(SchedhostCatalogue, ListsMayBeUtf16)
{
    const QString list = "<?xml version=\"1.0\" encoding=\"UTF-16\"?><Templates><Template name=\"насос\" "
                         "category=\"насосы\"/></Templates>";
    const QString categories = "<Categories><Category name=\"насосы\" displayname=\"Насосы\"/></Categories>";
    QStringEncoder encoder(QStringConverter::Utf16BE, QStringConverter::Flag::WriteBom);
    const QByteArray encodedList = encoder(list);
    encoder.resetState();
    const QByteArray encodedCategories = encoder(categories);
    const Outcome run = Run(encodedList, encodedCategories);
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_NE(run.out.indexOf("\"category\":\"насосы\",\"categoryDisplayName\":\"Насосы\""), -1) << run.out.constData();
}

TEST_F(SchedhostCatalogue, EveryReportIsALineAndTheRestIsPrinted)
{
    Written("group.xml", "<Template><Group Name=\"kept\"/><Group/></Template>");
    Written("item.xml", "<Template><Group Name=\"kept, too\"><Item/></Group></Template>");
    Written("good.xml", "<Template><Group Name=\"good\"/></Template>");
    const Outcome run =
        Run(List("<Template name=\"1\" filename=\"group.xml\"/><Template name=\"2\" filename=\"item.xml\"/>"
                 "<Template name=\"3\" filename=\"good.xml\"/>"));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err.toStdString(), "group.xml: A group in the template has no name. (3023)\n"
                                     "item.xml: A data item in the template has no name. (3022)\n");
    for (const char* group : {"\"kept\"", "\"kept, too\"", "\"good\""})
        EXPECT_TRUE(run.out.contains(group)) << group;
}

TEST_F(SchedhostCatalogue, AFlagThatIsNoneFailsWithThatReport)
{
    Written("group.xml", "<Template><Group/></Template>");
    const QByteArray entries = "<Template name=\"1\" filename=\"group.xml\"/><Template name=\"2\" readonly=\"maybe\"/>";
    EXPECT_EQ(Failure(Run(List(entries))), "\"maybe\" is neither true nor false.\n")
        << "not what is wrong with a template before it";
}

TEST_F(SchedhostCatalogue, NeedsNoPlatform)
{
    auto environment = Bare();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    const QStringList arguments{"catalogue", Written("list.xml", List("")), Written("c.xml", kCategories), "."};
    EXPECT_EQ(Schedhost(arguments, environment).out, "[]\n");
}

} // namespace schedules::host::testing
