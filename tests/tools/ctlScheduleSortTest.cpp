// Sorting by the active column.

#include "tools/EditingTest.h"

#include <QMenu>

namespace schedules {

namespace {

const QString kRows = QStringLiteral("<TABLE><TR><TH/><TH>Tag</TH><TH>Flow</TH></TR>"
                                     "<TR><TH>1</TH><TD>P-10</TD><TD AllowEdit='-1'>3</TD></TR>"
                                     "<TR><TH>2</TH><TD>P-2</TD><TD AllowEdit='-1'>20</TD></TR>"
                                     "<TR><TH>3</TH><TD>P-1</TD><TD AllowEdit='-1'/></TR></TABLE>");

const QString kGroups =
    QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR><TR><TH>1</TH><TD>3</TD></TR><TR><TH>2</TH><TD>1</TD></TR>"
                   "<TR><TH fontBold='-1'>Motor</TH><TD>2</TD></TR><TR><TH>4</TH><TD>9</TD></TR>"
                   "<TR><TH>5</TH><TD>7</TD></TR></TABLE>");

class SortTest : public EditingTest
{
protected:
    void ShowRows(const QString& xml = kRows) { Show(kScheduleView, xml); }

    void SortBy(int column)
    {
        ClickCell(column, 0);
        view.DoColSort();
    }

    /// The rows in the order shown, by number.
    std::string Rows() const
    {
        std::string rows;
        for (int position = 1; position <= TheSheet()->RowCount(); ++position)
            rows += std::to_string(TheSheet()->Rows().ItemAt(position));
        return rows;
    }

    QStringList Entries(int column, int row)
    {
        AskForMenu(Middle(column, row));
        auto* menu = view.findChild<QMenu*>(QStringLiteral("mnuGrid"));
        QStringList entries;
        for (const QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (!action->isSeparator())
                entries += action->text();
        }
        delete menu;
        return entries;
    }
};

} // namespace

TEST_F(SortTest, GoesUpThenDownThenBackToTheDocument)
{
    ShowRows();
    EXPECT_EQ(Rows(), "123");
    SortBy(1);
    EXPECT_EQ(Rows(), "321");
    view.DoColSort();
    EXPECT_EQ(Rows(), "123");
    EXPECT_TRUE(TheSheet()->Rows().Ordered());
    view.DoColSort();
    EXPECT_EQ(Rows(), "123");
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    view.DoColSort();
    EXPECT_EQ(Rows(), "321");
}

TEST_F(SortTest, AnotherColumnStartsUpwards)
{
    ShowRows();
    SortBy(1);
    SortBy(2);
    EXPECT_EQ(Rows(), "123");
    view.DoColSort();
    EXPECT_EQ(Rows(), "213") << "blanks last";
}

TEST_F(SortTest, AHeaderClickNeitherSortsNorEdits)
{
    ShowRows();
    ClickCell(2, 0);
    EXPECT_EQ(Rows(), "123");
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(TheSheet()->ActiveCell().column, Column(2));
}

TEST_F(SortTest, RowsStayUnderTheHeadingOfTheirGroup)
{
    ShowRows(kGroups);
    SortBy(1);
    EXPECT_EQ(Rows(), "21354");
}

TEST_F(SortTest, FrozenRowsStay)
{
    view.setProperty("RowsFrozen", 1);
    ShowRows();
    SortBy(1);
    EXPECT_EQ(Rows(), "132");
}

TEST_F(SortTest, TheTransposedScheduleIsNotSorted)
{
    ShowRows();
    Click("btnTranspose");
    SortBy(1);
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    EXPECT_EQ(Entries(1, 0), QStringList());
}

TEST_F(SortTest, WithoutAnActiveColumnNothingHappens)
{
    ShowRows();
    TheSheet()->SetActiveCell({});
    view.DoColSort();
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    view.CleanUP();
    view.DoColSort();
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SortTest, ALoadAndTransposeBringTheDocumentsOrderBack)
{
    ShowRows();
    SortBy(1);
    view.IToolUI_Activate();
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    SortBy(1);
    EXPECT_EQ(Rows(), "321") << "the first sorting after it goes up";
    Click("btnTranspose");
    Click("btnTranspose");
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    SortBy(1);
    Activate(kBroken);
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
}

TEST_F(SortTest, EditsGoToTheCellThatIsShown)
{
    ShowRows();
    SortBy(1);
    const std::string before = Grid();
    EXPECT_EQ(Spread()->CellAt(Middle(2, 1)), (Cell{Column(2), Row(1)}));
    EditCell(2, 1, "4");
    EXPECT_EQ(TextAt(2, 1), "4");
    Click("btnSaveTag");
    QString expected = kRows;
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>3"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">4"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
    EXPECT_EQ(Rows(), "321") << "an edit does not sort again";
}

TEST_F(SortTest, SortingCommitsAnOpenEdit)
{
    ShowRows();
    ClickCell(2, 1);
    Type("30");
    view.DoColSort();
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Rows(), "213");
}

TEST_F(SortTest, UpAndDownAndTabFollowTheOrderShown)
{
    ShowRows();
    SortBy(1);
    ClickCell(2, 3);
    ASSERT_EQ(Edit(), "2,3: ");
    Key(Qt::Key_Down);
    EXPECT_EQ(Edit(), "2,2: 20");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "2,1: 3");
}

TEST_F(SortTest, TheHeadersMenuNamesTheNextOrder)
{
    ShowRows();
    EXPECT_EQ(Entries(1, 0), QStringList{"Sort Ascending"});
    view.DoColSort();
    EXPECT_EQ(Entries(1, 0), QStringList{"Sort Descending"});
    EXPECT_EQ(Entries(2, 0), QStringList{"Sort Ascending"});
    ClickCell(1, 0);
    view.DoColSort();
    EXPECT_EQ(Entries(1, 0), QStringList{"Document Order"});
}

TEST_F(SortTest, CleaningUpEndsIt)
{
    ShowRows();
    SortBy(1);
    view.CleanUP();
    Activate(kRows);
    EXPECT_FALSE(TheSheet()->Rows().Ordered());
    EXPECT_EQ(Entries(1, 0), QStringList{"Sort Ascending"});
}

TEST_F(SortTest, AMarkInTheHeaderComesAndGoes)
{
    ShowRows();
    const auto header = [this] {
        const QRect cell = Spread()->CellRect({Column(1), Row(0)});
        return Spread()->viewport()->grab(cell).toImage();
    };
    ClickCell(1, 0);
    const QImage plain = header();
    view.DoColSort();
    const QImage ascending = header();
    EXPECT_NE(ascending, plain);
    view.DoColSort();
    EXPECT_NE(header(), ascending);
    EXPECT_NE(header(), plain);
    view.DoColSort();
    EXPECT_EQ(header(), plain);
    view.DoColSort();
    view.IToolUI_Activate();
    ClickCell(1, 0);
    EXPECT_EQ(header(), plain);
}

TEST_F(SortTest, InATransposedSelectorTheHeadingsAreColumnsAndHoldNoRows)
{
    const QString tags =
        QStringLiteral("<TABLE><TR><TH/><TH>Tag</TH><TH>Select</TH></TR>"
                       "<TR><TH>1</TH><TD>P-3</TD><TD dataType='CHECKBOX' visible='-1'/></TR>"
                       "<TR><TH fontBold='-1'>2</TH><TD UserDefined='-1'>P-1</TD>"
                       "<TD dataType='CHECKBOX' visible='-1'/></TR>"
                       "<TR><TH>3</TH><TD>P-2</TD><TD dataType='CHECKBOX' visible='-1'/></TR></TABLE>");
    Show(kSelectorView, tags);
    Click("btnTranspose");
    ASSERT_EQ(view.SchedOrientation(), 0);
    ASSERT_TRUE(view.TransposeData());
    // Three tags side by side, of which the second one's line is bold; two rows, one for the names, one for the ticks.
    SortBy(1);
    EXPECT_EQ(Rows(), "21") << "a heading among the rows would keep them apart";
}

} // namespace schedules
