// The options editor beside the schedule, and closing with something unsaved.

#include "ShownProject.h"

#include <QAbstractItemView>

namespace schedules::host::testing {

namespace {

struct ProjectWindowOptions : ShownProject
{
    void Customize()
    {
        Pick({"P-1"});
        Trigger("btnCustomize");
        ASSERT_NE(window->Options(), nullptr);
    }

    /// Takes the check of a data item away, so that the schedule does not show it, or gives it back.
    void Toggle(const char* item)
    {
        window->Options()->SelectGroup("Design");
        window->Options()->SelectItem(item);
        auto* items = window->Options()->Widget().findChild<QAbstractItemView*>(QStringLiteral("lstItems"));
        QTest::keyClick(items, Qt::Key_Space);
        ASSERT_TRUE(window->Options()->HasUnsavedEdits());
    }

    void PressInEditor(const char* name) { Press(window->Options()->Widget(), name); }
};

} // namespace

TEST_F(ProjectWindowOptions, CustomizeOpensTheEditorBesideTheSchedule)
{
    Customize();
    EXPECT_TRUE(window->Options()->Widget().isVisible());
    EXPECT_TRUE(View().Widget().isVisible());
    EXPECT_EQ(window->Options()->TemplateFile(), "Both.xml");
}

TEST_F(ProjectWindowOptions, ApplyChangesTheScheduleAtOnceAndStoresTheTemplate)
{
    Customize();
    Toggle("Head");
    PressInEditor("cmdApply");
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12");
    EXPECT_TRUE(project->TemplateText("Both.xml").contains("ShowThisItem=\"0\""));
    EXPECT_NE(window->Options(), nullptr);
}

TEST_F(ProjectWindowOptions, OkAndCancelCloseTheEditorAndUndoNothing)
{
    Customize();
    Toggle("Head");
    PressInEditor("cmdOK");
    EXPECT_EQ(window->Options(), nullptr);
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12");
    Trigger("btnCustomize");
    ASSERT_NE(window->Options(), nullptr) << "a new one each time";
    PressInEditor("cmdCancel");
    EXPECT_EQ(window->Options(), nullptr);
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12");
}

TEST_F(ProjectWindowOptions, CustomizeAgainOpensANewEditorUnlessThereAreEdits)
{
    Customize();
    Toggle("Head");
    unsaved = {UnsavedValues::Keep};
    Trigger("btnCustomize");
    EXPECT_EQ(asked, QStringList{"Both.xml"});
    EXPECT_TRUE(window->Options()->HasUnsavedEdits());
    unsaved = {UnsavedValues::Discard};
    Trigger("btnCustomize");
    EXPECT_FALSE(window->Options()->HasUnsavedEdits());
}

TEST_F(ProjectWindowOptions, AnotherCategoryClosesTheEditor)
{
    Customize();
    Toggle("Head");
    unsaved = {UnsavedValues::Keep};
    Choose(1);
    EXPECT_NE(window->Options(), nullptr);
    EXPECT_FALSE(ShowsSelector());
    unsaved = {UnsavedValues::Discard};
    Choose(1);
    EXPECT_EQ(window->Options(), nullptr);
    EXPECT_TRUE(ShowsSelector());
}

TEST_F(ProjectWindowOptions, ApplyAsksFirstWhenTheScheduleHasUnsavedValues)
{
    Customize();
    Edit(1, 1, "12.5");
    Toggle("Head");
    unsaved = {UnsavedValues::Keep};
    PressInEditor("cmdApply");
    EXPECT_EQ(asked, QStringList{"The schedule"});
    EXPECT_TRUE(View().Dirty());
    EXPECT_EQ(TextAt(1, 1), "12.5");

    Toggle("Head");
    unsaved = {UnsavedValues::Save};
    PressInEditor("cmdApply");
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12.5\nHead | 48");
    EXPECT_FALSE(View().Dirty());
}

TEST_F(ProjectWindowOptions, DiscardedValuesAreGoneWhenTheTemplateIsApplied)
{
    Customize();
    Edit(1, 1, "12.5");
    Toggle("Head");
    unsaved = {UnsavedValues::Discard};
    PressInEditor("cmdApply");
    EXPECT_EQ(TextAt(1, 1), "12");
    EXPECT_EQ(Stored("P-1", kFlow), "12 v1");
}

TEST_F(ProjectWindowOptions, ADeletedTemplateLeavesTheProject)
{
    Choose(0, 1);
    Customize();
    ASSERT_EQ(window->Options()->TemplateFile(), "Flow.xml");
    user.answers = {Answer::Yes};
    PressInEditor("cmdDelete");
    EXPECT_EQ(Drawn(project->Templates()), "Both Both.xml PUMPS default");
    EXPECT_EQ(Categories(), "Pumps (2)\n  Both *\nFans (1)");
}

TEST_F(ProjectWindowOptions, AnotherLanguageAsksAndClosesTheEditor)
{
    Customize();
    Toggle("Head");
    unsaved = {UnsavedValues::Keep, UnsavedValues::Discard};
    Menu(QStringLiteral("Français"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_NE(window->Options(), nullptr);
    Menu(QStringLiteral("Français"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(window->Options(), nullptr);
}

TEST_F(ProjectWindowOptions, ClosingAsksAboutValuesAndTemplate)
{
    Customize();
    Toggle("Head");
    Edit(1, 1, "12.5");
    unsaved = {UnsavedValues::Keep};
    EXPECT_FALSE(window->close());
    unsaved = {UnsavedValues::Discard, UnsavedValues::Keep};
    EXPECT_FALSE(window->close()) << "the values";
    unsaved = {UnsavedValues::Save, UnsavedValues::Save};
    asked.clear();
    EXPECT_TRUE(window->close());
    EXPECT_EQ(asked, (QStringList{"Both.xml", "The schedule"}));
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_TRUE(project->TemplateText("Both.xml").contains("ShowThisItem=\"0\""));
}

TEST_F(ProjectWindowOptions, ClosingWithoutEditsAsksNothing)
{
    Customize();
    EXPECT_TRUE(window->close());
    EXPECT_EQ(asked, QStringList());
}

} // namespace schedules::host::testing
