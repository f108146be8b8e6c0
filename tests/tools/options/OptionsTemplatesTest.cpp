// Which templates the selector lists, and what choosing one does.

#include "OptionsTest.h"

#include <QAbstractItemView>
#include <QLabel>

namespace schedules::testing {

using OptionsTemplates = OptionsTest;

namespace {

const std::string kAlways = "cboTemplates lstGroups cmdSaveAs cmdDelete cmdOK cmdCancel";

std::string Listed(const QComboBox& templates)
{
    QStringList texts;
    for (int index = 0; index < templates.count(); ++index)
        texts += templates.itemText(index) + " = " + templates.itemData(index).toString();
    return texts.join('\n').toStdString();
}

} // namespace

TEST_F(OptionsTemplates, AreListedByDisplayNameAndCategory)
{
    Start();
    EXPECT_EQ(Listed(Templates()), "Pump schedule - Pumps = 1\nFan schedule - Fans = 2\nRooms = 3");
}

TEST_F(OptionsTemplates, AreListedInTheOrderOfTheHost)
{
    List({"name='Z' filename='rooms.xml'", "name='A' filename='fans.xml'", "name='M' filename='pumps.xml'"});
    Start();
    EXPECT_EQ(Listed(Templates()), "Z = 1\nFan schedule = 2\nPump schedule = 3");
}

TEST_F(OptionsTemplates, OfACategoryWithoutADisplayNameAreListedWithoutOne)
{
    host.replies["GETTEMPLATECATEGORIES"] = "<C><Category name='PUMPS'/><Category name='FANS' displayname='  '/></C>";
    Start();
    EXPECT_EQ(Listed(Templates()), "Pump schedule = 1\nFan schedule = 2\nRooms = 3");
}

TEST_F(OptionsTemplates, OfACategoryThatIsUnknownAreListedWithoutOne)
{
    host.replies["GETTEMPLATECATEGORIES"] = "<C><Category name='FANS' displayname='Fans'/></C>";
    Start();
    EXPECT_EQ(Listed(Templates()), "Pump schedule = 1\nFan schedule - Fans = 2\nRooms = 3");
}

TEST_F(OptionsTemplates, WithoutADisplayNameAreListedByName)
{
    Write("rooms.xml", "Category='FANS'", "");
    List({"name='Rooms' filename='rooms.xml' category='PUMPS'", "name='Lost' filename='lost.xml'"});
    Start();
    EXPECT_EQ(Listed(Templates()), "Rooms - Pumps = 1\nLost = 2");
}

TEST_F(OptionsTemplates, WithAnEmptyDisplayNameAreListedByIt)
{
    ListOne(kPumps, "DisplayName=''");
    Start();
    EXPECT_EQ(Listed(Templates()), " = 1");
}

TEST_F(OptionsTemplates, AreListedAsTheyAreWritten)
{
    ListOne(kPumps, "DisplayName='  A&amp;B &lt;b&gt; '");
    Start();
    EXPECT_EQ(Listed(Templates()), "  A&B <b>  = 1");
}

TEST_F(OptionsTemplates, TheCurrentOneIsNamedInTheFrameWithItsFile)
{
    List({"name='R&amp;D' filename='pumps.xml'"});
    Start();
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  R&&D");
    EXPECT_EQ(Find<QLabel>("templateFileName")->text(), "pumps.xml");
}

TEST_F(OptionsTemplates, AProtectedOneCannotBeDeleted)
{
    Start();
    EXPECT_TRUE(IsEnabled("cmdDelete"));
    ChooseTemplate(2);
    EXPECT_FALSE(IsEnabled("cmdDelete"));
    ChooseTemplate(1);
    EXPECT_TRUE(IsEnabled("cmdDelete"));
}

TEST_F(OptionsTemplates, ChoosingOneShowsIt)
{
    Start();
    ChooseTemplate(1);
    EXPECT_EQ(Screen(), "Fan schedule - Fans / Missing: 3077  Fans\n[x] Air\nMissing: 1040 / [ ]\n\n\n" + kAlways);
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsTemplates, ChoosingOneWithTheMouseShowsIt)
{
    Start();
    Templates().showPopup();
    QAbstractItemView& list = *Templates().view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list.window()));
    const QPoint second = list.visualRect(list.model()->index(1, 0)).center();
    QTest::mouseMove(list.viewport(), second);
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a click soon after opening is not one on an entry
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(Screen(), "Fan schedule - Fans / Missing: 3077  Fans\n[x] Air\nMissing: 1040 / [ ]\n\n\n" + kAlways);
}

TEST_F(OptionsTemplates, ChoosingOneForgetsGroupAndItem)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    ChooseTemplate(1);
    EXPECT_EQ(Screen(), "Fan schedule - Fans / Missing: 3077  Fans\n[x] Air\nMissing: 1040 / [ ]\n\n\n" + kAlways);
}

TEST_F(OptionsTemplates, ChoosingTheCurrentOneShowsItAnew)
{
    Start();
    const std::string before = Screen();
    ClickGroup("Design");
    ClickItem("*Duty note");
    ChooseTemplateAgain();
    EXPECT_EQ(Screen(), before);
}

TEST_F(OptionsTemplates, ChoosingOneWithoutAFileShowsNoGroups)
{
    List({"name='Pumps' filename='pumps.xml'", "name='Lost' filename='lost.xml'"});
    Start();
    ChooseTemplate(1);
    EXPECT_EQ(Screen(), "Lost / Missing: 3077  Lost\n\nMissing: 1040 / [ ]\n\n\n" + kAlways);
}

TEST_F(OptionsTemplates, NoneIsChosenBeforeTheFirstActivation)
{
    Initialize();
    Templates().setEnabled(true);
    Templates().addItem("Planted", 1);
    Show();
    const std::string before = DrawnGroupList();
    host.sent.clear();
    QTest::keyClick(&Templates(), Qt::Key_Down);
    EXPECT_EQ(DrawnGroupList(), before);
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "");
    EXPECT_EQ(Log(), "");
}

// Edits.

TEST_F(OptionsTemplates, AnEditMakesItDirtyAndCanBeApplied)
{
    Start();
    EXPECT_FALSE(IsEnabled("cmdApply"));
    MarkGroup("Motor");
    EXPECT_TRUE(IsEnabled("cmdApply"));
    EXPECT_TRUE(editor->property("HasUnsavedEdits").toBool());
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  Pumps *");
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsTemplates, ASecondEditChangesNothingOfThat)
{
    Start();
    MarkGroup("Motor");
    MarkGroup("Motor");
    EXPECT_TRUE(IsEnabled("cmdApply"));
    EXPECT_TRUE(editor->HasUnsavedEdits());
}

TEST_F(OptionsTemplates, EditsAreDroppedWithoutAQuestionByChoosingAnotherOne)
{
    Start();
    MarkGroup("Motor");
    ChooseTemplate(1);
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_FALSE(IsEnabled("cmdApply"));
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  Fans");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsTemplates, DroppedEditsAreStillThereAndMarkedWhenItIsChosenAgain)
{
    Start();
    MarkGroup("Motor");
    ChooseTemplate(1);
    ChooseTemplate(0);
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps *\n"
                        "[x] Design | [ ] Motor | [ ] Vendor\n"
                        "Missing: 1040 / [ ]\n\n\n" +
                            kAlways);
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsTemplates, DroppedEditsAreNotSavedByOk)
{
    const std::string before = Content("pumps.xml");
    Start();
    MarkGroup("Motor");
    ChooseTemplateAgain();
    Click("cmdOK");
    EXPECT_EQ(Names(), "SETCURRENTSCHEDTEMPLATE UnloadScheduleOptions");
    EXPECT_EQ(Content("pumps.xml"), before);
}

TEST_F(OptionsTemplates, ChoosingTheCurrentOneDropsItsEditsToo)
{
    Start();
    MarkGroup("Motor");
    ChooseTemplateAgain();
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_FALSE(IsEnabled("cmdApply"));
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  Pumps *");
}

TEST_F(OptionsTemplates, AFurtherEditOfAMarkedOneIsUnsavedAgain)
{
    Start();
    MarkGroup("Motor");
    ChooseTemplateAgain();
    MarkGroup("Vendor");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_TRUE(IsEnabled("cmdApply"));
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  Pumps *");
}

TEST_F(OptionsTemplates, LookingAtAllOfThemDirtiesNone)
{
    Start();
    for (const int index : {1, 2, 1, 0, 2, 0}) {
        ChooseTemplate(index);
        for (int group = 0; group < Groups().Count(); ++group) {
            ClickGroup(Groups().Text(group));
            for (int item = 0; item < Items().Count(); ++item)
                ClickItem(Items().Text(item));
        }
        EXPECT_FALSE(editor->HasUnsavedEdits());
        EXPECT_FALSE(IsEnabled("cmdApply"));
    }
    EXPECT_FALSE(Find<QGroupBox>("fraTemplate")->title().endsWith('*'));
    EXPECT_EQ(Model(), DrawnGroups(TemplateText({}, kPumps)));
}

} // namespace schedules::testing
