// What a committed value changes: the grid, the flag, the held document, and nothing else.

#include "tools/EditingTest.h"

#include <memory>

namespace schedules {

TEST_F(CellEditingTest, EscapeChangesNothing)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("99");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Focus(), Spread());
    EXPECT_EQ(TextAt(1, 1), "12");
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kEditable.toStdString());
}

TEST_F(CellEditingTest, TheSameTextChangesNothing)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("12");
    Key(Qt::Key_Return);
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "");
    EditCell(1, 2, "14");
    ClickCell(1, 1);
    Type("12");
    Key(Qt::Key_Return);
    EXPECT_TRUE(Dirty()) << "an earlier edit stays";
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(CellEditingTest, AnotherDocumentIsShownFromItsStart)
{
    const QString tall = QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR>") +
                         QStringLiteral("<TR><TH/><TD>x</TD></TR>").repeated(100) + QStringLiteral("</TABLE>");
    Show(kScheduleView, tall);
    Spread()->EnsureVisible({Column(1), Row(100)});
    view.IToolUI_Activate();
    EXPECT_TRUE(Spread()->SeenRect({Column(1), Row(1)}).isEmpty()) << "the same document stays where it is";
    Activate(tall);
    EXPECT_FALSE(Spread()->SeenRect({Column(1), Row(1)}).isEmpty());
}

TEST_F(CellEditingTest, WhatIsSavedShowsInTheSamePlaceAndNothingElseHasChanged)
{
    const QString document = QStringLiteral(
        "<?xml version='1.0'?>\r\n<D><TABLE><TR><TH/><TH>A</TH></TR><TR><TH>1</TH><!-- in a cell's place -->"
        "<TD AllowEdit='-1'>a1</TD></TR></TABLE>\n<TABLE note=\"second\"><TR><TH>2</TH><TD AllowEdit='-1'>a2</TD>"
        "</TR></TABLE></D>");
    Show(kScheduleView, document);
    EXPECT_EQ(Grid(), " | A | \n1 |  | a1\n2 | a2 | ");
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "idle") << "a comment cannot be edited";
    EditCell(2, 1, "b1");
    EditCell(1, 2, "b2");
    Click("btnSaveTag");
    QString expected = document;
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>a1"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">b1"));
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>a2"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">b2"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
    Activate(QString::fromStdString(SavedXml()));
    EXPECT_EQ(Grid(), " | A | \n1 |  | b1\n2 | b2 | ");
}

TEST_F(CellEditingTest, TheTransposedLayoutEditsTheElementThatItShows)
{
    ShowSchedule();
    Click("btnTranspose");
    ASSERT_EQ(TextAt(1, 3), "spare");
    EditCell(1, 3, "moved");
    Click("btnSaveTag");
    QString expected = kEditable;
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>spare"),
                     QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">moved"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
}

/// Data rows and data cells count from 1, after the headers.
TEST_F(CellEditingTest, OrdinalsCountDataRowsAndDataCells)
{
    QString document = QStringLiteral("<TABLE>");
    for (int row = 0; row <= 6; ++row) {
        document += QStringLiteral("<TR>");
        for (int cell = 0; cell <= 6; ++cell)
            document += QStringLiteral("<TD AllowEdit='-1'>%1.%2</TD>").arg(row).arg(cell);
        document += QStringLiteral("</TR>");
    }
    document += QStringLiteral("</TABLE>");
    const auto savedWith = [&](const char* cell) {
        return QString(document).replace(QStringLiteral(" AllowEdit='-1'>%1<").arg(QLatin1String(cell)),
                                         QStringLiteral(" AllowEdit='-1' Dirty=\"-1\">!<"));
    };
    Show(kScheduleView, document);
    EditCell(3, 5, "!");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), savedWith("5.3").toStdString()) << "the third cell of the fifth row";
    Activate(document);
    Click("btnTranspose");
    EditCell(3, 5, "!");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), savedWith("3.5").toStdString()) << "the fifth cell of the third row";
}

TEST_F(CellEditingTest, WithoutAnElementGridAndFlagChangeAllTheSame)
{
    ShowSchedule();
    CellStyle style;
    style.allowEdit = true;
    TheSheet()->SetSize(4, 2);
    TheSheet()->SetText({Column(4), Row(1)}, QStringLiteral("host"));
    TheSheet()->SetStyle({Column(4), Row(1)}, style);
    EditCell(4, 1, "user");
    EXPECT_EQ(TextAt(4, 1), "user");
    EXPECT_TRUE(Dirty());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kEditable.toStdString());
}

TEST_F(CellEditingTest, FreshTextOfTheSameTableIsEditedBeforeItsActivation)
{
    ShowSchedule();
    const QString fresh = QString(kEditable).replace(QStringLiteral(">12<"), QStringLiteral(">11<"));
    view.IToolUI_XML(fresh);
    EditCell(1, 1, "20");
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_TRUE(Dirty());
    view.IToolUI_Activate();
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_TRUE(Dirty()) << "its own activation does not leave it behind";
    Click("btnSaveTag");
    const QString before = QStringLiteral("AllowEdit='-1'>11<");
    ASSERT_TRUE(fresh.contains(before));
    EXPECT_EQ(SavedXml(),
              QString(fresh).replace(before, QStringLiteral("AllowEdit='-1' Dirty=\"-1\">20<")).toStdString());
}

TEST_F(CellEditingTest, ReportsNoErrors)
{
    ShowSchedule();
    host.failing = {testing::FakeHost::kEverything};
    EditCell(1, 1, "20");
    view.CleanUP();
    QTest::keyClick(Spread(), Qt::Key_Return);
    QTest::keyClick(Spread(), Qt::Key_Space);
    QTest::keyClick(Spread(), Qt::Key_Tab);
    EXPECT_EQ(Boxes(), "");
    EXPECT_TRUE(host.sent.empty());
}

TEST_F(CellEditingTest, EscapeKeepsALongValueAndItsLineBreaks)
{
    const QString longValue = QStringLiteral("1234567890123456789012345678901234567890");
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR><TR><TH/><TD AllowEdit='-1'>%1</TD>"
                                       "<TD AllowEdit='-1'>a&#10;b</TD></TR></TABLE>")
                            .arg(longValue));
    for (const int column : {1, 2}) {
        const std::string before = TextAt(column, 1);
        ClickCell(column, 1);
        Key(Qt::Key_Delete);
        Type("x");
        Key(Qt::Key_Escape);
        EXPECT_EQ(TextAt(column, 1), before);
        EXPECT_FALSE(Dirty());
    }
    EXPECT_EQ(user.beeps, 0);
}

TEST_F(CellEditingTest, EnterOnAnUntouchedValueOfAnyLengthChangesNothing)
{
    Show(kScheduleView,
         QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR><TR><TH/><TD AllowEdit='-1'>%1</TD></TR></TABLE>")
             .arg(QString(40'000, u'x')));
    ClickCell(1, 1);
    Key(Qt::Key_Return);
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(TextAt(1, 1).size(), 40'000u);
}

TEST_F(CellEditingTest, OneCommitChangesTheCellOnce)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    int changes = 0;
    QObject::connect(TheSheet(), &Sheet::CellChanged, [&](Cell cell) {
        changes += TheSheet()->Text(cell) == QStringLiteral("20") && TheSheet()->Style(cell).edited ? 1 : 0;
    });
    Button("cmdCancel")->setFocus();
    EXPECT_EQ(changes, 1);
}

TEST_F(CellEditingTest, WhiteSpaceAloneIsNoValue)
{
    ShowSchedule();
    EditCell(1, 1, "  ");
    EXPECT_EQ(TextAt(1, 1), "");
    EXPECT_TRUE(Dirty());
    Click("btnTranspose");
    EXPECT_EQ(TextAt(1, 1), "");
}

TEST_F(CellEditingTest, ACellThatStoodInAnEditedOneIsGone)
{
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TD/></TR><TR><TH/><TD AllowEdit='-1'>out<TABLE><TR><TH/>"
                                       "<TD AllowEdit='-1'>in</TD></TR></TABLE></TD></TR></TABLE>"));
    ASSERT_EQ(TextAt(1, 2), "in");
    EditCell(1, 1, "x");
    ClickCell(1, 2);
    EXPECT_EQ(Edit(), "idle");
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "idle");
}

} // namespace schedules
