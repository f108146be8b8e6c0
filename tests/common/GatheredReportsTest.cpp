#include "common/GatheredReports.h"

#include "common/Error.h"
#include "support/ScriptedUserInterface.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <stdexcept>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

MessageBox Box(const char* text, const char* subject = "", int style = kExclamation)
{
    return {Text(text), style, Text("Schedules.CTemplate.XMLToObject"), 0, Text(subject)};
}

/// Each box as "style|text" with "/" at the ends of its lines.
std::string Seen(const ScriptedUserInterface& user)
{
    QStringList seen;
    for (const MessageBox& box : user.boxes)
        seen += QString::number(box.style) + u'|' + QString(box.text).replace(Text("\r\n"), Text("/"));
    return seen.join(u'\n').toStdString();
}

/// What the user sees when these are reported together.
std::string SeenTogether(const std::vector<MessageBox>& boxes)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] {
        for (const MessageBox& box : boxes)
            EXPECT_EQ(reports.Show(box), Answer::Ok);
        EXPECT_TRUE(user.boxes.empty()) << "shown at once";
    });
    return Seen(user);
}

} // namespace

TEST(GatheredReports, AloneABoxPassesAsItIs)
{
    ScriptedUserInterface user;
    user.answers = {Answer::Cancel};
    GatheredReports reports(user);
    const MessageBox box{Text("Failed"), kCritical, Text("title"), 3023, Text("Pumps.xml")};
    EXPECT_EQ(reports.Show(box), Answer::Cancel);
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes.front().text, box.text);
    EXPECT_EQ(user.boxes.front().style, box.style);
    EXPECT_EQ(user.boxes.front().title, box.title);
    EXPECT_EQ(user.boxes.front().number, box.number);
    EXPECT_EQ(user.boxes.front().subject, box.subject);
}

TEST(GatheredReports, EverythingElseAlwaysPasses)
{
    ScriptedUserInterface user;
    user.fileNames = {Text("a.xml"), Text("b.xml")};
    GatheredReports reports(user);
    const auto useAll = [&](const char* expectedName) {
        reports.SetPointer(Pointer::Hourglass);
        reports.Beep();
        EXPECT_EQ(reports.AskSaveFileName({Text("Save")}), Text(expectedName));
    };
    useAll("a.xml");
    reports.Together([&] {
        useAll("b.xml");
        EXPECT_EQ(user.beeps, 2) << "not at once";
    });
    EXPECT_EQ(user.pointers, (std::vector{Pointer::Hourglass, Pointer::Hourglass}));
    EXPECT_EQ(user.beeps, 2);
    EXPECT_EQ(user.questions.size(), 2U);
    EXPECT_TRUE(user.boxes.empty());
}

TEST(GatheredReports, QuestionsAreAskedAtOnce)
{
    for (const int style : {kYesNo + kQuestion, kYesNoCancel + kExclamation, 1, 5}) {
        ScriptedUserInterface user;
        user.answers = {Answer::No};
        GatheredReports reports(user);
        reports.Together([&] {
            reports.Show(Box("Failed", "a.xml"));
            EXPECT_EQ(reports.Show(Box("Replace?", "", style)), Answer::No) << style;
            EXPECT_EQ(Seen(user), std::to_string(style) + "|Replace?");
        });
        EXPECT_EQ(Seen(user), std::to_string(style) + "|Replace?\n48|Failed/a.xml");
    }
}

TEST(GatheredReports, WithoutReportsThereIsNoBox)
{
    EXPECT_EQ(SeenTogether({}), "");
}

TEST(GatheredReports, OneReportIsShownWithItsSubject)
{
    EXPECT_EQ(SeenTogether({Box("Failed")}), "48|Failed");
    EXPECT_EQ(SeenTogether({Box("Failed", "Pumps.xml")}), "48|Failed/Pumps.xml");
}

TEST(GatheredReports, EachTextStandsOnceWithItsSubjectsBelowInTheOrderOfReports)
{
    EXPECT_EQ(SeenTogether({Box("No groups", "b.xml"), Box("Failed", "a.xml"), Box("No groups", "c.xml"),
                            Box("Nothing known"), Box("Failed"), Box("No groups", "a.xml"), Box("Nothing known")}),
              "48|No groups/b.xml/c.xml/a.xml//Failed/a.xml//Nothing known");
}

TEST(GatheredReports, TextsThatDifferInCaseAreTwo)
{
    EXPECT_EQ(SeenTogether({Box("Failed", "a"), Box("failed", "b")}), "48|Failed/a//failed/b");
}

TEST(GatheredReports, KeepsTheTitleAndTheNumberOfTheFirst)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] {
        reports.Show({Text("a"), kExclamation, Text("first"), 1062});
        reports.Show({Text("b"), kCritical, Text("second"), 3023});
    });
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes.front().title, Text("first"));
    EXPECT_EQ(user.boxes.front().number, 1062);
}

TEST(GatheredReports, BeyondTwentySubjectsTellsHowManyThereAreMore)
{
    const auto seenWith = [](int count) {
        std::vector<MessageBox> boxes;
        for (int number = 1; number <= count; ++number)
            boxes.push_back(Box("Failed", std::to_string(number).c_str()));
        return SeenTogether(boxes);
    };
    std::string twenty = "48|Failed";
    for (int number = 1; number <= 20; ++number)
        twenty.append("/").append(std::to_string(number));
    EXPECT_EQ(seenWith(20), twenty);
    EXPECT_EQ(seenWith(21), twenty + "/… (+1)");
    EXPECT_EQ(seenWith(1000), twenty + "/… (+980)");
}

TEST(GatheredReports, EachTextHasTwentySubjectsOfItsOwn)
{
    std::vector<MessageBox> boxes;
    for (int number = 1; number <= 21; ++number) {
        boxes.push_back(Box("A", "x"));
        boxes.push_back(Box("B", "y"));
    }
    const std::string subjects20 = QStringLiteral("/x").repeated(20).toStdString();
    const std::string others20 = QStringLiteral("/y").repeated(20).toStdString();
    EXPECT_EQ(SeenTogether(boxes), "48|A" + subjects20 + "/… (+1)//B" + others20 + "/… (+1)");
}

TEST(GatheredReports, HasTheMostSeriousIcon)
{
    const auto iconOf = [](std::vector<int> styles) {
        std::vector<MessageBox> boxes;
        for (const int style : styles)
            boxes.push_back(Box("A", "", style));
        const std::string seen = SeenTogether(boxes);
        return seen.substr(0, seen.find('|'));
    };
    EXPECT_EQ(iconOf({kOkOnly}), "0");
    EXPECT_EQ(iconOf({kOkOnly, kInformation}), "64");
    EXPECT_EQ(iconOf({kInformation, kExclamation, kOkOnly}), "48");
    EXPECT_EQ(iconOf({kExclamation, kCritical, kInformation}), "16");
    EXPECT_EQ(iconOf({kCritical}), "16");
    EXPECT_EQ(iconOf({kCritical + 256}), "16") << "which button is the default says nothing";
}

TEST(GatheredReports, InsideOfOneAnotherTheOutermostShows)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] {
        reports.Show(Box("Failed", "a.xml"));
        reports.Together([&] { reports.Show(Box("Failed", "b.xml")); });
        EXPECT_TRUE(user.boxes.empty());
        reports.Show(Box("Failed", "c.xml"));
    });
    EXPECT_EQ(Seen(user), "48|Failed/a.xml/b.xml/c.xml");
}

TEST(GatheredReports, AfterwardsEachPassesAgainAndNothingIsToldTwice)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] { reports.Show(Box("A", "a")); });
    reports.Show(Box("B", "b"));
    reports.Together([&] { reports.Show(Box("C", "c")); });
    EXPECT_EQ(Seen(user), "48|A/a\n48|B\n48|C/c");
}

TEST(GatheredReports, IsShownAlsoWhenTheWorkThrows)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    const auto work = [&] {
        reports.Show(Box("Failed", "a.xml"));
        throw std::runtime_error("broken");
    };
    EXPECT_THROW(reports.Together(work), std::runtime_error);
    EXPECT_EQ(Seen(user), "48|Failed/a.xml");
    reports.Show(Box("Later"));
    EXPECT_EQ(Seen(user), "48|Failed/a.xml\n48|Later");
}

TEST(GatheredReports, AnInnerWorkThatThrowsLeavesItsReportsToTheOutermost)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] {
        IgnoringErrors([&] {
            reports.Together([&] {
                reports.Show(Box("Failed", "a.xml"));
                throw 1;
            });
        });
        EXPECT_TRUE(user.boxes.empty());
        reports.Show(Box("Failed", "b.xml"));
    });
    EXPECT_EQ(Seen(user), "48|Failed/a.xml/b.xml");
}

namespace {

struct BrokenUser : ScriptedUserInterface
{
    Answer Show(const MessageBox& box) override
    {
        ScriptedUserInterface::Show(box);
        throw std::runtime_error("no screen");
    }
};

} // namespace

TEST(GatheredReports, AUserWhoCannotBeShownTheBoxDoesNoHarm)
{
    BrokenUser user;
    GatheredReports reports(user);
    EXPECT_NO_THROW(reports.Together([&] { reports.Show(Box("Failed", "a.xml")); }));
    EXPECT_EQ(Seen(user), "48|Failed/a.xml");
    EXPECT_NO_THROW(reports.Together([] {})) << "and is not shown it again";
    EXPECT_EQ(user.boxes.size(), 1U);
}

TEST(GatheredReports, TheExceptionOfTheWorkPassesAlsoWhenTheUserThrows)
{
    BrokenUser user;
    GatheredReports reports(user);
    const auto work = [&] {
        reports.Show(Box("Failed"));
        throw 5;
    };
    EXPECT_THROW(reports.Together(work), int);
}

TEST(GatheredReports, AFailingQuestionEndsTheWorkAsAnyFailure)
{
    BrokenUser user;
    GatheredReports reports(user);
    const auto work = [&] {
        reports.Show(Box("Failed", "a.xml"));
        reports.Show(Box("Replace?", "", kYesNo));
    };
    EXPECT_THROW(reports.Together(work), std::runtime_error);
    EXPECT_EQ(Seen(user), "4|Replace?\n48|Failed/a.xml");
}

TEST(GatheredReports, WhatIsReportedWhileTheBoxIsShownPasses)
{
    struct Reporting : ScriptedUserInterface
    {
        Answer Show(const MessageBox& box) override
        {
            ScriptedUserInterface::Show(box);
            if (boxes.size() == 1)
                reports->Show(Box("Meanwhile", "b.xml"));
            return Answer::Ok;
        }
        GatheredReports* reports = nullptr;
    };
    Reporting user;
    GatheredReports reports(user);
    user.reports = &reports;
    reports.Together([&] { reports.Show(Box("Failed", "a.xml")); });
    EXPECT_EQ(Seen(user), "48|Failed/a.xml\n48|Meanwhile");
}

TEST(GatheredReports, TakesWhatTheSharedReporterTells)
{
    ScriptedUserInterface user;
    GatheredReports reports(user);
    reports.Together([&] {
        Reported(reports, SourceName("CTemplate").In("A"), [] { throw Error(13, Text("bad")); });
        Reported(reports, SourceName("CTemplate").In("B"), [] { throw Error(13, Text("bad")); });
    });
    EXPECT_EQ(Seen(user), "48|bad");
    EXPECT_EQ(user.boxes.front().title, Text("Schedules.CTemplate.A"));
    EXPECT_EQ(user.pointers, std::vector(3, Pointer::Default)); // with each report, and once more for the box
}
