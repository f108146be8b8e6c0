#include "model/CTemplate.h"

#include "model/Inside.h"
#include "model/TemplatesFolder.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

using CTemplateTest = TemplateFixture;

} // namespace

TEST(CTemplate, IsEmptyWhenItIsNew)
{
    ScriptedUserInterface user;
    const CTemplate model(user);
    EXPECT_EQ(model.ID(), 0);
    EXPECT_EQ(model.Name(), "");
    EXPECT_EQ(model.FilePath(), "");
    EXPECT_EQ(model.Filename(), "");
    EXPECT_EQ(model.Pdsg(), "");
    EXPECT_FALSE(model.Protected());
    EXPECT_FALSE(model.DefaultForCategory());
    EXPECT_FALSE(model.Dirty());
    EXPECT_EQ(model.Category(), nullptr);
    EXPECT_EQ(model.Groups().Count(), 0);
    EXPECT_EQ(model.Properties().Count(), 0);
    EXPECT_FALSE(model.IsDefaultTemplate());
}

TEST_F(CTemplateTest, ItsNameLosesBlanksAtTheEnds)
{
    model.SetName("  Pump  schedule ");
    EXPECT_EQ(model.Name(), "Pump  schedule");
    model.SetName("\tA\u00A0");
    EXPECT_EQ(model.Name(), "\tA\u00A0");
}

TEST_F(CTemplateTest, OtherTextsAreKeptAsTheyAre)
{
    model.SetFilePath(" /a ");
    model.SetFilename(" b.xml ");
    model.SetPdsg(" p ");
    EXPECT_EQ(model.FilePath(), " /a ");
    EXPECT_EQ(model.Filename(), " b.xml ");
    EXPECT_EQ(model.Pdsg(), " p ");
}

TEST_F(CTemplateTest, ItsFlagsCanBeSetAndTakenBack)
{
    model.SetProtected(true);
    model.SetDefaultForCategory(true);
    model.SetDirty(true, Inside());
    EXPECT_TRUE(model.Protected() && model.DefaultForCategory() && model.Dirty());
    model.SetProtected(false);
    EXPECT_FALSE(model.Protected());
    EXPECT_TRUE(model.DefaultForCategory() && model.Dirty());
}

TEST_F(CTemplateTest, ItsNumberIsWrittenInside)
{
    model.SetID(12, Inside());
    EXPECT_EQ(model.ID(), 12);
}

TEST_F(CTemplateTest, RefersToItsCategory)
{
    const auto category = std::make_shared<CCategory>();
    model.SetCategory(category);
    EXPECT_EQ(model.Category(), category);
    model.SetCategory(nullptr);
    EXPECT_EQ(model.Category(), nullptr);
}

TEST_F(CTemplateTest, ReadingTouchesNothingThatTheCatalogueKnows)
{
    const auto category = std::make_shared<CCategory>();
    model.SetID(12, Inside());
    model.SetName("Pumps");
    model.SetPdsg("p");
    model.SetProtected(true);
    model.SetCategory(category);
    model.SetDirty(true, Inside());
    EXPECT_TRUE(Read("<Template ID='1' Name='x' Pdsg='x' Category='x' DefaultForCategory='-1' FilePath='x'/>"));
    EXPECT_EQ(model.ID(), 12);
    EXPECT_EQ(model.Name(), "Pumps");
    EXPECT_EQ(model.Pdsg(), "p");
    EXPECT_EQ(model.FilePath(), folder.Path());
    EXPECT_EQ(model.Filename(), "t.xml");
    EXPECT_TRUE(model.Protected());
    EXPECT_FALSE(model.DefaultForCategory());
    EXPECT_EQ(model.Category(), category);
    EXPECT_TRUE(model.Dirty());
}

TEST_F(CTemplateTest, ReadingDoesNotMakeItDirty)
{
    EXPECT_TRUE(Read("<Template/>"));
    EXPECT_FALSE(model.Dirty());
}

TEST_F(CTemplateTest, IsTheDefaultWhenItsFileNamesNoCategory)
{
    EXPECT_TRUE(Read("<Template Name='x'/>"));
    EXPECT_TRUE(model.IsDefaultTemplate());
}

TEST_F(CTemplateTest, IsNoDefaultWhenItsFileNamesACategoryEvenAnEmptyOneInAnyCase)
{
    for (const char* xml : {"<Template Category='PUMPS'/>", "<Template Category=''/>", "<Template CATEGORY='PUMPS'/>"})
    {
        EXPECT_TRUE(Read(xml));
        EXPECT_FALSE(model.IsDefaultTemplate()) << xml;
    }
}

TEST_F(CTemplateTest, IsNoDefaultUntilItIsLoaded)
{
    EXPECT_FALSE(model.IsDefaultTemplate());
    EXPECT_FALSE(Read("<Template"));
    EXPECT_FALSE(model.IsDefaultTemplate());
    EXPECT_FALSE(Read("<Other/>"));
    EXPECT_FALSE(model.IsDefaultTemplate());
    EXPECT_FALSE(Read("<Template><Group/></Template>"));
    EXPECT_FALSE(model.IsDefaultTemplate());
    EXPECT_FALSE(Read("<Template><Group Name='A'><Item/></Group></Template>"));
    EXPECT_FALSE(model.IsDefaultTemplate());
}

TEST_F(CTemplateTest, StaysLoadedWhenALaterReadingFails)
{
    EXPECT_TRUE(Read("<Template/>"));
    for (const char* xml : {"<Template", "<Other/>", "<Template><Group/></Template>"}) {
        EXPECT_FALSE(Read(xml));
        EXPECT_TRUE(model.IsDefaultTemplate()) << xml;
    }
}

TEST_F(CTemplateTest, WhatTheListCallsADefaultDoesNotCount)
{
    EXPECT_TRUE(Read("<Template Category='PUMPS'/>"));
    model.SetDefaultForCategory(true);
    EXPECT_FALSE(model.IsDefaultTemplate());
    EXPECT_TRUE(Read("<Template DefaultForCategory='0'/>"));
    model.SetDefaultForCategory(false);
    EXPECT_TRUE(model.IsDefaultTemplate());
}

TEST_F(CTemplateTest, TheCategoryPropertyDecidesAsItIsNow)
{
    EXPECT_TRUE(Read("<Template Category='PUMPS'/>"));
    model.Properties().Remove("Category");
    EXPECT_TRUE(model.IsDefaultTemplate());
    model.Properties().Add("Category", "PUMPS");
    EXPECT_FALSE(model.IsDefaultTemplate());
}

TEST_F(CTemplateTest, TellsThePlaceOfAGroupByItsNumber)
{
    EXPECT_TRUE(Read("<Template><Group Name='A'/><Group Name='B'/><Group Name='C'/></Template>"));
    EXPECT_EQ(model.GroupIndexFromID(1), 1);
    EXPECT_EQ(model.GroupIndexFromID(3), 3);
    model.Groups().Remove("A");
    EXPECT_EQ(model.GroupIndexFromID(3), 2);
    EXPECT_EQ(model.GroupIndexFromID(1), -1);
}

TEST_F(CTemplateTest, TellsThatThereIsNoGroupOfANumber)
{
    EXPECT_EQ(model.GroupIndexFromID(0), -1);
    EXPECT_EQ(model.GroupIndexFromID(1), -1);
    model.Groups().AddNew("A");
    EXPECT_EQ(model.GroupIndexFromID(2), -1);
    EXPECT_EQ(model.GroupIndexFromID(-1), -1);
}

TEST_F(CTemplateTest, TellsThePlaceOfTheFirstGroupOfANumber)
{
    for (const char* name : {"A", "B", "C"})
        model.Groups().AddNew(name);
    model.Groups().Item("B")->SetID(3, Inside());
    EXPECT_EQ(model.GroupIndexFromID(3), 2);
}
