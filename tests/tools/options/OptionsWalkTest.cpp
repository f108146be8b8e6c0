// Thousands of clicks, checks, moves, renames and changes of the template: list and model stay in agreement with what a
// simple model of the whole says.

#include "OptionsTest.h"

#include <optional>
#include <random>

namespace schedules::testing {

namespace {

struct Item
{
    QString name;
    QString text;
    bool isShown = false;
    bool isListed = true;
    bool isOwn = false;

    QString Entry() const { return (isOwn ? "*" : "") + text; }
    QString Line() const
    {
        const QString mark = isShown ? "[x] " : "[ ] ";
        if (!isListed)
            return mark + '~' + name;
        return mark + Entry() + (text == name ? "" : " (" + name + ')');
    }
};

struct Group : Item
{
    bool showsName = false;
    std::vector<Item> items;
};

template <class Member>
std::vector<std::size_t> ListedOf(const std::vector<Member>& members)
{
    std::vector<std::size_t> listed;
    for (std::size_t at = 0; at < members.size(); ++at) {
        if (members[at].isListed)
            listed.push_back(at);
    }
    return listed;
}

/// Takes a listed member out and puts it directly to another one's side.
template <class Member>
void Move(std::vector<Member>& members, int from, int to)
{
    const auto listed = ListedOf(members);
    const QString neighbour = members[listed[static_cast<std::size_t>(to)]].name;
    const auto source = members.begin() + static_cast<std::ptrdiff_t>(listed[static_cast<std::size_t>(from)]);
    const Member moved = *source;
    members.erase(source);
    const auto target = std::ranges::find(members, neighbour, &Member::name);
    members.insert(to < from ? target : target + 1, moved);
}

template <class Member>
Member& At(std::vector<Member>& members, int row)
{
    return members[ListedOf(members)[static_cast<std::size_t>(row)]];
}

template <class Member>
std::string Entries(const std::vector<Member>& members, int selected)
{
    QStringList entries;
    for (const std::size_t at : ListedOf(members))
        entries += QString(entries.size() == selected ? "> " : "") + (members[at].isShown ? "[x] " : "[ ] ") +
                   members[at].Entry();
    return entries.join(" | ").toStdString();
}

std::string DrawnMembers(const std::vector<Group>& groups)
{
    QStringList lines;
    for (const Group& group : groups) {
        lines += group.Line() + (group.showsName ? " {ShowGroupName=-1}" : " {ShowGroupName=0}");
        for (const Item& item : group.items)
            lines += "  " + item.Line();
    }
    return lines.join('\n').toStdString();
}

} // namespace

class OptionsWalk : public OptionsTest
{
protected:
    int Random(int below) { return std::uniform_int_distribution(0, below - 1)(random); }
    bool Chance() { return Random(2) == 0; }

    std::vector<Group> RandomGroups()
    {
        std::vector<Group> groups;
        for (int number = 0; number < 7; ++number) {
            Group made{{QString("G%1").arg(number), QString("Group %1").arg(number), Chance(), number % 3 != 1, false},
                       Chance(),
                       {}};
            for (int at = 0; at < 6; ++at)
                made.items.push_back({QString("I%1").arg(at), QString("Item %1").arg(at), Chance(), at % 4 != 2,
                                      at % 4 == 0 || at == 3});
            groups.push_back(made);
        }
        return groups;
    }

    void Begin()
    {
        const char* files[] = {"pumps.xml", "fans.xml"};
        for (std::size_t at = 0; at < 2; ++at) {
            templates[at] = RandomGroups();
            Write(files[at], {}, QString::fromStdString(DrawnMembers(templates[at])));
        }
        List({"name='Pumps' filename='pumps.xml'", "name='Fans' filename='fans.xml'"});
        Start();
    }

    std::vector<Group>& Known() { return templates[static_cast<std::size_t>(current)]; }
    Group& KnownGroup() { return At(Known(), group); }
    bool ItemsAreOpen() { return group >= 0 && KnownGroup().isShown; }

    void SelectGroup(bool marks)
    {
        group = Random(Groups().Count());
        item = -1;
        if (marks)
            KnownGroup().isShown = !KnownGroup().isShown, isDirty = true;
        (marks ? ClickMark : ClickEntry)(Groups(), Groups().Text(group));
    }

    void SelectItem(bool marks)
    {
        item = Random(Items().Count());
        if (marks)
            At(KnownGroup().items, item).isShown ^= true, isDirty = true;
        (marks ? ClickMark : ClickEntry)(Items(), Items().Text(item));
    }

    /// Moves the entry of a row, with any of the ways to do it; the row where it is then.
    template <class Member>
    int MoveIn(std::vector<Member>& members, CheckList& list, const char* buttons, int row)
    {
        const int way = Random(3);
        const int to = way == 0 ? Random(list.Count()) : std::clamp(row + (Chance() ? 1 : -1), 0, list.Count() - 1);
        if (to == row)
            return row;
        if (way == 0)
            Drag(list, list.Text(row), list.Text(to));
        else if (way == 1)
            QTest::keyClick(&list, to > row ? Qt::Key_Down : Qt::Key_Up, Qt::AltModifier);
        else
            Click(buttons, to > row ? 1 : 0);
        Move(members, row, to);
        isDirty = true;
        return to;
    }

    void MoveGroup()
    {
        const int before = item;
        group = MoveIn(Known(), Groups(), "cmdGroupMove", group);
        item = Items().CurrentRow() < 0 ? -1 : before; // a press shows the group anew
    }

    void Rename()
    {
        Item& renamed = At(KnownGroup().items, item);
        ASSERT_EQ(IsEnabled("txtDisplayName"), renamed.isOwn && renamed.isShown);
        if (!renamed.isOwn || !renamed.isShown)
            return;
        TypeName(QString("Name %1").arg(++names));
        if (Random(4) == 0)
            return QTest::keyClick(&NameBox(), Qt::Key_Escape);
        renamed.text = NameBox().text(), isDirty = true;
        if (Chance())
            QTest::keyClick(&NameBox(), Qt::Key_Return);
        else
            Click("cmdUpdateUDItemName");
    }

    void Turn()
    {
        KnownGroup().showsName ^= true, isDirty = true;
        Find<QCheckBox>("chkShowGroupName")->setFocus();
        QTest::keyClick(Find<QCheckBox>("chkShowGroupName"), Qt::Key_Space);
    }

    void Switch()
    {
        current = 1 - current;
        group = item = -1;
        isDirty = false;
        ChooseTemplate(current);
    }

    void Step()
    {
        const int deed = Random(20);
        if (deed < 4 || group < 0)
            SelectGroup(deed == 0);
        else if (deed < 6)
            MoveGroup();
        else if (deed == 6 && ItemsAreOpen())
            Turn();
        else if (deed < 12 && ItemsAreOpen())
            SelectItem(deed < 9);
        else if (deed < 15 && ItemsAreOpen() && item >= 0)
            item = MoveIn(KnownGroup().items, Items(), "cmdItemMove", item);
        else if (deed < 19 && ItemsAreOpen() && item >= 0)
            Rename();
        else if (deed == 19)
            Switch();
    }

    void Compare()
    {
        ASSERT_EQ(DrawnGroupList(), Entries(Known(), group));
        ASSERT_EQ(DrawnItemList(), group < 0 ? "" : Entries(KnownGroup().items, item));
        ASSERT_EQ(IsEnabled("lstItems"), ItemsAreOpen());
        ASSERT_EQ(editor->HasUnsavedEdits(), isDirty);
        ASSERT_EQ(IsEnabled("cmdApply"), isDirty);
        if (group >= 0) {
            ASSERT_EQ(Find<QCheckBox>("chkShowGroupName")->isChecked(), KnownGroup().showsName);
        }
    }

    std::mt19937 random{20};
    std::vector<Group> templates[2];
    int current = 0;
    int group = -1;
    int item = -1;
    int names = 0;
    bool isDirty = false;
};

TEST_F(OptionsWalk, KeepsListsAndModelInAgreement)
{
    Begin();
    for (int step = 0; step < 4000 && !HasFatalFailure(); ++step) {
        SCOPED_TRACE(step);
        Step();
        Compare();
        if (step % 100 == 99) {
            ASSERT_EQ(Model(), DrawnMembers(Known()));
            group = item = -1;
            isDirty = false;
            Forget();
        }
    }
    EXPECT_EQ(Boxes(), "");
}

} // namespace schedules::testing
