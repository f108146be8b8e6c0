#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

namespace schedules::testing {

inline const QString kProject = QStringLiteral(SCHEDULES_SOURCE_DIR);

/// The text of a file of the project; empty when there is none.
inline QString ContentOf(const QString& file)
{
    QFile text(kProject + u'/' + file);
    return text.open(QFile::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
}

/// What the first group of a pattern has captured, wherever it matches; "^" is the start of a line.
inline QStringList Captured(const QString& text, const QString& pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (const auto& match : expression.globalMatch(text))
        found << match.captured(1);
    return found;
}

} // namespace schedules::testing
