#include "tools/schedule/layout/CustomMessage.h"

#include "rtf/RtfReader.h"

#include <QPointer>
#include <QResizeEvent>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace schedules {

namespace {

// A text of this length is higher than any screen. Measuring it exactly would take its time, and change nothing.
constexpr int kLongText = 400'000;
constexpr int kHigherThanScreens = 10'000;

// Finding the end of a longer run at each of its lines would take quadratic time.
constexpr int kLongestRun = 1000;

bool HasLongRun(const QString& text)
{
    int length = 0;
    return std::ranges::any_of(text, [&](QChar each) {
        length = each.isSpace() ? 0 : length + 1;
        return length > kLongestRun;
    });
}

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
    if (rtf::IsRichText(message.text))
        ShowRich(message.text);
    else
        ShowPlain(message);
    setVisible(!document()->isEmpty());
    updateGeometry();
}

void CustomMessage::ShowPlain(const CustomMessageText& message)
{
    QFont font;
    font.setBold(message.bold);
    font.setItalic(message.italic);
    setFont(font);
    ShowDocument(NewDocument());
    WrapFor(message.text);
    setPlainText(message.text);
    selectAll();
    setAlignment(AlignmentOf(message.alignment));
    moveCursor(QTextCursor::Start);
}

void CustomMessage::ShowRich(const QString& text)
{
    setFont({});
    std::unique_ptr<QTextDocument> rich = NewDocument();
    // Before it is shown: a document that is seen lays itself out while it is written.
    rtf::ReadRichText(text, *rich, logicalDpiX());
    ShowDocument(NewDocument());
    WrapFor(rich->toPlainText());
    ShowDocument(std::move(rich));
}

void CustomMessage::WrapFor(const QString& text)
{
    setWordWrapMode(HasLongRun(text) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
}

std::unique_ptr<QTextDocument> CustomMessage::NewDocument() const
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(font());
    return document;
}

void CustomMessage::ShowDocument(std::unique_ptr<QTextDocument> next)
{
    // The first one is deleted by the box itself.
    const QPointer<QTextDocument> former = document();
    next->setParent(this);
    setDocument(next.release());
    delete former;
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
