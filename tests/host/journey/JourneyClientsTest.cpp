// Two people at one project at the same time, each in a window of his own process: nothing of either is lost.

#include "PumpProject.h"
#include "UserFiles.h"
#include "WindowClient.h"
#include "host/project/StoredProject.h"

#include <algorithm>

namespace schedules::host::testing {

namespace {

using Orders = QList<QStringList>;

struct JourneyClients : StoredProject
{
    JourneyClients()
    {
        FillWithPumps(*Project::Create(Address()));
        Open();
    }

    /// Both begin to work on the pumps.
    void Open()
    {
        for (WindowClient* client : {&anna, &boris}) {
            EXPECT_EQ(client->Done({"open", Address()}), "opened");
            EXPECT_EQ(client->Done({"pick", "P-1", "P-2"}), "picked");
        }
    }

    /// Both begin to work on the template as it was at first.
    void Customize()
    {
        PutTemplate(*Opened());
        Open();
        for (WindowClient* client : {&anna, &boris})
            EXPECT_EQ(client->Done({"customize"}), "open");
    }

    /// Everything that is stored, and what both see of its values when they ask for it.
    std::string Everything()
    {
        const std::string seen = SeenBy(anna);
        EXPECT_EQ(SeenBy(boris), seen);
        const std::string stored = Drawn(*Opened());
        EXPECT_EQ(seen, Values(*Opened()));
        return stored;
    }

    static std::string SeenBy(WindowClient& client)
    {
        EXPECT_EQ(client.Done({"refresh"}), "refreshed");
        return client.Done({"shown"});
    }

    /// As a schedule shows them.
    static std::string Values(const Project& project)
    {
        const ValueTable values = project.Values({"P-1", "P-2"}, {kFlow, kHead});
        return QString(" | P-1 | P-2 / Flow | %1 | %2 / Head | %3 | %4")
            .arg(values[0][0].text, values[0][1].text, values[1][0].text, values[1][1].text)
            .trimmed()
            .toStdString();
    }

    std::string Templates() const { return DrawnTemplates(*Opened()).toStdString(); }

    UserFiles files;
    WindowClient anna{files.Home("anna")};
    WindowClient boris{files.Home("boris")};
};

/// What came of the orders of each.
struct Answers
{
    QStringList annas;
    QStringList boriss;
};

bool HaveFailed(const QStringList& answers)
{
    return !answers.filter("failed").isEmpty() || answers.contains(QString());
}

/// In the order of "abba": Anna's first one, two of Boris's, Anna's second one.
Answers DoneInTurns(JourneyClients& both, const std::string& turns, Orders annas, Orders boriss)
{
    Answers answers;
    for (const char turn : turns) {
        if (turn == 'a')
            answers.annas << QString::fromStdString(both.anna.Done(annas.takeFirst()));
        else
            answers.boriss << QString::fromStdString(both.boris.Done(boriss.takeFirst()));
    }
    EXPECT_FALSE(HaveFailed(answers.annas + answers.boriss));
    return answers;
}

/// At the same time, as fast as they can.
Answers DoneAtOnce(JourneyClients& both, const Orders& annas, const Orders& boriss)
{
    for (qsizetype index = 0; index < std::max(annas.size(), boriss.size()); ++index) {
        if (index < annas.size())
            both.anna.Order(annas[index]);
        if (index < boriss.size())
            both.boris.Order(boriss[index]);
    }
    Answers answers;
    for (qsizetype index = 0; index < annas.size(); ++index)
        answers.annas << QString::fromStdString(both.anna.Answer());
    for (qsizetype index = 0; index < boriss.size(); ++index)
        answers.boriss << QString::fromStdString(both.boris.Answer());
    EXPECT_FALSE(HaveFailed(answers.annas + answers.boriss));
    return answers;
}

/// Each saves a value of his own and one that the other saves as well. The second is asked, and keeps his own value
/// each other time.
struct Round
{
    explicit Round(int round) : number(round) {}

    QString Text(int whose) const { return QString::number(1000 * whose + number); }
    bool Insists() const { return number % 2 == 1; }
    QStringList Insisting() const { return Insists() ? QStringList{"insist", "P-2 Head"} : QStringList{"insist"}; }

    Orders Annas() const { return {{"edit", "P-1", "Flow", Text(1)}, {"edit", "P-2", "Head", Text(2)}, {"save"}}; }
    Orders Boriss() const { return {{"edit", "P-1", "Head", Text(3)}, {"edit", "P-2", "Head", Text(4)}, {"save"}}; }

    QString Question(bool annaFirst) const
    {
        return QString("P-2 Head: theirs %1, mine %2").arg(Text(annaFirst ? 2 : 4), Text(annaFirst ? 4 : 2));
    }

    std::string Stored(bool annaFirst) const
    {
        const int winner = annaFirst != Insists() ? 2 : 4;
        return QString("P-1: %1, %2\nP-2: 13, %3\nBoth.xml: Flow, Head")
            .arg(Text(1), Text(3), Text(winner))
            .toStdString();
    }

    int number;
};

/// The first is told no more than that his values are saved; the second has been asked.
void ExpectAsked(const Round& round, bool annaFirst, const QString& annas, const QString& boriss)
{
    const QString& first = annaFirst ? annas : boriss;
    const QString& second = annaFirst ? boriss : annas;
    EXPECT_TRUE(first.startsWith("2 values saved")) << first.toStdString();
    EXPECT_FALSE(first.contains("theirs")) << first.toStdString();
    const QString saved = round.Insists() ? "2 values saved" : "1 value saved";
    EXPECT_TRUE(second.startsWith(saved + "; " + round.Question(annaFirst))) << second.toStdString();
}

/// Both give the data item another name.
Orders Renaming(const char* name)
{
    return {{"rename", "Design", "Head", name}, {"apply"}};
}

constexpr const char* kKept = "told: Someone else has changed this template as well. Theirs is kept as Both (2).";

} // namespace

INSTANTIATE_TEST_SUITE_P(In, JourneyClients, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(JourneyClients, ValuesSavedInEachOrderAreAllThere)
{
    std::string turns = "aaabbb";
    int number = 0;
    do {
        SCOPED_TRACE(turns);
        const Round round(++number);
        anna.Done(round.Insisting());
        boris.Done(round.Insisting());
        const Answers answers = DoneInTurns(*this, turns, round.Annas(), round.Boriss());
        const bool annaFirst = turns.back() == 'b';
        ExpectAsked(round, annaFirst, answers.annas.last(), answers.boriss.last());
        EXPECT_EQ(Everything(), round.Stored(annaFirst));
    } while (std::ranges::next_permutation(turns).found);
    EXPECT_EQ(number, 20);
}

TEST_P(JourneyClients, ValuesSavedAtTheSameMomentAreAllThere)
{
    for (int number = 1; number <= 20; ++number) {
        SCOPED_TRACE(number);
        const Round round(number);
        anna.Done(round.Insisting());
        boris.Done(round.Insisting());
        const Answers answers = DoneAtOnce(*this, round.Annas(), round.Boriss());
        const bool annaFirst = answers.boriss.last().contains("theirs");
        ExpectAsked(round, annaFirst, answers.annas.last(), answers.boriss.last());
        EXPECT_EQ(Everything(), round.Stored(annaFirst));
    }
}

TEST_P(JourneyClients, EachCellSavedByBothIsDecidedByItself)
{
    DoneInTurns(*this, "aaa", {{"edit", "P-1", "Flow", "21"}, {"edit", "P-2", "Head", "22"}, {"save"}}, {});
    const Orders boriss{{"insist", "P-1 Flow"},
                        {"edit", "P-1", "Flow", "31"},
                        {"edit", "P-2", "Head", "32"},
                        {"edit", "P-2", "Flow", "33"},
                        {"save"}};
    EXPECT_EQ(DoneInTurns(*this, "bbbbb", {}, boriss).boriss.last().toStdString(),
              "2 values saved; P-1 Flow: theirs 21, mine 31; P-2 Head: theirs 22, mine 32");
    EXPECT_EQ(boris.Done({"shown"}), "| P-1 | P-2 / Flow | 31 | 33 / Head | 48 | 22");
    EXPECT_EQ(Everything(), "P-1: 31, 48\nP-2: 33, 22\nBoth.xml: Flow, Head");
}

TEST_P(JourneyClients, WhatTheOtherHasSavedIsShownOnRequest)
{
    DoneInTurns(*this, "aa", {{"edit", "P-1", "Flow", "21"}, {"save"}}, {});
    EXPECT_EQ(boris.Done({"shown"}), "| P-1 | P-2 / Flow | 12 | 13 / Head | 48 | 49");
    EXPECT_EQ(boris.Done({"refresh"}), "refreshed");
    EXPECT_EQ(boris.Done({"shown"}), "| P-1 | P-2 / Flow | 21 | 13 / Head | 48 | 49");
}

TEST_P(JourneyClients, WhatTheOtherHasSavedIsShownWhenTheUserComesBackToTheWindow)
{
    DoneInTurns(*this, "aa", {{"edit", "P-1", "Flow", "21"}, {"save"}}, {});
    EXPECT_EQ(boris.Done({"come back"}), "back; told: 1 value was changed by someone else and is shown now.");
    EXPECT_EQ(boris.Done({"shown"}), "| P-1 | P-2 / Flow | 21 | 13 / Head | 48 | 49");
}

TEST_P(JourneyClients, OneTemplateChangedInEachOrderIsThereInBothForms)
{
    std::string turns = "aabb";
    do {
        SCOPED_TRACE(turns);
        Customize();
        const bool annaFirst = turns.back() == 'b';
        const Answers answers = DoneInTurns(*this, turns, Renaming("Annas"), Renaming("Boriss"));
        EXPECT_EQ(Templates(), annaFirst ? "Both.xml: Flow, Boriss\nBoth (2).xml: Flow, Annas"
                                         : "Both.xml: Flow, Annas\nBoth (2).xml: Flow, Boriss");
        const QString& second = (annaFirst ? answers.boriss : answers.annas).last();
        EXPECT_EQ(second.toStdString(), std::string("applied; ") + kKept);
    } while (std::ranges::next_permutation(turns).found);
}

TEST_P(JourneyClients, OneTemplateChangedAtTheSameMomentIsThereInBothForms)
{
    for (int round = 0; round < 10; ++round) {
        SCOPED_TRACE(round);
        Customize();
        const Answers answers = DoneAtOnce(*this, Renaming("Annas"), Renaming("Boriss"));
        const bool annaFirst = answers.boriss.last().contains(kKept);
        EXPECT_NE(answers.annas.last().contains(kKept), annaFirst) << "one of them has been told";
        EXPECT_EQ(Templates(), annaFirst ? "Both.xml: Flow, Boriss\nBoth (2).xml: Flow, Annas"
                                         : "Both.xml: Flow, Annas\nBoth (2).xml: Flow, Boriss");
    }
}

TEST_P(JourneyClients, NewTemplatesOfBothAreInTheList)
{
    for (int round = 0; round < 5; ++round) {
        SCOPED_TRACE(round);
        Customize();
        DoneAtOnce(*this, {{"save as", "Annas"}, {"save as", "Annas too"}}, {{"save as", "Boriss"}});
        QStringList templates = QString::fromStdString(Templates()).split(u'\n');
        templates.sort();
        EXPECT_EQ(templates, (QStringList{"Annas too.xml: Flow, Head", "Annas.xml: Flow, Head",
                                          "Boriss.xml: Flow, Head", "Both.xml: Flow, Head"}));
    }
}

TEST_P(JourneyClients, ValuesOfOneAndATemplateOfTheOtherAreAllThere)
{
    for (int number = 1; number <= 10; ++number) {
        SCOPED_TRACE(number);
        Customize();
        const QString text = QString::number(number);
        Orders annas = Renaming("Annas");
        annas << Orders{{"edit", "P-1", "Flow", '1' + text}, {"save"}};
        const Answers answers = DoneAtOnce(
            *this, annas, {{"edit", "P-2", "Flow", '2' + text}, {"edit", "P-1", "Head", '3' + text}, {"save"}});
        EXPECT_TRUE(answers.boriss.last().startsWith("2 values saved")) << answers.boriss.last().toStdString();
        EXPECT_EQ(Drawn(*Opened()),
                  QString("P-1: 1%1, 3%1\nP-2: 2%1, 49\nBoth.xml: Flow, Annas").arg(text).toStdString());
    }
}

} // namespace schedules::host::testing
