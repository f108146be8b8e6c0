#include "rtf/RtfReader.h"

#include "rtf/DocumentBuilder.h"
#include "rtf/Interpreter.h"
#include "rtf/Tables.h"
#include "rtf/Tokenizer.h"

#include <QTextDocument>

#include <algorithm>

namespace schedules::rtf {

namespace {

constexpr QStringView kMark = u"{\\rtf";

void ShowPlain(QStringView text, Interpreter& interpreter)
{
    bool first = true;
    for (const QStringView line : text.split(u'\n')) {
        if (!std::exchange(first, false))
            interpreter.Take({TokenKind::Word, u"par"});
        interpreter.Take({TokenKind::Text, line.endsWith(u'\r') ? line.chopped(1) : line});
    }
}

/// Without what often follows the last brace: line ends, blanks, null characters.
QStringView WithoutTrail(QStringView text)
{
    qsizetype size = text.size();
    while (size > 0 && (text.at(size - 1).isSpace() || text.at(size - 1).isNull()))
        --size;
    return size > 0 && text.at(size - 1) == u'}' ? text.first(size) : text;
}

/// A message that was read byte by byte, though it says that it is UTF-8.
bool IsUndecoded(QStringView message)
{
    const auto isByte = [](QChar character) { return character < u'\x100'; };
    return message.contains(u"\\ansicpg65001") && std::ranges::all_of(message, isByte) &&
           message.toLatin1().isValidUtf8();
}

} // namespace

bool IsRichText(QStringView message)
{
    return message.contains(kMark);
}

void ReadRichText(QStringView given, QTextDocument& document, qreal dotsPerInch)
{
    const QString decoded = IsUndecoded(given) ? QString::fromUtf8(given.toLatin1()) : QString();
    const QStringView message = decoded.isNull() ? given : decoded;
    document.clear();
    Tables tables;
    DocumentBuilder builder(document, tables, dotsPerInch);
    Interpreter interpreter(tables, builder);
    const qsizetype mark = qMax(message.indexOf(kMark), qsizetype(0));
    ShowPlain(message.first(mark), interpreter);
    Tokenizer tokenizer(WithoutTrail(message.sliced(mark)));
    for (Token token = tokenizer.Next(); token.kind != TokenKind::End; token = tokenizer.Next())
        interpreter.Take(token);
    interpreter.Finish();
}

} // namespace schedules::rtf
