#include "model/CTemplate.h"
#include "model/TemplatesFolder.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

using CTemplateFile = TemplateFixture;

const QByteArray kXml = "<Template a='1'><Group Name='A'/></Template>";

} // namespace

TEST_F(CTemplateFile, IsTheSameAfterItWasRead)
{
    EXPECT_TRUE(Read(kXml));
    EXPECT_FALSE(model.FileDiffers());
}

TEST_F(CTemplateFile, IsTheSameAfterItWasWrittenOverWithTheSame)
{
    EXPECT_TRUE(Read(kXml));
    folder.Write("t.xml", kXml);
    EXPECT_FALSE(model.FileDiffers());
}

TEST_F(CTemplateFile, IsTheSameWhateverHappensToTheTemplate)
{
    EXPECT_TRUE(Read(kXml));
    model.Properties().Clear();
    model.Groups().Clear();
    EXPECT_FALSE(model.FileDiffers());
}

TEST_F(CTemplateFile, DiffersWhenSomebodyChangedIt)
{
    EXPECT_TRUE(Read(kXml));
    for (const QByteArray& changed : {kXml + ' ', QByteArray(kXml).replace('1', '2'), QByteArray("<Other/>"),
                                      kXml.chopped(1), QByteArray(), QByteArray("\xFF"), QByteArray(kXml) + '\0'})
    {
        folder.Write("t.xml", changed);
        EXPECT_TRUE(model.FileDiffers()) << changed.toStdString();
    }
    EXPECT_EQ(Drawn(model), "a='1'\n  1 A: Name='A'\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateFile, DiffersFromATemplateThatWasNeverRead)
{
    folder.Write("t.xml", kXml);
    EXPECT_TRUE(model.FileDiffers());
}

TEST_F(CTemplateFile, DiffersNotWhenThereIsNone)
{
    EXPECT_FALSE(model.FileDiffers());
    EXPECT_TRUE(Read(kXml));
    model.SetFilename("missing.xml");
    EXPECT_FALSE(model.FileDiffers());
}

TEST_F(CTemplateFile, DiffersNotAnyMoreWhenItIsReadAgain)
{
    EXPECT_TRUE(Read(kXml));
    EXPECT_FALSE(Read("<Template"));
    EXPECT_TRUE(model.FileDiffers());
    EXPECT_TRUE(Read("<Template b='2'/>"));
    EXPECT_FALSE(model.FileDiffers());
}

TEST_F(CTemplateFile, IsReadInPartOnlyWhenSomethingHasNoName)
{
    EXPECT_FALSE(model.ReadInPart());
    EXPECT_FALSE(Read("<Template><Group/></Template>"));
    EXPECT_TRUE(model.ReadInPart());
    EXPECT_TRUE(Read(kXml));
    EXPECT_FALSE(model.ReadInPart());
    EXPECT_FALSE(Read("<Template><Group Name='A'><Item/></Group></Template>"));
    EXPECT_TRUE(model.ReadInPart());
    EXPECT_FALSE(Read("<Other/>"));
    EXPECT_FALSE(model.ReadInPart());
}

TEST_F(CTemplateFile, StaysReadInPartWhenALaterReadingChangesNothing)
{
    EXPECT_FALSE(Read("<Template><Group/></Template>"));
    EXPECT_FALSE(Read("<Template"));
    EXPECT_TRUE(model.ReadInPart());
}
