// The editor for the names of user-defined data items.

#include "OptionsTest.h"

#include <QDialog>
#include <QVBoxLayout>

namespace schedules::testing {

class OptionsNames : public OptionsTest
{
protected:
    /// The editor at a group with all kinds of data items.
    void StartAt(const char* item)
    {
        ListOne("[x] Design\n  [x] Flow\n  [x] *Duty note (Note)\n  [ ] *Hidden note (H)\n"
                "  [x] Plain {UserDefined=0}\n  [x] * (Empty)\n  [x] ~Own {UserDefined=True}\n");
        Start();
        ClickGroup("Design");
        ClickItem(item);
    }

    /// What can be used of the name editor: f(rame), l(abel), t(ext), u(pdate), r(eset).
    std::string Usable() const
    {
        std::string usable;
        for (const auto& [name, letter] :
             {std::pair("fraItem", 'f'), std::pair("lblDisplayName", 'l'), std::pair("txtDisplayName", 't'),
              std::pair("cmdUpdateUDItemName", 'u'), std::pair("cmdResetUDItemName", 'r')})
        {
            if (IsEnabled(name))
                usable += letter;
        }
        return usable;
    }

    /// "text|selected text|what can be used|unsaved".
    std::string Name() const
    {
        return (NameBox().text() + '|' + NameBox().selectedText() + '|').toStdString() + Usable() +
               (editor->HasUnsavedEdits() ? "|unsaved" : "|");
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&NameBox(), key, modifiers); }
};

// Selecting.

TEST_F(OptionsNames, AUserDefinedItemThatIsShownCanBeRenamed)
{
    StartAt("*Duty note");
    EXPECT_EQ(Name(), "Duty note||flt|");
}

TEST_F(OptionsNames, OtherItemsCannot)
{
    StartAt("Flow");
    EXPECT_EQ(Name(), "|||");
    ClickItem("*Duty note");
    ClickItem("Plain");
    EXPECT_EQ(Name(), "|||");
}

TEST_F(OptionsNames, AHiddenOneShowsItsNameOnly)
{
    StartAt("*Hidden note");
    EXPECT_EQ(Name(), "Hidden note|||");
}

TEST_F(OptionsNames, UncheckingTheItemClosesTheEditorAndCheckingOpensIt)
{
    StartAt("*Duty note");
    MarkItem("*Duty note");
    EXPECT_EQ(Name(), "Duty note|||unsaved");
    MarkItem("*Duty note");
    EXPECT_EQ(Name(), "Duty note||flt|unsaved");
}

TEST_F(OptionsNames, WithoutADisplayNameTheBoxIsEmpty)
{
    StartAt("*Duty note");
    Items().setFocus();
    QTest::keyClick(&Items(), Qt::Key_End);
    EXPECT_EQ(Items().CurrentRow(), 5);
    EXPECT_EQ(Name(), "||flt|");
}

TEST_F(OptionsNames, ClickingTheItemAgainDropsTheTyping)
{
    StartAt("*Duty note");
    TypeName("abc");
    ClickItem("*Duty note");
    EXPECT_EQ(Name(), "Duty note||flt|");
    EXPECT_EQ(Items().Text(1), "*Duty note");
}

// Typing.

TEST_F(OptionsNames, TypingEnablesTheButtons)
{
    StartAt("*Duty note");
    NameBox().setFocus();
    QTest::keyClicks(&NameBox(), "x");
    EXPECT_EQ(Name(), "x||fltur|");
    EXPECT_EQ(Items().Text(1), "*Duty note");
}

TEST_F(OptionsNames, TypingTheSameTextEnablesThemToo)
{
    StartAt("*Duty note");
    TypeName("Duty note");
    EXPECT_EQ(Name(), "Duty note||fltur|");
}

TEST_F(OptionsNames, TheFocusSelectsTheWholeText)
{
    StartAt("*Duty note");
    for (const auto reason : {Qt::TabFocusReason, Qt::OtherFocusReason, Qt::ShortcutFocusReason}) {
        Items().setFocus();
        NameBox().deselect();
        NameBox().setFocus(reason);
        EXPECT_EQ(Name(), "Duty note|Duty note|flt|");
    }
}

TEST_F(OptionsNames, AClickThatBringsTheFocusSelectsTheWholeText)
{
    StartAt("*Duty note");
    QTest::mouseClick(&NameBox(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_TRUE(NameBox().hasFocus());
    EXPECT_EQ(Name(), "Duty note|Duty note|flt|");
    QTest::mouseClick(&NameBox(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(Name(), "Duty note||flt|");
}

TEST_F(OptionsNames, MayHaveAnyLengthAndAnyCharacters)
{
    StartAt("*Duty note");
    const QString name = QString("<&\"'>*%1 \\ ä €").arg(QString(40'000, 'x'));
    NameBox().setFocus();
    NameBox().selectAll();
    NameBox().insert(name);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Items().Text(1) == '*' + name);
    ChooseTemplateAgain();
    ClickGroup("Design");
    EXPECT_TRUE(Items().Text(1) == '*' + name);
}

// Update.

TEST_F(OptionsNames, UpdateTakesTheName)
{
    StartAt("*Duty note");
    TypeName("Remark");
    Click("cmdUpdateUDItemName");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | > [x] *Remark | [ ] *Hidden note | [x] Plain | [x] * | [x] *");
    EXPECT_EQ(Name(), "Remark||flt|unsaved");
    EXPECT_TRUE(Items().hasFocus());
    EXPECT_TRUE(IsEnabled("cmdApply"));
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(Model().starts_with("[x] Design\n  [x] Flow\n  [x] *Remark (Note)\n"));
}

TEST_F(OptionsNames, UpdateTakesTheNameAsItIsTyped)
{
    StartAt("*Duty note");
    TypeName("  *Remark ");
    Click("cmdUpdateUDItemName");
    EXPECT_EQ(Items().Text(1), "*  *Remark ");
    EXPECT_TRUE(Model().starts_with("[x] Design\n  [x] Flow\n  [x] *  *Remark  (Note)\n"));
}

TEST_F(OptionsNames, UpdateTakesAnEmptyNameAndTheItemIsStillListed)
{
    StartAt("*Duty note");
    TypeName("");
    Click("cmdUpdateUDItemName");
    EXPECT_EQ(Items().Text(1), "*");
    ClickGroup("Design");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [x] * | [ ] *Hidden note | [x] Plain | [x] * | [x] *");
    EXPECT_TRUE(Model().starts_with("[x] Design\n  [x] Flow\n  [x] * (Note)\n"));
}

TEST_F(OptionsNames, UpdateCreatesAMissingDisplayName)
{
    StartAt("Flow");
    QTest::keyClick(&Items(), Qt::Key_End);
    TypeName("Mine");
    Click("cmdUpdateUDItemName");
    EXPECT_EQ(Items().Text(5), "*Mine");
    EXPECT_TRUE(Model().ends_with("[x] Mine (Own) {UserDefined=True}"));
}

TEST_F(OptionsNames, EnterUpdates)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        editor = std::make_unique<ctlSchedOptions>(&user);
        StartAt("*Duty note");
        TypeName("Remark");
        Press(key);
        EXPECT_EQ(Items().Text(1), "*Remark");
        EXPECT_EQ(Name(), "Remark||flt|unsaved");
        EXPECT_TRUE(Items().hasFocus());
    }
}

TEST_F(OptionsNames, EnterWithAnUnchangedNameDirties)
{
    StartAt("*Duty note");
    NameBox().setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(Name(), "Duty note||flt|unsaved");
    EXPECT_EQ(Items().Text(1), "*Duty note");
}

// Reset.

TEST_F(OptionsNames, ResetBringsTheStoredNameBack)
{
    StartAt("*Duty note");
    TypeName("abc");
    Click("cmdResetUDItemName");
    EXPECT_EQ(NameBox().text(), "Duty note");
    EXPECT_EQ(Usable(), "flt");
    EXPECT_TRUE(NameBox().hasFocus());
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsNames, ResetBringsTheNameBackThatUpdateTook)
{
    StartAt("*Duty note");
    TypeName("Remark");
    Click("cmdUpdateUDItemName");
    TypeName("abc");
    Click("cmdResetUDItemName");
    EXPECT_EQ(NameBox().text(), "Remark");
}

TEST_F(OptionsNames, ResetNeverDirties)
{
    StartAt("*Duty note");
    TypeName("abc");
    Click("cmdResetUDItemName");
    TypeName("abd");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_FALSE(IsEnabled("cmdApply"));
}

TEST_F(OptionsNames, EscapeBringsTheStoredNameBackAndSelectsIt)
{
    StartAt("*Duty note");
    TypeName("abc");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Name(), "Duty note|Duty note|flt|");
    EXPECT_TRUE(NameBox().hasFocus());
}

// The keys that are taken do not reach what is around the editor.

TEST_F(OptionsNames, EnterAndEscapeDoNotCloseADialogAroundTheEditor)
{
    QDialog dialog;
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const ok = new QPushButton("OK");
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    layout->addWidget(ok);
    layout->addWidget(editor.get());
    ListOne("[x] Design\n  [x] *Duty note (Note)\n");
    Initialize();
    editor->IToolUI_Activate();
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    ClickGroup("Design");
    ClickItem("*Duty note");
    TypeName("abc");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    TypeName("abc");
    Press(Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Items().Text(0), "*abc");
    layout->removeWidget(editor.get());
    editor->setParent(nullptr);
}

TEST_F(OptionsNames, OtherKeysReachTheBox)
{
    StartAt("*Duty note");
    NameBox().setFocus();
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    Press(Qt::Key_End);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Name(), "uty not||fltur|");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(NameBox().text(), "uty note");
}

TEST_F(OptionsNames, TheNameGoesWithTheTemplateThatIsLeft)
{
    StartAt("*Duty note");
    TypeName("Remark");
    Press(Qt::Key_Return);
    ChooseTemplateAgain();
    EXPECT_EQ(Name(), "|||");
    ClickGroup("Design");
    ClickItem("*Remark");
    EXPECT_EQ(Name(), "Remark||flt|");
}

} // namespace schedules::testing
