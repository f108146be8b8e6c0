#include "tools/schedule/CustomMessage.h"

#include <QTextCursor>

namespace schedules {

namespace {

constexpr auto kRichTextMark = u"{\\rtf";

Qt::Alignment AlignmentOf(int number)
{
    switch (number) {
    case 1:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case 2:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    }
}

} // namespace

CustomMessage::CustomMessage(QWidget* parent) : QTextEdit(parent)
{
    setObjectName(QStringLiteral("rtbCustomMsg"));
    setReadOnly(true);
    setFrameStyle(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    hide();
}

void CustomMessage::Show(const CustomMessageText& message)
{
    if (message.text.contains(kRichTextMark))
        ShowRich(message.text);
    else
        ShowPlain(message);
    setVisible(!message.text.isEmpty());
    updateGeometry();
}

void CustomMessage::ShowPlain(const CustomMessageText& message)
{
    QFont font;
    font.setBold(message.bold);
    font.setItalic(message.italic);
    setFont(font);
    setPlainText(message.text);
    selectAll();
    setAlignment(AlignmentOf(message.alignment));
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Start);
    setTextCursor(cursor);
}

void CustomMessage::ShowRich(const QString& text)
{
    setFont({});
    setPlainText(text);
}

QSize CustomMessage::sizeHint() const
{
    const int height = qRound(document()->size().height()) + 2 * frameWidth();
    return {QTextEdit::sizeHint().width(), height};
}

QSize CustomMessage::minimumSizeHint() const
{
    return {0, fontMetrics().lineSpacing() + 2 * qRound(document()->documentMargin()) + 2 * frameWidth()};
}

void CustomMessage::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    // The text is laid out for the new width by now, so its height may be another one.
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

} // namespace schedules
