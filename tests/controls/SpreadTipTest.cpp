#include "controls/ShownView.h"

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

const QString kLong = QStringLiteral("spare in store, see the data sheet of the vendor");

/// What a user reads in the tool tip at a point; nothing without a tip.
QString TipAt(ShownView& shown, QPoint point)
{
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, point, shown.view.viewport()->mapToGlobal(point));
    QApplication::sendEvent(shown.view.viewport(), &event);
    return QTextDocumentFragment::fromHtml(QToolTip::isVisible() ? QToolTip::text() : QString()).toPlainText();
}

QString TipOf(ShownView& shown, Cell cell)
{
    return TipAt(shown, shown.Middle(cell));
}

} // namespace

TEST(SpreadTip, OfACellThatCutsItsTextOffIsTheWholeText)
{
    ShownView shown(EmptySheet(4, 4));
    for (const Cell cell : {At(2, 2), At(0, 1), At(3, 0), At(0, 0)}) {
        EXPECT_EQ(TipOf(shown, cell), QString());
        shown.sheet->SetText(cell, kLong);
        EXPECT_EQ(TipOf(shown, cell), kLong);
    }
    EXPECT_EQ(TipOf(shown, At(2, 3)), QString()) << "the neighbour";
    EXPECT_EQ(TipAt(shown, {499, 299}), QString()) << "beside the table";
}

TEST(SpreadTip, ATextThatFitsHasNone)
{
    ShownView shown(EmptySheet(4, 4));
    for (const bool bold : {false, true}) {
        shown.sheet->SetBold(Block(1, 1, 1, 1), bold);
        shown.sheet->SetText(At(1, 1), kLong);
        const int fitting = shown.sheet->WidestText(Column(1));
        shown.sheet->SetColumnWidth(Column(1), fitting);
        EXPECT_EQ(TipOf(shown, At(1, 1)), QString()) << bold;
        shown.sheet->SetColumnWidth(Column(1), fitting - 60);
        EXPECT_EQ(TipOf(shown, At(1, 1)), kLong) << bold;
    }
}

TEST(SpreadTip, IsPlainTextWhateverItLooksLike)
{
    ShownView shown(EmptySheet(4, 4));
    const QString markup = QStringLiteral("<b>bold</b> & <img src='x'> &lt;5 bar in the whole line");
    shown.sheet->SetText(At(1, 1), markup);
    EXPECT_EQ(TipOf(shown, At(1, 1)), markup);
}

TEST(SpreadTip, KeepsTheLinesOfAText)
{
    ShownView shown(EmptySheet(4, 4));
    shown.sheet->SetText(At(1, 1), kLong + u'\n' + kLong);
    EXPECT_EQ(TipOf(shown, At(1, 1)), kLong + u'\n' + kLong);
}

TEST(SpreadTip, OfACellThatWrapsIsThereWhenItsLinesAreCutOff)
{
    ShownView shown(EmptySheet(4, 4));
    shown.sheet->SetText(At(1, 1), kLong);
    shown.sheet->SetWraps(Block(1, 1, 1, 1), true);
    EXPECT_EQ(TipOf(shown, At(1, 1)), kLong);
    shown.sheet->SetRowHeight(Row(1), 3000);
    EXPECT_EQ(TipOf(shown, At(1, 1)), QString());
}

TEST(SpreadTip, CheckBoxesHaveNone)
{
    ShownView shown(EmptySheet(4, 4));
    shown.sheet->SetText(At(1, 1), kLong);
    shown.sheet->SetStyle(At(1, 1), CheckBoxStyle());
    EXPECT_EQ(TipOf(shown, At(1, 1)), QString());
}

TEST(SpreadTip, TellsOfWhatIsSeenAtThePoint)
{
    ShownView shown(EmptySheet(4, 40));
    shown.sheet->SetText(At(1, 1), kLong);
    shown.sheet->SetText(At(1, 11), QStringLiteral("another text that is too long for its cell"));
    const QPoint middle = shown.Middle(At(1, 1));
    shown.view.verticalScrollBar()->setValue(200);
    EXPECT_EQ(TipAt(shown, middle), shown.sheet->Text(At(1, 11)));
    shown.view.verticalScrollBar()->setValue(0);
    shown.sheet->SetHidden(Row(1), true);
    EXPECT_EQ(TipAt(shown, middle), QString());
}

TEST(SpreadTip, ThereIsNoneWhileTheSheetDoesNotRepaintOrIsNotThere)
{
    ShownView shown(EmptySheet(4, 4));
    shown.sheet->SetText(At(1, 1), kLong);
    const QPoint middle = shown.Middle(At(1, 1));
    shown.sheet->SetRepainting(false);
    EXPECT_EQ(TipAt(shown, middle), QString());
    shown.sheet->SetRepainting(true);
    EXPECT_EQ(TipAt(shown, middle), kLong);
    shown.view.SetSheet(nullptr);
    EXPECT_EQ(TipAt(shown, middle), QString());
}

} // namespace schedules::testing
