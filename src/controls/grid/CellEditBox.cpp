#include "controls/grid/CellEditBox.h"

#include "common/modResource.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

namespace schedules {

namespace {

bool XmlCanHold(QChar character)
{
    return character >= u' ' && !character.isSurrogate() && character < QChar(0xFFFE);
}

bool IsPairAt(const QString& text, qsizetype index)
{
    return index + 1 < text.size() && text[index].isHighSurrogate() && text[index + 1].isLowSurrogate();
}

/// What a value of one line takes over of a text that is inserted.
QString OnOneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (text.endsWith(u'\n'))
        text.chop(1); // spreadsheets end what they copy like this
    QString line;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar character = text[index];
        if (IsPairAt(text, index))
            line += text.mid(index++, 2);
        else if (character == u'\n' || character == u'\r' || character == u'\t')
            line += u' ';
        else if (XmlCanHold(character))
            line += character;
    }
    return line;
}

/// The start of a text, without half a character at its end.
QString Start(const QString& text, qsizetype length)
{
    const bool cutsPair = length > 0 && length < text.size() && text[length - 1].isHighSurrogate();
    return text.left(cutsPair ? length - 1 : length);
}

/// The keys that the grid's editing gives a meaning.
constexpr int kCommandKeys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Up,
                                Qt::Key_Down,   Qt::Key_Tab,   Qt::Key_Backtab};

bool IsTyped(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint();
}

/// Control and Alt together are AltGr, which types.
bool IsCommand(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return modifiers && modifiers != (Qt::ControlModifier | Qt::AltModifier);
}

bool ComesBack(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

CellEditBox::CellEditBox(QWidget* parent) : QLineEdit(parent)
{
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max());
    setAccessibleName(ComponentText("Edit value"));
    connect(this, &QLineEdit::textChanged, this, &CellEditBox::LookAtChange);
    hide();
}

void CellEditBox::Open(const QString& value, const QRect& place, Qt::Alignment valueAlignment)
{
    setAlignment(valueAlignment | Qt::AlignVCenter);
    SetValue(value);
    setGeometry(place);
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void CellEditBox::SetValue(const QString& value)
{
    Accepting([&] {
        if (!m_composing.isEmpty()) {
            QGuiApplication::inputMethod()->reset();
            QInputMethodEvent nothing;
            inputMethodEvent(&nothing);
        }
        setText(value);
    });
}

QString CellEditBox::FinishedValue()
{
    if (!m_composing.isEmpty())
        QGuiApplication::inputMethod()->commit();
    // An input method need not listen.
    if (!m_composing.isEmpty()) {
        QInputMethodEvent event;
        event.setCommitString(m_composing);
        inputMethodEvent(&event);
    }
    return text();
}

void CellEditBox::Close()
{
    hide();
    Accepting([&] { clear(); });
}

template <class Change>
void CellEditBox::Accepting(Change&& change)
{
    const QScopedValueRollback accepting(m_accepting, true);
    change();
    m_textBefore = text();
}

bool CellEditBox::event(QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QLineEdit::event(event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isModified = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (isModified || !std::ranges::count(kCommandKeys, key->key()))
        return QLineEdit::event(event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        PressCommandKey(key->key());
    return true;
}

void CellEditBox::PressCommandKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        return Q_EMIT EscapePressed();
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return Q_EMIT TabPressed(key == Qt::Key_Tab);
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Q_EMIT VerticalKeyPressed(static_cast<Qt::Key>(key));
    default:
        return Q_EMIT EnterPressed();
    }
}

void CellEditBox::keyPressEvent(QKeyEvent* event)
{
    const bool isTyped = IsTyped(*event);
    if (isTyped && IsCommand(*event) && !(event->modifiers() & Qt::ControlModifier))
        event->ignore(); // an access key that leads nowhere; a line edit would insert the letter
    else if (isTyped && !IsCommand(*event))
        Type(event);
    else
        QLineEdit::keyPressEvent(event);
}

void CellEditBox::Type(QKeyEvent* event)
{
    if (event->text() == QLatin1String("."))
        Accepting([&] { QLineEdit::keyPressEvent(event); });
    else if (text().size() < kMaximumLength)
        QLineEdit::keyPressEvent(event);
    else {
        CutToMaximum();
        event->accept();
        Q_EMIT Refused();
    }
}

void CellEditBox::CutToMaximum()
{
    const auto length = static_cast<int>(Start(text(), kMaximumLength).size());
    if (length == text().size())
        return;
    Accepting([&] {
        setSelection(length, static_cast<int>(text().size()) - length);
        del();
    });
}

void CellEditBox::LookAtChange()
{
    // What undoing brings back was there before, however long it is.
    if (m_accepting || isRedoAvailable()) {
        m_textBefore = text();
        return;
    }
    const QString now = text();
    const auto [before, start] = std::ranges::mismatch(m_textBefore, now);
    const auto longestEnd = std::min(m_textBefore.cend() - before, now.cend() - start);
    const auto end = std::mismatch(now.crbegin(), now.crbegin() + longestEnd, m_textBefore.crbegin()).first.base();
    Tidy(start - now.cbegin(), end - start);
    m_textBefore = text();
}

void CellEditBox::Tidy(qsizetype start, qsizetype length)
{
    const QString inserted = text().mid(start, length);
    const QString line = OnOneLine(inserted);
    const QString tidy = Start(line, std::max<qsizetype>(kMaximumLength - (text().size() - length), 0));
    if (tidy == inserted)
        return;
    const auto replaced = m_textBefore.size() - (text().size() - length);
    Accepting([&] {
        const bool undone = TakeBack();
        setSelection(static_cast<int>(start), static_cast<int>(undone ? replaced : length));
        insert(tidy);
    });
    if (tidy != line)
        Q_EMIT Refused();
}

/// Undoes the last change, if that is a step of its own, so that the user who undoes does not come upon it.
bool CellEditBox::TakeBack()
{
    const QString changed = text();
    undo();
    if (text() == m_textBefore)
        return true;
    if (text() != changed)
        redo();
    return false;
}

void CellEditBox::inputMethodEvent(QInputMethodEvent* event)
{
    m_composing = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

void CellEditBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (isVisible() && !ComesBack(event->reason()))
        Q_EMIT FocusLeft();
}

void CellEditBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 0));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace schedules
