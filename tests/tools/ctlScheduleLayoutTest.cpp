// Where the parts of the view stand, from the smallest size on and in either direction.

#include "tools/EditingTest.h"

#include <QPushButton>
#include <QTextEdit>

namespace schedules {

namespace {

class LayoutTest : public EditingTest
{
protected:
    /// A selector with everything that it can have: message, tool bar, grid, legend, both buttons.
    void ShowAll(QSize size)
    {
        view.setProperty("CustomMsg", QStringLiteral("A long message of the host to its users. ").repeated(30));
        view.setProperty("RowsFrozen", 1);
        view.setProperty("ShowPrintButtonOnUnitSelector", true);
        Show(kSelectorView, kSelection, size);
    }

    QRect Place(const char* name) const
    {
        const auto* part = Find<QWidget>(name);
        return {part->mapTo(&view, QPoint()), part->size()};
    }

    static constexpr const char* kParts[] = {"rtbCustomMsg", "tbTasks", "vaSpread1", "lblLegend", "cmdContinue"};
};

} // namespace

TEST_F(LayoutTest, FromMessageToButtonsThePartsStandOneBelowTheOther)
{
    ShowAll({900, 600});
    for (std::size_t part = 1; part < std::size(kParts); ++part)
        EXPECT_LE(Place(kParts[part - 1]).bottom(), Place(kParts[part]).top()) << kParts[part];
    EXPECT_EQ(Place("cmdContinue").top(), Place("cmdCancel").top());
}

TEST_F(LayoutTest, TheGridTakesWhatIsLeft)
{
    ShowAll({900, 600});
    const QRect before = Place("vaSpread1");
    view.resize(1100, 800);
    EXPECT_EQ(Place("vaSpread1").width(), before.width() + 200);
    EXPECT_GE(Place("vaSpread1").height(), before.height() + 100) << "the message may need less, never more";
}

TEST_F(LayoutTest, IsUsableFrom320By240)
{
    ShowAll({320, 240});
    EXPECT_EQ(view.size(), QSize(320, 240));
    for (const char* part : kParts) {
        EXPECT_TRUE(view.rect().contains(Place(part))) << part;
        EXPECT_TRUE(Find<QWidget>(part)->isVisible()) << part;
    }
    EXPECT_TRUE(view.rect().contains(Place("cmdCancel")));
    EXPECT_GE(Spread()->viewport()->height(), 3 * Spread()->fontMetrics().height()) << "a header and two rows at least";
    ClickCell(1, 2);
    EXPECT_EQ(TextAt(1, 2), "1");
}

TEST_F(LayoutTest, WithoutAMessageThereIsNoRoomForOne)
{
    Show(kScheduleView, kEditable);
    EXPECT_FALSE(Shown("rtbCustomMsg"));
    EXPECT_FALSE(Shown("lblLegend"));
    EXPECT_FALSE(Shown("cmdContinue"));
    EXPECT_LT(Place("tbTasks").top(), 20);
}

TEST_F(LayoutTest, TheButtonsAreAtTheRightTheLastOneOutermost)
{
    ShowAll({900, 600});
    EXPECT_GT(Place("cmdContinue").left(), 450);
    EXPECT_GT(Place("cmdCancel").left(), Place("cmdContinue").right());
}

TEST_F(LayoutTest, IsMirroredFromRightToLeft)
{
    view.setLayoutDirection(Qt::RightToLeft);
    ShowAll({900, 600});
    EXPECT_LT(Place("cmdContinue").right(), 450);
    EXPECT_LT(Place("cmdCancel").right(), Place("cmdContinue").left());
    EXPECT_GT(Middle(0, 1).x(), Middle(1, 1).x());
}

TEST_F(LayoutTest, FromRightToLeftTheEditBoxLiesOverItsCell)
{
    view.setLayoutDirection(Qt::RightToLeft);
    Show(kScheduleView, kEditable);
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "1,1: 12");
    Key(Qt::Key_Left);
    EXPECT_EQ(Edit(), "1,1: 12") << "the arrow moves in the text";
}

TEST_F(LayoutTest, TheEditBoxStandsInTheGridsFontAndColours)
{
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    view.setPalette(dark);
    QFont large = view.font();
    large.setPointSize(20);
    view.setFont(large);
    Show(kScheduleView, kEditable);
    ClickCell(3, 1);
    EXPECT_EQ(Box()->palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(Box()->font().pointSize(), 20);
    EXPECT_EQ(Box()->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    ClickCell(1, 1);
    EXPECT_EQ(Box()->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight) << "numbers at the far edge";
}

} // namespace schedules
