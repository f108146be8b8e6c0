#include "tools/schedule/CustomMessage.h"

#include "rtf/RtfReader.h"

#include <QResizeEvent>
#include <QTextCursor>

namespace schedules {

namespace {

// A text of this length is higher than any screen. Measuring it exactly would take its time, and change nothing.
constexpr int kLongText = 400'000;
constexpr int kHigherThanScreens = 10'000;

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

CustomMessage::CustomMessage(QWidget* parent) : QTextEdit(parent), m_plainTabDistance(tabStopDistance())
{
    setObjectName(QStringLiteral("rtbCustomMsg"));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFrameStyle(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    hide();
}

void CustomMessage::Show(const CustomMessageText& message)
{
    if (rtf::IsRichText(message.text))
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
    // What a rich text before it has left.
    setTabStopDistance(m_plainTabDistance);
    setCurrentCharFormat({});
    setPlainText(message.text);
    selectAll();
    setAlignment(AlignmentOf(message.alignment));
    moveCursor(QTextCursor::Start);
}

void CustomMessage::ShowRich(const QString& text)
{
    setFont({});
    rtf::ReadRichText(text, *document(), logicalDpiX());
    moveCursor(QTextCursor::Start);
}

QVariant CustomMessage::loadResource(int, const QUrl&)
{
    // The document loads by itself what is no value at all.
    return QByteArray();
}

QSize CustomMessage::sizeHint() const
{
    const bool isLong = document()->characterCount() > kLongText;
    const int height = isLong ? kHigherThanScreens : qRound(document()->size().height());
    return {QTextEdit::sizeHint().width(), height + 2 * frameWidth()};
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
