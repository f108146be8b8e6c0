#pragma once

#include <QStringView>

class QTextDocument;

namespace schedules::rtf {

/// Whether a message is to be read as rich text: it has "{\rtf" (in this case) somewhere.
bool IsRichText(QStringView message);

/// Replaces the content of `document`, and the distance of its default tab stops, by rich text.
///
/// Characters beyond ASCII that stand in the message are taken as they are; bytes of a code page come as escapes. A
/// message that calls itself UTF-8 may also hold one character for each byte. What stands before "{\rtf" is shown in
/// front, as plain text, and what comes after the last brace is shown, too. Nothing is refused: unknown words and
/// destinations are skipped, and broken input shows as much text as it holds.
///
/// Time and memory are proportional to the message, whatever it says, and there is no recursion. Nothing is loaded or
/// linked: the document gets texts and formats only, of fields their last result. Lengths become pixels at
/// `dotsPerInch`; the colour "auto" is no colour at all, so that the palette of the widget decides.
void ReadRichText(QStringView message, QTextDocument& document, qreal dotsPerInch = 96);

} // namespace schedules::rtf
