// The pages of documentation against what they describe: messages, attributes, and the files that they point to.

#include "framework/MessageTable.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace schedules;

const QString kProject = QStringLiteral(SCHEDULES_SOURCE_DIR);

QString ContentOf(const QString& file)
{
    QFile page(kProject + '/' + file);
    return page.open(QFile::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QStringList Captured(const QString& text, const QString& pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

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

/// The README and every page below docs.
QStringList Pages()
{
    QStringList pages{"README.md"};
    QDirIterator found(kProject + "/docs", {"*.md"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        pages << QDir(kProject).relativeFilePath(found.next());
    return pages;
}

/// The targets of the links and pictures of a page that lead to files, without the places in them.
QStringList LinkedFiles(const QString& page)
{
    QStringList files = Captured(ContentOf(page), R"re(\]\(([^)#\s]+)[^)]*\))re");
    files.removeIf([](const QString& target) { return target.contains(':'); });
    return files;
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
        const QDir folder = QFileInfo(kProject + '/' + page).dir();
        for (const QString& file : LinkedFiles(page))
            EXPECT_TRUE(folder.exists(file)) << page.toStdString() << " links " << file.toStdString();
    }
}

TEST(Docs, EveryLongPageLinksSomething)
{
    for (const char* page : {"docs/schedule-xml.md", "docs/host-protocol.md", "docs/architecture.md"})
        EXPECT_FALSE(LinkedFiles(page).isEmpty()) << page;
}
