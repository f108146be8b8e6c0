#include "ScheduleViewTest.h"
#include "controls/grid/SpreadView.h"

#include <QMetaProperty>
#include <QTextBlock>
#include <QTextEdit>

namespace schedules {

using ScheduleProperties = ScheduleViewTest;

namespace {

struct PropertyForm
{
    const char* name;
    QVariant initially;
    QVariant changed;
};

const QList<PropertyForm> kProperties{
    {"BuilderPdsg", QString(), QStringLiteral("Pumps")},
    {"ViewType", 0, kSelectorView},
    {"ShowPrintButtonOnUnitSelector", false, true},
    {"CustomMsg", QString(), QStringLiteral("Check the duty points")},
    {"CustomMsgBold", false, true},
    {"CustomMsgItalic", false, true},
    {"CustomMsgAlignment", 0, 2},
    {"RowsFrozen", 0, 3},
    {"ColsFrozen", 0, 4},
    {"SelectAllTags", false, true},
};

class ScheduleCustomMessage : public ScheduleViewTest
{
protected:
    QTextEdit* Box() const { return Find<QTextEdit>("rtbCustomMsg"); }

    void StartWith(const QString& text, int alignment = 0)
    {
        view.setProperty("CustomMsg", text);
        view.setProperty("CustomMsgAlignment", alignment);
        Start(kScheduleView, kSchedule);
    }
};

} // namespace

TEST_F(ScheduleProperties, AreAtTheirDefaultsInEveryNewView)
{
    for (const auto& property : kProperties)
        view.setProperty(property.name, property.changed);
    const ctlSchedule second(&user);
    for (const auto& property : kProperties) {
        EXPECT_EQ(second.property(property.name), property.initially) << property.name;
        EXPECT_EQ(second.property(property.name).typeId(), property.initially.typeId()) << property.name;
    }
}

TEST_F(ScheduleProperties, KeepWhatTheHostSets)
{
    for (const auto& property : kProperties) {
        EXPECT_TRUE(view.setProperty(property.name, property.changed)) << property.name;
        EXPECT_EQ(view.property(property.name), property.changed) << property.name;
    }
}

TEST_F(ScheduleProperties, OfTheStateAreReadOnly)
{
    for (const char* name : {"TagDataDirty", "sheet"}) {
        const auto& meta = ctlSchedule::staticMetaObject;
        EXPECT_FALSE(meta.property(meta.indexOfProperty(name)).isWritable()) << name;
    }
    EXPECT_EQ(view.property("TagDataDirty"), false);
    EXPECT_TRUE(view.property("sheet").value<schedules::Sheet*>());
}

TEST_F(ScheduleProperties, FreezeRowsAndColumnsAtOnce)
{
    Start(kScheduleView, kSchedule);
    view.setProperty("RowsFrozen", 2);
    EXPECT_EQ(Frozen(), "0 x 2");
    view.setProperty("ColsFrozen", 1);
    EXPECT_EQ(Frozen(), "1 x 2");
    view.setProperty("RowsFrozen", 0);
    EXPECT_EQ(Frozen(), "1 x 0");
}

TEST_F(ScheduleProperties, TakeEffectOnTheSheetThatTheGridShows)
{
    EXPECT_EQ(Find<SpreadView>("vaSpread1")->TheSheet(), TheSheet());
}

TEST_F(ScheduleCustomMessage, IsGoneWithoutAText)
{
    Start(kScheduleView, kSchedule);
    EXPECT_FALSE(Shown("rtbCustomMsg"));
    EXPECT_EQ(Box()->toPlainText(), QString());
}

TEST_F(ScheduleCustomMessage, ShowsPlainText)
{
    StartWith(QStringLiteral("Check <b>the</b>\nduty points"));
    EXPECT_TRUE(Shown("rtbCustomMsg"));
    EXPECT_TRUE(Box()->isReadOnly());
    EXPECT_EQ(Box()->toPlainText(), QStringLiteral("Check <b>the</b>\nduty points"));
    EXPECT_FALSE(Box()->font().bold());
    EXPECT_FALSE(Box()->font().italic());
}

TEST_F(ScheduleCustomMessage, IsBoldAndItalicAsTheHostSets)
{
    view.setProperty("CustomMsgBold", true);
    StartWith(QStringLiteral("text"));
    EXPECT_TRUE(Box()->font().bold());
    EXPECT_FALSE(Box()->font().italic());

    ctlSchedule other(&user);
    other.setProperty("CustomMsg", QStringLiteral("text"));
    other.setProperty("CustomMsgItalic", true);
    other.LoadScheduleData(kSchedule);
    other.IToolUI_Activate();
    EXPECT_TRUE(other.findChild<QTextEdit*>(QStringLiteral("rtbCustomMsg"))->font().italic());
}

TEST_F(ScheduleCustomMessage, IsAlignedInEveryParagraph)
{
    const QList<std::pair<int, Qt::AlignmentFlag>> kAlignments{
        {0, Qt::AlignLeft}, {1, Qt::AlignRight}, {2, Qt::AlignHCenter}, {7, Qt::AlignLeft}};
    for (const auto& [number, alignment] : kAlignments) {
        ctlSchedule other(&user);
        other.setProperty("CustomMsg", QStringLiteral("one\ntwo"));
        other.setProperty("CustomMsgAlignment", number);
        other.LoadScheduleData(kSchedule);
        other.IToolUI_Activate();
        const auto* box = other.findChild<QTextEdit*>(QStringLiteral("rtbCustomMsg"));
        for (auto block = box->document()->begin(); block.isValid(); block = block.next())
            EXPECT_EQ(block.blockFormat().alignment() & Qt::AlignHorizontal_Mask & ~Qt::AlignAbsolute, alignment);
        EXPECT_FALSE(box->textCursor().hasSelection());
    }
}

TEST_F(ScheduleCustomMessage, IsShownByTheFirstActivationAlone)
{
    StartWith(QStringLiteral("first"));
    view.setProperty("CustomMsg", QStringLiteral("second"));
    view.IToolUI_Activate();
    EXPECT_EQ(Box()->toPlainText(), QStringLiteral("first"));
}

TEST_F(ScheduleCustomMessage, InRichTextKeepsItsOwnFormat)
{
    view.setProperty("CustomMsgBold", true);
    view.setProperty("CustomMsgItalic", true);
    StartWith(QStringLiteral("{\\rtf1 text}"), 2);
    EXPECT_FALSE(Box()->font().bold());
    EXPECT_FALSE(Box()->font().italic());
    EXPECT_FALSE(Box()->alignment() & Qt::AlignHCenter);
}

TEST_F(ScheduleCustomMessage, IsRichTextByItsMarkAnywhereInLowerCase)
{
    view.setProperty("CustomMsgBold", true);
    StartWith(QStringLiteral("{\\RTF1 text}"));
    EXPECT_TRUE(Box()->font().bold());

    ctlSchedule other(&user);
    other.setProperty("CustomMsgBold", true);
    other.setProperty("CustomMsg", QStringLiteral("see {\\rtf1 text}"));
    other.LoadScheduleData(kSchedule);
    other.IToolUI_Activate();
    EXPECT_FALSE(other.findChild<QTextEdit*>(QStringLiteral("rtbCustomMsg"))->font().bold());
}

namespace {

class ScheduleViewLayout : public ScheduleViewTest
{
protected:
    QRect Place(const char* name) const
    {
        const auto* widget = Find<QWidget>(name);
        return {widget->mapTo(&view, QPoint()), widget->size()};
    }

    void ShowSelector(QSize size)
    {
        view.setProperty("CustomMsg",
                         QStringLiteral("A message that is long enough to need a line of its own.\n").repeated(20));
        view.setProperty("RowsFrozen", 1);
        Start(kSelectorView, kSelection);
        view.resize(size);
        view.show();
        WaitUntilShown();
    }

    void WaitUntilShown() { ASSERT_TRUE(QTest::qWaitForWindowExposed(&view)); }
};

} // namespace

TEST_F(ScheduleViewLayout, StacksMessageToolbarGridLegendAndButtons)
{
    ShowSelector({900, 600});
    const std::vector tops{Place("rtbCustomMsg").top(), Place("tbTasks").top(), Place("vaSpread1").top(),
                           Place("lblLegend").top(), Place("cmdCancel").top()};
    EXPECT_TRUE(std::ranges::is_sorted(tops, std::ranges::less_equal{}));
    EXPECT_LT(Place("cmdContinue").right(), Place("cmdCancel").left());
    EXPECT_GT(Place("cmdContinue").left(), 450);
}

TEST_F(ScheduleViewLayout, GivesALongMessageAThirdOfTheView)
{
    ShowSelector({900, 600});
    EXPECT_GT(Find<QWidget>("rtbCustomMsg")->sizeHint().height(), 200);
    EXPECT_EQ(Place("rtbCustomMsg").height(), 200);
}

TEST_F(ScheduleViewLayout, LeavesTheGridRoomInASmallView)
{
    ShowSelector({320, 240});
    EXPECT_EQ(view.size(), QSize(320, 240));
    EXPECT_LE(Place("rtbCustomMsg").height(), 80);
    EXPECT_GE(Place("vaSpread1").height(), 40);
    EXPECT_LE(Place("cmdCancel").bottom(), 240);
}

TEST_F(ScheduleViewLayout, IsMirroredWhereTextRunsFromRightToLeft)
{
    view.setLayoutDirection(Qt::RightToLeft);
    ShowSelector({900, 600});
    EXPECT_GT(Place("cmdContinue").left(), Place("cmdCancel").right());
    EXPECT_LT(Place("cmdContinue").right(), 450);
}

} // namespace schedules
