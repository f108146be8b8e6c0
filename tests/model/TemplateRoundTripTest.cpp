// Thousands of templates at random: read, written, read again.

#include "model/Inside.h"
#include "model/OtherReader.h"
#include "model/RandomTemplates.h"
#include "model/TemplatesFolder.h"

#include <QStringEncoder>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kMany = 2000;

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
