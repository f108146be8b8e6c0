// Thousands of clicks, checks, moves, renames, saves and deletions at random: what is on the screen, what was sent,
// what is in the files and what the host lists stay in agreement.

#include "SavingTest.h"

#include <gmock/gmock.h>
#include <random>

namespace schedules::testing {

class OptionsSavingWalk : public SavingTest
{
protected:
    int UpTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }
    bool Chance(int percent) { return UpTo(99) < percent; }

    /// Templates with groups and items of which some are not listed, some cannot be checked and some are user-defined.
    void StartWithMany()
    {
        QStringList entries;
        for (int number = 0; number < 4; ++number) {
            const QString name = QString("T%1").arg(number);
            Write(name + ".xml", "Name='" + name + "' DisplayName='" + name + "' Category='C'", RandomGroups());
            entries += "name='" + name + "' filename='" + name + ".xml'";
        }
        List(entries);
        host.replies["GETTEMPLATECATEGORIES"] = "<C><Category name='C' displayname='Cs'/></C>";
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "T0.xml";
        Start();
    }

    QString RandomGroups()
    {
        QString drawing;
        for (int group = 0; group < 5; ++group) {
            drawing += Mark() + (Chance(20) ? "~" : "") + QString("Group %1\n").arg(group);
            for (int item = 0; item < 6; ++item)
                drawing += "  " + Mark() + (Chance(20) ? "~" : Chance(40) ? "*" : "") + QString("Item %1\n").arg(item);
        }
        return drawing;
    }

    QString Mark() { return Chance(45) ? "[x] " : Chance(80) ? "[ ] " : "[-] "; }

    // What the user does.

    void Step()
    {
        const int kind = UpTo(99);
        if (kind < 15)
            ClickGroup(RandomEntry(Groups()));
        else if (kind < 30)
            ClickItem(RandomEntry(Items()));
        else if (kind < 38)
            MarkGroup(RandomEntry(Groups()));
        else if (kind < 50)
            MarkItem(RandomEntry(Items()));
        else if (kind < 62)
            Click(Chance(50) ? "cmdGroupMove" : "cmdItemMove", UpTo(1));
        else if (kind < 66)
            Click("chkShowGroupName");
        else if (kind < 75)
            Rename();
        else if (kind < 80)
            DragSomething();
        else if (kind < 84)
            ChooseTemplate(UpTo(Templates().count() - 1));
        else if (kind < 95)
            ApplyAndCheck();
        else if (kind < 98)
            SaveAsAndCheck();
        else
            DeleteAndCheck();
    }

    void ClickGroup(const QString& text) const
    {
        if (!text.isNull())
            OptionsTest::ClickGroup(text);
    }
    void ClickItem(const QString& text) const
    {
        if (!text.isNull())
            OptionsTest::ClickItem(text);
    }
    void MarkGroup(const QString& text) const
    {
        if (!text.isNull())
            OptionsTest::MarkGroup(text);
    }
    void MarkItem(const QString& text) const
    {
        if (!text.isNull())
            OptionsTest::MarkItem(text);
    }

    QString RandomEntry(const CheckList& list)
    {
        return list.Count() > 0 ? list.Text(UpTo(list.Count() - 1)) : QString();
    }

    void Rename()
    {
        if (!NameBox().isEnabled())
            return;
        TypeName(Chance(10) ? QString() : QString("Name %1 <&").arg(UpTo(9)));
        QTest::keyClick(&NameBox(), Chance(80) ? Qt::Key_Return : Qt::Key_Escape);
    }

    void DragSomething()
    {
        CheckList& list = Chance(50) ? Groups() : Items();
        const QString from = RandomEntry(list);
        if (!from.isNull() && list.isEnabled())
            Drag(list, from, RandomEntry(list));
    }

    // What must be so.

    void ApplyAndCheck()
    {
        const bool wasDirty = IsDirty();
        EXPECT_EQ(IsEnabled("cmdApply"), wasDirty);
        const std::string groups = DrawnGroupList();
        const std::string items = DrawnItemList();
        const std::string before = Content(FileName());
        Forget();
        Click(Chance(80) ? "cmdApply" : "cmdOK");
        if (wasDirty) {
            EXPECT_EQ(Content(FileName()), LastSent());
            EXPECT_EQ(DrawnGroupList(), groups);
            EXPECT_EQ(DrawnItemList(), items);
            EXPECT_FALSE(IsDirty());
            CheckAgainstFile();
        } else {
            EXPECT_EQ(Content(FileName()), before);
        }
    }

    void SaveAsAndCheck()
    {
        if (Templates().count() > 6)
            return DeleteAndCheck();
        const std::string groups = DrawnGroupList();
        const std::string before = Content(FileName());
        const QString from = FileName();
        const QString name = QString("New %1").arg(++m_saved);
        SaveAs(name);
        EXPECT_EQ(FileName(), name + ".xml");
        EXPECT_EQ(DrawnGroupList(), groups);
        EXPECT_EQ(Content(from), before);
        CheckAgainstFile();
    }

    void DeleteAndCheck()
    {
        if (Templates().count() < 3)
            return;
        const QString name = FileName();
        user.answers = {Chance(70) ? Answer::Yes : Answer::No};
        const bool isMeant = user.answers.front() == Answer::Yes;
        Click("cmdDelete");
        EXPECT_EQ(QFile::exists(PathOf(name)), !isMeant);
        if (Templates().currentIndex() < 0)
            ChooseTemplate(0);
    }

    int SavedAs() const { return m_saved; }
    QString FileName() const { return Templates().currentText() + ".xml"; }

    std::string LastSent() const
    {
        for (auto sent = host.sent.rbegin(); sent != host.sent.rend(); ++sent) {
            if (sent->message && sent->message->name == "SETCURRENTSCHEDTEMPLATE")
                return sent->message->parameters.Items().front().value.toString().toStdString();
        }
        return "nothing";
    }

    /// The host's list, the combo box and the folder name the same templates, each group of the current one and its
    /// items look as a new reading of the file says.
    void CheckAgainstFile()
    {
        CheckNames();
        CTemplate read(user);
        read.SetFilePath(folder.path());
        read.SetFilename(FileName());
        ASSERT_TRUE(read.XMLToObject());
        EXPECT_EQ(WithoutSelection(Groups()), DrawnMembers(read.Groups(), "ShowThisGroup"));
        const auto group = read.Groups().Item(Groups().Text(Groups().CurrentRow()));
        if (group) {
            EXPECT_EQ(WithoutSelection(Items()), DrawnMembers(group->Elements(), "ShowThisItem"));
        }
    }

    void CheckNames() const
    {
        QStringList shown;
        for (int index = 0; index < Templates().count(); ++index)
            shown += Templates().itemText(index) + '=' + Templates().itemText(index) + ".xml";
        EXPECT_EQ(Listed(), shown.join(' ').toStdString());
        EXPECT_EQ(QDir(folder.path()).entryList({"T*.xml", "N*.xml"}).size(), shown.size());
    }

    static std::string WithoutSelection(const CheckList& list)
    {
        return QString::fromStdString(Drawn(list)).remove("> ").toStdString();
    }

    template <class Members>
    static std::string DrawnMembers(const Members& members, const QString& flag)
    {
        QStringList entries;
        for (const auto& member : members.NewEnum()) {
            const auto shown = member->Properties().Item("DisplayName");
            if (!shown)
                continue;
            const auto mark = member->Properties().Item(flag);
            const bool isChecked = mark && TextOf(mark->Value()) == "-1";
            const auto own = member->Properties().Item("UserDefined");
            const bool isOwn = own && TextOf(own->Value()) == "-1";
            entries += QString(isChecked ? "[x] " : "[ ] ") + (isOwn ? "*" : "") + TextOf(shown->Value());
        }
        return entries.join(" | ").toStdString();
    }

private:
    std::mt19937 m_random{20};
    int m_saved = 0;
};

TEST_F(OptionsSavingWalk, KeepsScreenModelFilesAndHostInAgreement)
{
    StartWithMany();
    for (int step = 0; step < 4'000 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        Step();
        EXPECT_EQ(IsDirty(), IsEnabled("cmdApply"));
        EXPECT_THAT(Names(), ::testing::Not(::testing::HasSubstr("ErrorMessage")));
        EXPECT_TRUE(user.boxes.empty() || user.boxes.back().number == kDeleteTemplateQuestion) << Boxes();
    }
    EXPECT_GT(SavedAs(), 20) << "the walk went everywhere";
}

} // namespace schedules::testing
