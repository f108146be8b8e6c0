// Thousands of templates at random: read, written, read again.

#include "model/Inside.h"
#include "model/RandomTemplates.h"
#include "model/TemplatesFolder.h"

#include <QStringEncoder>
#include <QXmlStreamReader>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kMany = 2000;

/// Draws a template that was written, with the eyes of another parser.
class OtherReader
{
public:
    explicit OtherReader(const QString& xml) : m_xml(xml) { m_xml.setNamespaceProcessing(false); }

    std::string Drawn()
    {
        QString drawn;
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isStartElement())
                drawn += DrawnStart();
            else if (m_xml.isCharacters())
                drawn += Visible(m_xml.text().toString());
            else if (m_xml.isEndElement() && m_xml.qualifiedName() == u"Location")
                drawn += '\n';
        }
        return (m_xml.hasError() ? m_xml.errorString() : drawn).toStdString();
    }

private:
    QString DrawnStart()
    {
        const QString element = m_xml.qualifiedName().toString();
        QStringList attributes;
        for (const QXmlStreamAttribute& attribute : m_xml.attributes())
            attributes += Visible(attribute.qualifiedName().toString() + "='" + attribute.value().toString() + '\'');
        const QString drawn = attributes.join(' ');
        if (element == "Group")
            m_items = 0;
        return element == "Template" ? drawn + '\n'
               : element == "Group"  ? QString("  %1 ").arg(++m_groups) + Name() + ": " + drawn + '\n'
               : element == "Item"   ? QString("    %1 ").arg(++m_items) + Name() + ": " + drawn
                                     : " -> ";
    }

    QString Name() const
    {
        QString name = m_xml.attributes().value("Name").toString();
        while (name.startsWith(' '))
            name.remove(0, 1);
        while (name.endsWith(' '))
            name.chop(1);
        return Visible(name);
    }

    QXmlStreamReader m_xml;
    int m_groups = 0;
    int m_items = 0;
};

struct TemplateRoundTrip : TemplateFixture
{
    /// Reads into a template of its own.
    std::unique_ptr<CTemplate> ReadFresh(const QByteArray& file)
    {
        auto fresh = std::make_unique<CTemplate>(user);
        fresh->SetFilePath(folder.Path());
        fresh->SetFilename("t.xml");
        folder.Write("t.xml", file);
        EXPECT_TRUE(fresh->XMLToObject()) << file.toStdString();
        return fresh;
    }

    QByteArray Encoded(const QString& xml)
    {
        QStringEncoder encoder(random.UpTo(1) == 0 ? QStringConverter::Utf8 : QStringConverter::Utf16,
                               QStringConverter::Flag::WriteBom);
        return random.UpTo(1) == 0 ? xml.toUtf8() : QByteArray(encoder(xml));
    }

    template <class Collection>
    void Shuffle(Collection& members)
    {
        for (int moves = random.UpTo(3); moves > 0 && members.Count() > 1; --moves) {
            auto moved = members.Item(Position(random.UpTo(members.Count() - 1) + 1));
            members.Remove(moved->Name());
            members.Add(moved, Position(random.UpTo(members.Count() - 1) + 1));
        }
        if (random.UpTo(5) == 0)
            members.Remove(Position(1));
    }

    void Edit(CProperties& properties)
    {
        for (const auto& property : properties.NewEnum()) {
            const bool isFree = property->Name().toLower() != "name" && !property->Name().startsWith("xmlns");
            if (isFree && random.UpTo(2) == 0)
                property->SetValue(random.Text());
        }
        properties.Add("Added", random.UpTo(1) == 0);
    }

    /// Does to a template what an editor may do.
    void Edit(CTemplate& edited)
    {
        Edit(edited.Properties());
        Shuffle(edited.Groups());
        for (const auto& group : edited.Groups().NewEnum()) {
            Edit(group->Properties());
            Shuffle(group->Elements());
            for (const auto& item : group->Elements().NewEnum())
                Edit(item->Properties());
        }
    }

    /// Gives the numbers that a template has which was just read.
    static void Renumber(CTemplate& renumbered)
    {
        int groups = 0;
        for (const auto& group : renumbered.Groups().NewEnum()) {
            group->SetID(++groups, Inside());
            int items = 0;
            for (const auto& item : group->Elements().NewEnum())
                item->SetID(++items);
        }
    }

    RandomTemplates random{4711};
};

} // namespace

TEST_F(TemplateRoundTrip, RandomFilesAreReadAsTheyAreMeantAndComeBack)
{
    for (int number = 0; number < kMany; ++number) {
        const RandomTemplate file = random.Next();
        const auto first = ReadFresh(Encoded(file.xml));
        ASSERT_EQ(Drawn(*first), file.drawn.toStdString()) << file.xml.toStdString();
        const QString written = first->ObjectToXML();
        ASSERT_EQ(OtherReader(written).Drawn(), file.drawn.toStdString()) << written.toStdString();
        const auto second = ReadFresh(Encoded(written));
        ASSERT_EQ(Drawn(*second), file.drawn.toStdString()) << written.toStdString();
        ASSERT_EQ(second->ObjectToXML(), written);
    }
    EXPECT_EQ(Seen(user), "");
}

TEST_F(TemplateRoundTrip, RandomTemplatesThatWereEditedComeBack)
{
    for (int number = 0; number < kMany; ++number) {
        const auto edited = ReadFresh(random.Next().xml.toUtf8());
        Edit(*edited);
        Renumber(*edited);
        const QString written = edited->ObjectToXML();
        ASSERT_EQ(OtherReader(written).Drawn(), Drawn(*edited)) << written.toStdString();
        const auto second = ReadFresh(written.toUtf8());
        ASSERT_EQ(Drawn(*second), Drawn(*edited)) << written.toStdString();
        ASSERT_EQ(second->ObjectToXML(), written);
    }
    EXPECT_EQ(Seen(user), "");
}
