#include "controls/grid/CellEditBox.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace schedules {

namespace {

const QString kThirty = QStringLiteral("123456789012345678901234567890");
const QString kForty = kThirty + QStringLiteral("abcdefghij");

class CellEditBoxTest : public ::testing::Test
{
protected:
    CellEditBoxTest()
    {
        window.resize(400, 100);
        window.show();
        QApplication::setActiveWindow(&window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void Open(const QString& value) { box.Open(value, {10, 10, 200, 30}, Qt::AlignLeft); }

    void OpenAtEnd(const QString& value)
    {
        Open(value);
        box.end(false);
    }

    void Paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(&box, QKeySequence::Paste);
    }

    void CommitByInputMethod(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    }

    std::string Text() const { return box.text().toStdString(); }

    QWidget window;
    CellEditBox box{&window};
    QSignalSpy refused{&box, &CellEditBox::Refused};
};

} // namespace

TEST_F(CellEditBoxTest, StartsHidden)
{
    EXPECT_FALSE(box.isVisibleTo(&window));
}

TEST_F(CellEditBoxTest, OpensWithTheFocusAtItsPlaceAllSelected)
{
    Open(QStringLiteral("12.5"));
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.geometry(), QRect(10, 10, 200, 30));
    EXPECT_EQ(box.selectionStart(), 0);
    EXPECT_EQ(box.selectedText(), QStringLiteral("12.5"));
    box.Close();
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(Text(), "");
}

TEST_F(CellEditBoxTest, RefusesThe31stCharacterWithABeep)
{
    OpenAtEnd(kThirty);
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(Text(), kThirty.toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, TakesTheThirtieth)
{
    OpenAtEnd(kThirty.left(29));
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(box.text().size(), 30);
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, RefusesACharacterAtTheLimitAlsoInPlaceOfASelection)
{
    Open(kThirty);
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(Text(), kThirty.toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, AtTheLimitFullStopsPassBeyondIt)
{
    OpenAtEnd(kThirty);
    QTest::keyClicks(&box, QStringLiteral(".."));
    EXPECT_EQ(Text(), kThirty.toStdString() + "..");
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, AnyOtherKeyCutsAValueBeyondTheLimit)
{
    OpenAtEnd(kThirty);
    QTest::keyClicks(&box, QStringLiteral("..x"));
    EXPECT_EQ(Text(), kThirty.toStdString());
    EXPECT_EQ(refused.count(), 1);
    OpenAtEnd(kForty);
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(Text(), kThirty.toStdString());
}

TEST_F(CellEditBoxTest, AtTheLimitKeysThatAreNoCharactersPass)
{
    OpenAtEnd(kThirty);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(Text(), kThirty.left(29).toStdString());
    OpenAtEnd(kThirty);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(Text(), kThirty.mid(1).toStdString());
    Open(kThirty);
    QTest::keySequence(&box, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), kThirty);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_LT(box.cursorPosition(), 30);
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, ALongValueStaysWholeUntilSomebodyTypes)
{
    OpenAtEnd(kForty);
    EXPECT_EQ(Text(), kForty.toStdString());
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(Text(), kForty.left(39).toStdString());
    QTest::keyClicks(&box, QStringLiteral("."));
    EXPECT_EQ(Text(), kForty.left(39).toStdString() + ".");
}

TEST_F(CellEditBoxTest, CutsOffWhatDoesNotFitOfAPaste)
{
    Open(kThirty.left(28));
    box.home(false);
    Paste(QStringLiteral("abcde"));
    EXPECT_EQ(Text(), "ab" + kThirty.left(28).toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, ASelectionMakesRoomForAPaste)
{
    Open(kThirty);
    Paste(kForty);
    EXPECT_EQ(Text(), kThirty.toStdString());
    EXPECT_EQ(refused.count(), 1);
    Open(kThirty);
    Paste(QStringLiteral("abc"));
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, APasteOfEqualCharactersIsCutToTheLimit)
{
    Open(QString(30, u'a'));
    Paste(QString(40, u'a'));
    EXPECT_EQ(Text(), std::string(30, 'a'));
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, NothingFitsIntoALongValue)
{
    OpenAtEnd(kForty);
    Paste(QStringLiteral("xyz"));
    EXPECT_EQ(Text(), kForty.toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, APasteInPlaceOfPartOfALongValueGetsTheRoomThatIsLeft)
{
    Open(kForty);
    box.setSelection(5, 20); // 20 characters stay
    Paste(QStringLiteral("ABCDEFGHIJKLMNO"));
    EXPECT_EQ(Text(), "12345ABCDEFGHIJ" + kForty.mid(25).toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, APasteCanBeUndone)
{
    OpenAtEnd(QStringLiteral("12"));
    Paste(kForty);
    QTest::keySequence(&box, QKeySequence::Undo);
    EXPECT_EQ(Text(), "12");
}

TEST_F(CellEditBoxTest, ADropIsCutLikeAPaste)
{
    OpenAtEnd(kThirty.left(28));
    box.setCursorPosition(0);
    QMimeData data;
    data.setText(QStringLiteral("abcde"));
    const QPointF start(1, box.rect().center().y());
    QDragEnterEvent enter(start.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &enter);
    QDropEvent drop(start, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &drop);
    EXPECT_EQ(Text(), "ab" + kThirty.left(28).toStdString());
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, TakesWhatAnInputMethodCommits)
{
    OpenAtEnd(QStringLiteral("12"));
    QInputMethodEvent composing(QStringLiteral("にほ"), {});
    QApplication::sendEvent(&box, &composing);
    EXPECT_EQ(Text(), "12") << "what is being composed is no value yet";
    CommitByInputMethod(QStringLiteral("日本"));
    EXPECT_EQ(Text(), "12日本");
    CommitByInputMethod(QStringLiteral("é"));
    EXPECT_EQ(Text(), "12日本é");
}

TEST_F(CellEditBoxTest, CutsWhatAnInputMethodCommitsBeyondTheLimit)
{
    OpenAtEnd(kThirty.left(29));
    CommitByInputMethod(QStringLiteral("日本"));
    EXPECT_EQ(Text(), kThirty.left(29).toStdString() + "日");
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, NeverCutsACharacterInTwo)
{
    OpenAtEnd(kThirty.left(29));
    Paste(QStringLiteral("𝄞"));
    EXPECT_EQ(Text(), kThirty.left(29).toStdString());
    EXPECT_EQ(refused.count(), 1);
    OpenAtEnd(kThirty.left(29) + QStringLiteral("𝄞"));
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(Text(), kThirty.left(29).toStdString());
}

TEST_F(CellEditBoxTest, DropsCharactersThatXmlCannotHold)
{
    OpenAtEnd(QStringLiteral("1"));
    Paste(QStringLiteral("2\u0001\u001F3\uFFFE\uFFFF4") + QChar(0xD800) + QStringLiteral("𝄞"));
    EXPECT_EQ(Text(), "1234𝄞");
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, MakesOneLineOfWhatIsPasted)
{
    OpenAtEnd({});
    Paste(QStringLiteral("12.5\t13\r\n14\n15\r16\r\n"));
    EXPECT_EQ(Text(), "12.5 13 14 15 16");
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, KeepsTheLineBreaksOfTheValue)
{
    OpenAtEnd(QStringLiteral("a\nb"));
    QTest::keyClicks(&box, QStringLiteral("c"));
    EXPECT_EQ(Text(), "a\nbc");
}

TEST_F(CellEditBoxTest, TellsTheKeysThatEndAnEdit)
{
    QStringList told;
    QObject::connect(&box, &CellEditBox::EnterPressed, [&] { told += QStringLiteral("enter"); });
    QObject::connect(&box, &CellEditBox::EscapePressed, [&] { told += QStringLiteral("escape"); });
    QObject::connect(&box, &CellEditBox::TabPressed,
                     [&](bool forward) { told += forward ? QStringLiteral("on") : QStringLiteral("back"); });
    QObject::connect(&box, &CellEditBox::VerticalKeyPressed,
                     [&](Qt::Key key) { told += key == Qt::Key_Up ? QStringLiteral("up") : QStringLiteral("down"); });
    OpenAtEnd(QStringLiteral("12"));
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Up, Qt::Key_Down})
        QTest::keyClick(&box, key);
    QTest::keyClick(&box, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(told.join(' ').toStdString(), "enter enter escape on up down back");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(Text(), "12");
}

TEST_F(CellEditBoxTest, NoShortcutOfTheWindowTakesItsKeys)
{
    Open(QStringLiteral("12"));
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Up, Qt::Key_Down}) {
        QKeyEvent asked(QEvent::ShortcutOverride, key, Qt::NoModifier);
        asked.ignore();
        QApplication::sendEvent(&box, &asked);
        EXPECT_TRUE(asked.isAccepted()) << key;
    }
    QKeyEvent modified(QEvent::ShortcutOverride, Qt::Key_Return, Qt::ControlModifier);
    modified.ignore();
    QApplication::sendEvent(&box, &modified);
    EXPECT_FALSE(modified.isAccepted());
}

TEST_F(CellEditBoxTest, TellsThatTheFocusIsGoneOnlyWhenItDoesNotComeBack)
{
    QSignalSpy left(&box, &CellEditBox::FocusLeft);
    Open(QStringLiteral("12"));
    for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&box, &out);
        EXPECT_EQ(left.count(), 0);
    }
    for (const auto reason : {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::OtherFocusReason, Qt::ShortcutFocusReason})
    {
        left.clear();
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&box, &out);
        EXPECT_EQ(left.count(), 1);
    }
}

TEST_F(CellEditBoxTest, UndoOfADeletionInALongValueRestoresIt)
{
    Open(kForty);
    box.setSelection(0, 5);
    QTest::keyClick(&box, Qt::Key_Delete);
    ASSERT_EQ(box.text().size(), 35);
    QTest::keySequence(&box, QKeySequence::Undo);
    EXPECT_EQ(Text(), kForty.toStdString());
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, AccessKeysAreNotTypedAndAltGrIs)
{
    OpenAtEnd(kThirty);
    QKeyEvent accessKey(QEvent::KeyPress, Qt::Key_C, Qt::AltModifier, QStringLiteral("c"));
    QApplication::sendEvent(&box, &accessKey);
    EXPECT_EQ(refused.count(), 0);
    QKeyEvent euro(QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("€"));
    QApplication::sendEvent(&box, &euro);
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(CellEditBoxTest, AnotherValueIsShownAsItIs)
{
    Open(kThirty);
    box.SetValue(kForty);
    EXPECT_EQ(Text(), kForty.toStdString());
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(CellEditBoxTest, TheFinishedValueHoldsWhatIsBeingComposed)
{
    OpenAtEnd(QStringLiteral("12"));
    EXPECT_EQ(box.FinishedValue(), QStringLiteral("12"));
    QInputMethodEvent composing(QStringLiteral("日本"), {});
    QApplication::sendEvent(&box, &composing);
    EXPECT_EQ(box.FinishedValue(), QStringLiteral("12日本"));
    EXPECT_EQ(box.FinishedValue(), QStringLiteral("12日本"));
}

} // namespace schedules
