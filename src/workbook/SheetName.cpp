#include "workbook/SheetName.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr qsizetype kLongest = 31;

bool IsForbidden(QChar character)
{
    return QStringView(u"[]:*?/\\").contains(character) || character.category() == QChar::Other_Control;
}

QString WithoutApostrophesAround(QString name)
{
    while (name.startsWith(u'\''))
        name.remove(0, 1);
    while (name.endsWith(u'\''))
        name.chop(1);
    return name;
}

QString Shortened(QString name)
{
    if (name.size() > kLongest)
        name.truncate(name.at(kLongest - 1).isHighSurrogate() ? kLongest - 1 : kLongest);
    return name;
}

} // namespace

QString LegalSheetName(const QString& name)
{
    QString legal = name.trimmed();
    std::ranges::replace_if(legal, IsForbidden, QChar(u'_'));
    legal = WithoutApostrophesAround(Shortened(WithoutApostrophesAround(legal))).trimmed();
    return legal.isEmpty() ? QStringLiteral("Sheet1") : legal;
}

} // namespace schedules
