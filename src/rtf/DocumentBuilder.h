#pragma once

#include "rtf/Group.h"

#include <QString>
#include <QTextCursor>
#include <QTextFormat>

#include <vector>

class QTextDocument;

namespace schedules::rtf {

struct Tables;

/// Writes paragraphs into a document, each when it ends: only then is known how it is set.
class DocumentBuilder
{
public:
    /// Writes behind what `document` holds. The document, and the tables that looks refer to, outlive the builder.
    DocumentBuilder(QTextDocument& document, const Tables& tables, qreal dotsPerInch);
    ~DocumentBuilder();
    Q_DISABLE_COPY_MOVE(DocumentBuilder)

    /// The distance of the tab stops that paragraphs have without a list of their own.
    void SetTabDistance(int twips);

    void Add(QStringView text, const Look& look);
    /// `mark` is the look of the paragraph's end, which is seen in the height of an empty one.
    void EndParagraph(const Paragraph& paragraph, const Look& mark);
    /// Writes the last paragraph, unless nothing came after the end of the one before.
    void Finish(const Paragraph& paragraph);

private:
    struct Run
    {
        Look look;
        QString text;
    };

    const QTextBlockFormat& FormatOf(const Paragraph& paragraph);

    QTextCursor m_cursor;
    const Tables& m_tables;
    qreal m_dotsPerInch;
    std::vector<Run> m_runs; ///< of the paragraph that has not ended
    bool m_isFirst = true;
    Paragraph m_latest; ///< what `m_latestFormat` is made of
    QTextBlockFormat m_latestFormat;
};

} // namespace schedules::rtf
