// That a layout holds what the component's own model reads from the same template.

#include "Drawings.h"
#include "model/CTemplate.h"
#include "support/ScriptedUserInterface.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

QString TextOf(const CProperties& properties, const char* name)
{
    const auto property = properties.Item(QString(name));
    return property ? schedules::TextOf(property->Value()) : QString();
}

bool Flag(const CProperties& properties, const char* name, bool missing)
{
    const auto property = properties.Item(QString(name));
    return property ? FlagOf(property->Value()) : missing;
}

QString Caption(const CProperties& properties, const QString& name)
{
    const QString shown = TextOf(properties, "DisplayName");
    return shown.isEmpty() ? name : shown;
}

ItemLayout LayoutOf(const CElement& item)
{
    const CProperties& properties = item.Properties();
    return {.location = item.Location(),
            .caption = Caption(properties, item.Name()),
            .shown = Flag(properties, "ShowThisItem", true),
            .unitShown = Flag(properties, "ShowUnitLabel", false),
            .unit = TextOf(properties, "UnitID"),
            .dataType = TextOf(properties, "DataType"),
            .format = TextOf(properties, "DataFormat"),
            .userDefined = Flag(properties, "UserDefined", false)};
}

GroupLayout LayoutOf(const CGroup& group)
{
    const CProperties& properties = group.Properties();
    GroupLayout layout{.caption = Caption(properties, group.Name()),
                       .shown = Flag(properties, "ShowThisGroup", true),
                       .nameShown = Flag(properties, "ShowGroupName", false),
                       .bold = Flag(properties, "FontBold", false),
                       .color = TextOf(properties, "bgColor"),
                       .items = {}};
    for (const auto& item : group.Elements().NewEnum())
        layout.items.append(LayoutOf(*item));
    return layout;
}

/// What the model reads from a file.
std::string DrawnModel(const QString& folder, const QString& fileName)
{
    schedules::testing::ScriptedUserInterface user;
    CTemplate model(user);
    model.SetFilePath(folder);
    model.SetFilename(fileName);
    EXPECT_TRUE(model.XMLToObject()) << qPrintable(fileName);
    TemplateLayout layout;
    layout.tagsAsRows = TextOf(model.Properties(), "SchedOrientation") == "1";
    layout.editable = Flag(model.Properties(), "AllowEdit", true);
    for (const auto& group : model.Groups().NewEnum())
        layout.groups.append(LayoutOf(*group));
    return Drawn(layout);
}

QString Content(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    return QString::fromUtf8(file.readAll());
}

void ExpectTheSame(const QString& xml)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("t.xml"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(xml.toUtf8());
    file.close();
    EXPECT_EQ(Drawn(ReadTemplateLayout(xml)), DrawnModel(folder.path(), "t.xml")) << qPrintable(xml);
}

} // namespace

TEST(TemplateLayoutAndModel, AgreeOnTheSamples)
{
    const QDir samples(SCHEDULES_SOURCE_DIR "/samples/templates");
    const QStringList names = samples.entryList({"*.xml"});
    ASSERT_GT(names.size(), 20);
    for (const QString& name : names)
        EXPECT_EQ(Drawn(ReadTemplateLayout(Content(samples.filePath(name)))), DrawnModel(samples.path(), name));
}

TEST(TemplateLayoutAndModel, AgreeOnNamesThatAreTaken)
{
    ExpectTheSame("<Template><Group Name='a'><Item Name='x'/></Group><Group Name='A '><Item/></Group>"
                  "<Group Name='Σ'/><Group Name='ς'/><Group Name='σ'/><Group Name='ß'/><Group Name='SS'/>"
                  "<Group Name='İ'/><Group Name='i'/><Group Name='I'/><Group Name='ı'/></Template>");
    QString many = "<Template>"; // so many that the model looks them up another way
    for (int number = 0; number < 40; ++number)
        many += QStringLiteral("<Group Name='g%1'/><Group Name=' G%1'/>").arg(number);
    ExpectTheSame(many + "</Template>");
}

TEST(TemplateLayoutAndModel, AgreeOnBlanksAndOtherSpace)
{
    ExpectTheSame(
        "<Template>\n<Group Name='  a  ' DisplayName='  a '>\n<Item Name='&#160;b' UnitID='m'>\n"
        "<Location>\n  A/B\t </Location></Item><Item Name='b&#10;'><Location>&#9;A&#13;\r\nB</Location></Item>"
        "<Item Name='c'><Location>   </Location></Item></Group></Template>");
}

TEST(TemplateLayoutAndModel, AgreeOnWhatStandsInLocations)
{
    ExpectTheSame("<Template><Group Name='g'>"
                  "<Item Name='a'><Location>A<!-- c --> <?p?>B<x> C</x> <y>D</y></Location></Item>"
                  "<Item Name='b'><Location><![CDATA[ A ]]> <![CDATA[&]]>B&lt;&#x4E2D;</Location></Item>"
                  "<Item Name='c'><Location>A<Location>B</Location></Location><Location>C</Location></Item>"
                  "<Item Name='d'><x><Location>deep</Location></x><Location/></Item></Group></Template>");
}

TEST(TemplateLayoutAndModel, AgreeOnOtherElementsAndNamespaces)
{
    ExpectTheSame("<r xmlns:n='u'><n:Template/><o><Template AllowEdit='0' n:AllowEdit='-1'><n:Group Name='n'/>"
                  "<Group n:Name='x' Name='g' xmlns:m='v'><Group Name='inner'/><Item Name='i' m:Name='j'>"
                  "<n:Location>n</n:Location><Location>l</Location></Item><m:Item Name='k'/></Group>text<!-- c -->"
                  "<Template><Group Name='second'/></Template></Template></o><Template><Group Name='third'/></Template>"
                  "</r>");
}

TEST(TemplateLayoutAndModel, AgreeOnAttributesThatDifferInLetterCase)
{
    ExpectTheSame("<Template allowedit='0' AllowEdit='-1'><Group Name='g' showthisgroup='0' SHOWGROUPNAME='-1' "
                  "ShowGroupName='0' name='x'><Item name='x' Name='i' UNITID='m' unitid='ft'/></Group></Template>");
}

} // namespace schedules::host::testing
