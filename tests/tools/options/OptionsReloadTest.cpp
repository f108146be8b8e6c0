// What is on the screen after everything was asked for anew.

#include "SavingTest.h"

namespace schedules::testing {

namespace {

/// Groups "Group 0" to "Group 59", with 60 data items each.
QString ManyGroups()
{
    QString drawing;
    for (int group = 0; group < 60; ++group) {
        drawing += QString("[x] Group %1\n").arg(group);
        for (int item = 0; item < 60; ++item)
            drawing += QString("  [x] Item %1\n").arg(item);
    }
    return drawing;
}

} // namespace

class OptionsReload : public SavingTest
{
protected:
    void StartWithMany()
    {
        ListOne(ManyGroups(), "Name='Pumps' DisplayName='D' Category='C'");
        Start();
    }

    /// "group|item|top group|top item"
    std::string Place() const
    {
        const auto entry = [](const CheckList& list) { return list.Text(list.CurrentRow()); };
        const QStringList place{entry(Groups()), entry(Items()), QString::number(Groups().verticalScrollBar()->value()),
                                QString::number(Items().verticalScrollBar()->value())};
        return place.join('|').toStdString();
    }

    static void ScrollTo(const CheckList& list, int top) { list.verticalScrollBar()->setValue(top); }
};

TEST_F(OptionsReload, SelectionAndScrollPositionsComeBack)
{
    StartWithMany();
    ClickGroup("Group 29");
    ClickItem("Item 41");
    MarkItem("Item 41");
    const std::string before = Place();
    Apply();
    EXPECT_EQ(Place(), before);
    EXPECT_EQ(before.substr(0, 17), "Group 29|Item 41|");
    EXPECT_FALSE(IsDirty());
}

TEST_F(OptionsReload, ListsThatWereScrolledAwayFromTheSelectionStayThere)
{
    StartWithMany();
    ClickGroup("Group 1");
    MarkItem("Item 2");
    ScrollTo(Groups(), 27);
    ScrollTo(Items(), 28);
    ASSERT_EQ(Place(), "Group 1|Item 2|27|28");
    Apply();
    EXPECT_EQ(Place(), "Group 1|Item 2|27|28");
    QTest::qWait(0);
    EXPECT_EQ(Place(), "Group 1|Item 2|27|28") << "also once everything has been laid out";
}

TEST_F(OptionsReload, WithoutASelectionTheGroupsStayScrolled)
{
    StartWithMany();
    ScrollTo(Groups(), 26);
    SaveAs("New");
    EXPECT_EQ(Place(), "||26|0");
    QTest::qWait(0);
    EXPECT_EQ(Place(), "||26|0") << "also once everything has been laid out";
}

TEST_F(OptionsReload, AGroupWithoutASelectedItemComesBackWithoutOne)
{
    StartWithMany();
    MarkGroup("Group 3");
    MarkGroup("Group 3");
    Apply();
    EXPECT_EQ(Place(), "Group 3||0|0");
    EXPECT_EQ(Drawn(Items()).substr(0, 10), "[x] Item 0");
}

TEST_F(OptionsReload, TheNameEditorComesBackWithTheItem)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    TypeName("New note");
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    Apply();
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | > [x] *New note");
    EXPECT_EQ(NameBox().text(), "New note");
    EXPECT_TRUE(NameBox().isEnabled());
    EXPECT_FALSE(IsEnabled("cmdUpdateUDItemName"));
}

TEST_F(OptionsReload, MembersAreFoundByNameNotByPlace)
{
    Start();
    ClickGroup("Motor");
    ClickItem("Power");
    Click("cmdGroupMove", 0);
    Apply();
    EXPECT_EQ(DrawnGroupList(), "> [x] Motor | [x] Design | [ ] Vendor");
    EXPECT_EQ(DrawnItemList(), "> [x] Power");
}

TEST_F(OptionsReload, WhatTheNewTemplateDoesNotHaveIsNotSelected)
{
    Start();
    ClickGroup("Motor");
    ClickItem("Power");
    user.answers = {Answer::Yes};
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "fans.xml";
    Click("cmdDelete");
    EXPECT_EQ(Current(), "Missing: 3077  Rooms");
    EXPECT_EQ(DrawnGroupList(), "[x] Room");
    EXPECT_EQ(DrawnItemList(), "");
}

TEST_F(OptionsReload, AnItemThatIsGoneLeavesTheGroupSelected)
{
    Start();
    ClickGroup("Design");
    ClickItem("Flow");
    MarkItem("Flow");
    Write("other.xml", "Name='Other' DisplayName='D' Category='C'", "[x] Design\n  [x] Head\n");
    inside = [this](const QString& name) {
        if (name == "GETTEMPLATECATEGORIES") {
            QFile::remove(PathOf("pumps.xml"));
            QFile::rename(PathOf("other.xml"), PathOf("pumps.xml"));
        }
    };
    Apply();
    EXPECT_EQ(DrawnGroupList(), "> [x] Design");
    EXPECT_EQ(DrawnItemList(), "[x] Head");
}

TEST_F(OptionsReload, AGroupThatIsNoLongerListedIsNotSelected)
{
    Start();
    ClickGroup("Design");
    MarkItem("Flow");
    Write("other.xml", "Name='Other'", "[x] ~Design\n[x] Motor\n");
    inside = [this](const QString& name) {
        if (name == "GETTEMPLATECATEGORIES") {
            QFile::remove(PathOf("pumps.xml"));
            QFile::rename(PathOf("other.xml"), PathOf("pumps.xml"));
        }
    };
    Apply();
    EXPECT_EQ(DrawnGroupList(), "[x] Motor");
    EXPECT_EQ(DrawnItemList(), "");
}

TEST_F(OptionsReload, TheSavedFileWinsOverWhatTheScheduleUses)
{
    Start();
    ChooseTemplate(1);
    Edit();
    Apply();
    EXPECT_EQ(Current(), "Missing: 3077  Fans");
    EXPECT_EQ(Templates().currentText(), "Fan schedule - Fans");
    EXPECT_EQ(Names(), "GETTEMPLATELIST GETTEMPLATELIST UPDATESCHEDCONFIG GETTEMPLATELIST GETBUILDERPATH "
                       "GETTEMPLATECATEGORIES GETCURRENTSCHEDTEMPLATE SETCURRENTSCHEDTEMPLATE");
}

TEST_F(OptionsReload, TheSavedFilesExactNameWinsOverOneInAnotherLetterCase)
{
    Write("PUMPS.xml", "Name='Upper' DisplayName='U' Category='C'", "[x] Upper\n");
    List({"name='Upper' filename='PUMPS.xml'", "name='Pumps' filename='pumps.xml'"});
    Start();
    ASSERT_EQ(Current(), "Missing: 3077  Upper") << "activation takes the first in any letter case";
    ChooseTemplate(1);
    Edit();
    Apply();
    EXPECT_EQ(Current(), "Missing: 3077  Pumps");
    EXPECT_EQ(Listed(), "Upper=PUMPS.xml Pumps=pumps.xml");
}

TEST_F(OptionsReload, ASavedFileIsFoundInAnotherLetterCase)
{
    Start();
    Edit();
    inside = [this](const QString& name) {
        if (name == "UPDATESCHEDCONFIG")
            List({"name='Other' filename='other.xml'", "name='Pumps' filename='PUMPS.XML'"});
    };
    Apply();
    EXPECT_EQ(Current(), "Missing: 3077  Pumps");
}

TEST_F(OptionsReload, AHostWhoseListLacksTheSavedFileKeepsWhatItUses)
{
    Start();
    Edit();
    inside = [this](const QString& name) {
        if (name == "UPDATESCHEDCONFIG") {
            List({"name='Fans' filename='fans.xml'"});
            host.replies["GETCURRENTSCHEDTEMPLATE"] = "fans.xml";
        }
    };
    Apply();
    EXPECT_EQ(Current(), "Missing: 3077  Fans");
}

TEST_F(OptionsReload, AnEmptyListOrPathShowsNothing)
{
    for (const char* reply : {"GETTEMPLATELIST", "GETBUILDERPATH"}) {
        const auto before = host.replies;
        editor = std::make_unique<ctlSchedOptions>(&watched);
        Start();
        Edit();
        inside = [&](const QString& name) {
            if (name == "UPDATESCHEDCONFIG")
                host.replies[reply] = "";
        };
        Apply();
        EXPECT_EQ(Screen(), " / \n\nMissing: 1040 / [ ]\n\n\ncmdOK cmdCancel") << reply;
        EXPECT_FALSE(IsDirty());
        host.replies = before;
    }
}

TEST_F(OptionsReload, AListThatIsNoXmlIsToldAndTheCatalogueStays)
{
    Start();
    Edit();
    inside = [&](const QString& name) {
        if (name == "UPDATESCHEDCONFIG")
            host.replies["GETTEMPLATELIST"] = "nonsense";
    };
    Apply();
    EXPECT_EQ(Boxes(), "Missing: 1062 (16) Schedules.CTemplates.CreateObjects");
    EXPECT_EQ(Templates().count(), 3);
    EXPECT_EQ(DrawnGroupList(), "> [ ] Design | [x] Motor | [ ] Vendor");
    EXPECT_FALSE(IsDirty());
}

TEST_F(OptionsReload, EveryTemplateIsReadAnew)
{
    Start();
    Write("fans.xml", "Name='Fans' DisplayName='By somebody else' Category='FANS'", "[x] Other\n");
    Edit();
    Apply();
    ChooseTemplate(1);
    EXPECT_EQ(Templates().currentText(), "By somebody else - Fans");
    EXPECT_EQ(DrawnGroupList(), "[x] Other");
}

TEST_F(OptionsReload, EditsOfOtherTemplatesThatWereLeftBehindAreGone)
{
    Start();
    ChooseTemplate(1);
    Edit();
    ChooseTemplate(0);
    Edit();
    Apply();
    ChooseTemplate(1);
    EXPECT_EQ(DrawnGroupList(), "[x] Air");
    EXPECT_EQ(Current(), "Missing: 3077  Fans") << "and so is the mark";
}

TEST_F(OptionsReload, FillingTheListsDoesNotDirty)
{
    Start();
    Edit();
    Apply();
    EXPECT_FALSE(IsDirty());
    ClickGroup("Motor");
    ClickItem("Power");
    ChooseTemplate(2);
    EXPECT_FALSE(IsDirty());
}

} // namespace schedules::testing
