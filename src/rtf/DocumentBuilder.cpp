#include "rtf/DocumentBuilder.h"

#include "rtf/Formats.h"
#include "rtf/Tables.h"

#include <QTextDocument>

#include <utility>

namespace schedules::rtf {

DocumentBuilder::DocumentBuilder(QTextDocument& document, const Tables& tables, qreal dotsPerInch)
    : m_cursor(&document), m_tables(tables), m_dotsPerInch(dotsPerInch)
{
    m_cursor.movePosition(QTextCursor::End);
    m_cursor.beginEditBlock();
}

DocumentBuilder::~DocumentBuilder()
{
    m_cursor.endEditBlock();
}

void DocumentBuilder::SetTabDistance(int twips)
{
    QTextOption option = m_cursor.document()->defaultTextOption();
    option.setTabStopDistance(twips * m_dotsPerInch / kTwipsPerInch);
    m_cursor.document()->setDefaultTextOption(option);
}

void DocumentBuilder::Add(QStringView text, const Look& look)
{
    if (m_runs.empty() || m_runs.back().look != look)
        m_runs.push_back({look, {}});
    m_runs.back().text += text;
}

void DocumentBuilder::EndParagraph(const Paragraph& paragraph, const Look& mark)
{
    Look look = mark;
    QTextCharFormat format = CharFormatOf(mark, m_tables);
    if (std::exchange(m_isFirst, false)) {
        m_cursor.setBlockFormat(FormatOf(paragraph));
        m_cursor.setBlockCharFormat(format);
    } else {
        m_cursor.insertBlock(FormatOf(paragraph), format);
    }
    for (const Run& run : m_runs) {
        if (run.look != look)
            format = CharFormatOf(run.look, m_tables);
        look = run.look;
        m_cursor.insertText(run.text, format);
    }
    m_runs.clear();
}

/// Most paragraphs are set as the one before, and making a format takes longer than reading the text.
const QTextBlockFormat& DocumentBuilder::FormatOf(const Paragraph& paragraph)
{
    if (paragraph != m_latest)
        m_latestFormat = BlockFormatOf(paragraph, m_tables, m_dotsPerInch);
    m_latest = paragraph;
    return m_latestFormat;
}

void DocumentBuilder::Finish(const Paragraph& paragraph)
{
    if (!m_runs.empty())
        EndParagraph(paragraph, m_runs.back().look);
}

} // namespace schedules::rtf
