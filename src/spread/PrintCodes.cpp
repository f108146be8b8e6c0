#include "spread/PrintCodes.h"

#include "spread/OneLine.h"

#include <QRegularExpression>

namespace schedules {

namespace {

/// Stands for a slash that is text. Unicode keeps it for uses inside of a program, so no text has it.
constexpr QChar kTextSlash(0xFDD0);

/// The groups are: font, size, bold, part or new line.
const QRegularExpression& CodePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"re(/fn"([^"]*)"|/fz"([0-9]{1,3}(?:\.[0-9]+)?)"|/fb([01])|/([lcrn]))re"));
    return pattern;
}

HeaderPart PartOf(QChar letter)
{
    if (letter == u'l')
        return HeaderPart::Left;
    return letter == u'c' ? HeaderPart::Center : HeaderPart::Right;
}

/// Half a character, which no text should have, would make the whole header one without codes.
QString WholeCharacters(const QString& text)
{
    QString whole;
    for (const char32_t character : text.toUcs4())
        whole += QChar::fromUcs4(character);
    return whole;
}

/// What moves a line on would leave the line that it is printed in.
QString Printed(QString text)
{
    return OnOneLine(text.replace(kTextSlash, u'/'));
}

/// Puts the lines together, code by code.
class HeaderBuilder
{
public:
    void AddText(const QString& text)
    {
        if (text.isEmpty())
            return;
        m_line.parts[static_cast<std::size_t>(m_part)].push_back({Printed(text), m_line.look});
        m_started = true;
    }

    void Obey(const QRegularExpressionMatch& code)
    {
        if (code.hasCaptured(4))
            Go(code.captured(4).front());
        else if (code.hasCaptured(3))
            m_line.look.bold = code.captured(3) == QLatin1String("1");
        else if (code.hasCaptured(2))
            m_line.look.size = std::max(code.captured(2).toDouble(), 1.0);
        else
            m_line.look.font = code.captured(1);
    }

    std::vector<HeaderLine> Lines()
    {
        if (m_started)
            EndLine();
        return std::move(m_lines);
    }

private:
    void Go(QChar letter)
    {
        if (letter == u'n')
            EndLine();
        else
            m_part = PartOf(letter);
    }

    void EndLine()
    {
        HeaderLine next{{}, m_line.look};
        m_lines.push_back(std::exchange(m_line, std::move(next)));
        m_part = HeaderPart::Left;
        m_started = false;
    }

    std::vector<HeaderLine> m_lines;
    HeaderLine m_line;
    HeaderPart m_part = HeaderPart::Left;
    bool m_started = false;
};

} // namespace

std::vector<HeaderLine> ReadPrintCodes(const QString& written)
{
    const QString codes = WholeCharacters(written);
    HeaderBuilder builder;
    qsizetype textStart = 0;
    auto matches = CodePattern().globalMatch(codes);
    while (matches.hasNext()) {
        const QRegularExpressionMatch code = matches.next();
        builder.AddText(codes.mid(textStart, code.capturedStart() - textStart));
        builder.Obey(code);
        textStart = code.capturedEnd();
    }
    builder.AddText(codes.mid(textStart));
    return builder.Lines();
}

QString ProtectedFromCodes(QString text)
{
    return text.replace(u'/', kTextSlash);
}

} // namespace schedules
