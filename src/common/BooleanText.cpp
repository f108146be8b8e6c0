#include "common/BooleanText.h"

#include "common/Blanks.h"
#include "common/Error.h"

#include <cmath>

namespace schedules {

QString BooleanText(bool value)
{
    return value ? QStringLiteral("-1") : QStringLiteral("0");
}

bool BooleanOf(const QString& text)
{
    const QString word = TrimmedOfBlanks(text);
    if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    const bool hasOtherSpaces = word.trimmed().size() != word.size(); // the conversion would take them for blanks
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || hasOtherSpaces)
        throw Error(kTypeMismatchError, QStringLiteral("\"%1\" is neither true nor false.").arg(text));
    return number != 0;
}

} // namespace schedules
