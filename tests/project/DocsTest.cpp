// The pages of documentation against what they describe: messages, attributes, commands, names in the sources, and the
// pages and places that they point to.

#include "ProjectTexts.h"
#include "framework/MessageTable.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace schedules;
using namespace schedules::testing;

QString Code(const QString& text)
{
    return '`' + text + '`';
}

/// "`Cancel` (8), `Caller` (2)", or "none".
QString ParametersOf(const MessageForm& form)
{
    QStringList parameters;
    for (const ParameterForm& parameter : form.parameters)
        parameters << QStringLiteral("%1 (%2)").arg(Code(parameter.name)).arg(static_cast<int>(parameter.type));
    return parameters.isEmpty() ? QStringLiteral("none") : parameters.join(", ");
}

/// A message's row in the table of the page.
QString RowOf(const MessageForm& form)
{
    const QStringList fields{Code(form.name),
                             form.kind == MessageKind::Event ? "event" : "request",
                             QStringLiteral("%1, %2").arg(form.firstCode).arg(form.secondCode),
                             form.recipient ? form.recipient : "owner",
                             ParametersOf(form),
                             form.sentWhen};
    return "\n| " + fields.join(" | ") + " |\n";
}

/// The pages at the top and every page below docs.
QStringList Pages()
{
    QStringList pages{"README.md", "CONTRIBUTING.md", "CHANGELOG.md"};
    QDirIterator found(kProject + "/docs", {"*.md"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        pages << QDir(kProject).relativeFilePath(found.next());
    return pages;
}

/// A page without its examples, in which brackets and number signs mean something else.
QString TextOf(const QString& page)
{
    static const QRegularExpression example("^```.*?^```$", QRegularExpression::MultilineOption |
                                                                QRegularExpression::DotMatchesEverythingOption);
    return '\n' + ContentOf(page).remove(example);
}

/// The links and pictures of a page that lead to files of the project, or to places in them.
QStringList LinksOf(const QString& page)
{
    QStringList links = Captured(TextOf(page), R"re(\]\(([^)\s]+)\))re");
    links.removeIf([](const QString& target) { return target.contains(':'); });
    return links;
}

/// Without the places in them.
QStringList LinkedFiles(const QString& page)
{
    QStringList files;
    for (const QString& link : LinksOf(page))
        files << link.section('#', 0, 0);
    files.removeAll(QString());
    return files;
}

/// The page, or another file, that a link of a page leads to.
QString TargetOf(const QString& page, const QString& link)
{
    const QString file = link.section('#', 0, 0);
    return file.isEmpty() ? page : QDir::cleanPath(QFileInfo(page).path() + '/' + file);
}

/// What a link says for a heading: its words in small letters, joined by hyphens.
QString PlaceOf(const QString& heading)
{
    static const QRegularExpression sign(R"re([^\w -])re", QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(sign).replace(' ', '-');
}

QStringList PlacesIn(const QString& page)
{
    QStringList places;
    for (const QString& heading : Captured(TextOf(page), R"re(\n#+ ([^\n]+))re"))
        places << PlaceOf(heading);
    return places;
}

QString SourcesBelow(const QString& folder)
{
    QString sources;
    QDirIterator found(kProject + '/' + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        sources += ContentOf(QDir(kProject).relativeFilePath(found.next()));
    return sources;
}

/// The pages that tell how the code is made.
QStringList PagesOnCode()
{
    return Pages().filter(QRegularExpression("^docs/(architecture|host-protocol|model|schedule-xml|adr/.*)\\.md$"));
}

} // namespace

TEST(Docs, TheHostProtocolHasEveryMessageAsItIsSent)
{
    const QString page = ContentOf("docs/host-protocol.md");
    for (const MessageForm& form : MessageTable())
        EXPECT_TRUE(page.contains(RowOf(form))) << "not there:" << RowOf(form).toStdString();
}

TEST(Docs, TheHostProtocolHasNoOtherMessage)
{
    const QStringList named =
        Captured(ContentOf("docs/host-protocol.md"), R"re(\n\| `(\w+)` \| (?:event|request) \|)re");
    EXPECT_EQ(named.size(), std::ssize(MessageTable()));
}

TEST(Docs, TheHostProtocolTellsWhatIsAnsweredToEachMessage)
{
    const QString section =
        ContentOf("docs/host-protocol.md").section("\n## What this reference host answers\n", 1).section("\n## ", 0, 0);
    for (const MessageForm& form : MessageTable())
        EXPECT_EQ(section.count("\n| " + Code(form.name) + " | "), 1) << form.name;
}

TEST(Docs, TheTableFormatHasEveryAttributeThatTheHostAdds)
{
    const QString section = ContentOf("docs/schedule-xml.md").section("\n### Attributes of this host\n", 1);
    const QStringList attributes = Captured(ContentOf("host/schedule/TableText.h"), R"re(Attribute[{ =(]+"(\w+)")re");
    ASSERT_EQ(attributes.size(), 5);
    for (const QString& attribute : attributes)
        EXPECT_TRUE(section.contains("\n| " + Code(attribute) + " |")) << attribute.toStdString();
}

TEST(Docs, TheTableFormatHasEveryAttributeThatIsRead)
{
    const QString page = ContentOf("docs/schedule-xml.md");
    const QStringList attributes = Captured(ContentOf("src/grid/CellAttributes.cpp"), R"re(name == "(\w+)")re");
    ASSERT_GE(attributes.size(), 7);
    for (const QString& attribute : attributes)
        EXPECT_TRUE(page.contains("\n| " + Code(attribute) + " |")) << attribute.toStdString();
}

TEST(Docs, EveryLinkLeadsToAFile)
{
    ASSERT_GE(Pages().size(), 10);
    for (const QString& page : Pages()) {
        for (const QString& link : LinksOf(page))
            EXPECT_TRUE(QFile::exists(kProject + '/' + TargetOf(page, link)))
                << page.toStdString() << " links " << link.toStdString();
    }
}

TEST(Docs, EveryLinkToAPlaceLeadsToAHeading)
{
    int places = 0;
    for (const QString& page : Pages()) {
        for (const QString& link : LinksOf(page).filter("#")) {
            EXPECT_TRUE(PlacesIn(TargetOf(page, link)).contains(link.section('#', 1)))
                << page.toStdString() << " links " << link.toStdString();
            ++places;
        }
    }
    EXPECT_GE(places, 5);
}

TEST(Docs, TheFirstPageLinksEveryOther)
{
    const QStringList linked = LinkedFiles("README.md");
    for (const QString& page : Pages()) {
        const bool isDecision = page.startsWith("docs/adr/");
        EXPECT_TRUE(page == "README.md" || isDecision || linked.contains(page)) << page.toStdString();
    }
    EXPECT_TRUE(linked.contains("docs/adr"));
}

TEST(Docs, EveryPictureIsShownOnAPage)
{
    QSet<QString> shown;
    for (const QString& page : Pages()) {
        for (const QString& link : LinksOf(page))
            shown << TargetOf(page, link);
    }
    for (const QString& picture : QDir(kProject + "/docs/pictures").entryList({"*.png"}, QDir::Files))
        EXPECT_TRUE(shown.contains("docs/pictures/" + picture)) << picture.toStdString();
}

TEST(Docs, EveryNameOfCodeIsInTheSources)
{
    const QString sources = SourcesBelow("src") + SourcesBelow("host");
    ASSERT_GE(PagesOnCode().size(), 15);
    for (const QString& page : PagesOnCode()) {
        for (const QString& name : Captured(TextOf(page), R"re(`(\w*[a-z]\w*[A-Z]\w*)`)re"))
            EXPECT_TRUE(sources.contains(name)) << page.toStdString() << " names " << name.toStdString();
    }
}

TEST(Docs, TheUsersGuideHasEveryCommand)
{
    const QStringList commands = Captured(ContentOf("host/cli/CommandLineOptions.cpp"), R"re(\{"(\w+)", Form::)re");
    ASSERT_GE(commands.size(), 12);
    const QString page = ContentOf("docs/user-guide.md");
    for (const QString& command : commands)
        EXPECT_TRUE(page.contains("schedhost " + command + ' ')) << command.toStdString();
}

TEST(Docs, EveryLongPageLinksSomething)
{
    for (const char* page : {"docs/schedule-xml.md", "docs/host-protocol.md", "docs/architecture.md"})
        EXPECT_FALSE(LinkedFiles(page).isEmpty()) << page;
}
