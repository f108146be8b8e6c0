// What a host does with the editor through `ITemplateEditor` and the property `HasUnsavedEdits`.

#include "OptionsTest.h"
#include "framework/ITemplateEditor.h"

#include <QMetaProperty>
#include <QSignalSpy>

namespace schedules::testing {

class TemplateEditor : public OptionsTest
{
protected:
    ITemplateEditor& Typed() const
    {
        auto* const typed = qobject_cast<ITemplateEditor*>(static_cast<QObject*>(editor.get()));
        EXPECT_TRUE(typed);
        return *typed;
    }
};

TEST_F(TemplateEditor, IsFoundBesideTheToolInterface)
{
    EXPECT_EQ(Typed().TemplateFile(), "") << "before the start-up";
    EXPECT_TRUE(qobject_cast<IToolUI*>(static_cast<QObject*>(editor.get())));
}

TEST_F(TemplateEditor, ChoosesATemplateAsTheUserDoes)
{
    Start();
    EXPECT_EQ(Typed().TemplateFile(), "pumps.xml");
    ChooseTemplate(1);
    const std::string asTheUserDoes = Screen();
    ChooseTemplate(0);
    EXPECT_TRUE(Typed().ChooseTemplate("FANS.xml")) << "letter case aside";
    EXPECT_EQ(Screen(), asTheUserDoes);
    EXPECT_EQ(Typed().TemplateFile(), "fans.xml");
    EXPECT_EQ(Log(), "") << "nobody is asked or told";
}

TEST_F(TemplateEditor, ChoosesNoTemplateThatIsNotListed)
{
    Start();
    const std::string before = Screen();
    for (const char* fileName : {"", "pumps", "none.xml", "Pumps"})
        EXPECT_FALSE(Typed().ChooseTemplate(fileName)) << fileName;
    EXPECT_EQ(Screen(), before);
}

TEST_F(TemplateEditor, ChoosingTheCurrentTemplateDropsItsEditsAsTheListDoes)
{
    Start();
    MarkGroup("Design");
    EXPECT_TRUE(Typed().ChooseTemplate("pumps.xml"));
    EXPECT_FALSE(Typed().HasUnsavedEdits());
}

TEST_F(TemplateEditor, SelectsGroupsAndItemsAsClicksDo)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    const std::string asClicksDo = Screen();
    Typed().ChooseTemplate("pumps.xml");
    EXPECT_TRUE(Typed().SelectGroup("Design"));
    EXPECT_TRUE(Typed().SelectItem("*Duty note"));
    EXPECT_EQ(Screen(), asClicksDo);
    EXPECT_FALSE(Typed().HasUnsavedEdits());
}

TEST_F(TemplateEditor, SelectsNothingThatIsNotListed)
{
    Start();
    EXPECT_FALSE(Typed().SelectItem("Flow")) << "no group is selected";
    EXPECT_FALSE(Typed().SelectGroup("Nothing"));
    EXPECT_TRUE(Typed().SelectGroup("Design"));
    EXPECT_FALSE(Typed().SelectItem("Power")) << "an item of another group";
    EXPECT_EQ(DrawnGroupList(), "> [x] Design | [x] Motor | [ ] Vendor");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
}

TEST_F(TemplateEditor, SelectsNoItemOfAGroupThatIsNotShown)
{
    Start();
    EXPECT_TRUE(Typed().SelectGroup("Vendor"));
    EXPECT_FALSE(Typed().SelectItem("Price"));
}

TEST_F(TemplateEditor, SelectsNothingThatTheFilterHides)
{
    Start();
    Groups().ShowOnly("mot");
    EXPECT_FALSE(Typed().SelectGroup("Design"));
    EXPECT_TRUE(Typed().SelectGroup("Motor"));
}

TEST_F(TemplateEditor, PressesApplyOnlyWhileItIsEnabled)
{
    Start();
    EXPECT_FALSE(Typed().Apply());
    EXPECT_EQ(Log(), "");
    MarkGroup("Design");
    EXPECT_TRUE(Typed().Apply());
    EXPECT_EQ(host.Names().last(), "SETCURRENTSCHEDTEMPLATE");
    EXPECT_FALSE(Typed().HasUnsavedEdits());
}

TEST_F(TemplateEditor, PressesCancel)
{
    Start();
    EXPECT_TRUE(Typed().Cancel());
    EXPECT_EQ(Names(), "UnloadScheduleOptions");
    editor->IToolUI_Deactivate(false);
    EXPECT_FALSE(Typed().Cancel());
}

TEST_F(TemplateEditor, DoesNothingOnceItIsDeactivated)
{
    Start();
    editor->IToolUI_Deactivate(false);
    EXPECT_EQ(Typed().TemplateFile(), "");
    EXPECT_FALSE(Typed().ChooseTemplate("fans.xml"));
    EXPECT_FALSE(Typed().SelectGroup("Design"));
    EXPECT_FALSE(Typed().Apply());
}

TEST_F(TemplateEditor, ACallThatIsItsEndSaysNo)
{
    for (const char* last : {"SETCURRENTSCHEDTEMPLATE", "UnloadScheduleOptions"}) {
        editor = std::make_unique<ctlSchedOptions>(&user);
        Start();
        MarkGroup("Design");
        host.onSend = [&](const QString& name) {
            if (name == last)
                editor.reset();
        };
        ITemplateEditor& typed = Typed();
        EXPECT_FALSE(QLatin1String(last) == QLatin1String("UnloadScheduleOptions") ? typed.Cancel() : typed.Apply());
        EXPECT_FALSE(editor);
        host.onSend = nullptr;
    }
}

// The property.

TEST_F(TemplateEditor, TellsWhetherThereAreUnsavedEditsWhenThatChanges)
{
    Start();
    QSignalSpy told(editor.get(), &ctlSchedOptions::HasUnsavedEditsChanged);
    ClickGroup("Design");
    EXPECT_EQ(told.count(), 0) << "a look changes nothing";
    MarkItem("Flow");
    EXPECT_EQ(told.count(), 1);
    MarkItem("Head");
    EXPECT_EQ(told.count(), 1) << "there were some already";
    Click("cmdApply");
    EXPECT_EQ(told.count(), 2);
    MarkGroup("Motor");
    ChooseTemplate(1);
    EXPECT_EQ(told.count(), 4) << "another template has none";
    MarkGroup("Air");
    editor->IToolUI_Deactivate(false);
    EXPECT_EQ(told.count(), 6);
}

TEST_F(TemplateEditor, HasSavedItsEditsWhenTheHostHearsOfTheTemplate)
{
    Start();
    MarkGroup("Design");
    QSignalSpy told(editor.get(), &ctlSchedOptions::HasUnsavedEditsChanged);
    host.onSend = [&](const QString& name) {
        if (name == "SETCURRENTSCHEDTEMPLATE") {
            EXPECT_FALSE(editor->HasUnsavedEdits());
            EXPECT_EQ(told.count(), 1);
        }
    };
    Click("cmdApply");
    EXPECT_EQ(told.count(), 1);
}

TEST_F(TemplateEditor, MayBeDeletedByWhoHearsOfUnsavedEdits)
{
    Start();
    QObject::connect(editor.get(), &ctlSchedOptions::HasUnsavedEditsChanged, [this] { editor.reset(); });
    MarkGroup("Design");
    EXPECT_FALSE(editor);
}

TEST_F(TemplateEditor, TheNotifierIsThatOfTheProperty)
{
    const QMetaObject& meta = ctlSchedOptions::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty("HasUnsavedEdits"));
    EXPECT_EQ(property.notifySignal().name(), "HasUnsavedEditsChanged");
}

} // namespace schedules::testing
