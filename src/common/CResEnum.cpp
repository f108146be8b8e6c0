#include "common/CResEnum.h"

#include <QMetaEnum>

namespace schedules {

namespace {

std::optional<QMetaEnum> EnumerationOf(const QMetaObject& declarations, const QString& name)
{
    for (int i = 0; i < declarations.enumeratorCount(); ++i) {
        if (name == QLatin1String(declarations.enumerator(i).name()))
            return declarations.enumerator(i);
    }
    return std::nullopt;
}

// Not `QMetaEnum::keyToValue`, which also takes qualified and combined names.
std::optional<int> ValueIn(const QMetaEnum& enumeration, const QString& member)
{
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        if (member == QLatin1String(enumeration.key(i)))
            return enumeration.value(i);
    }
    return std::nullopt;
}

} // namespace

std::optional<int> CResEnum::ValueOf(const QString& enumeration, const QString& member)
{
    const std::optional<QMetaEnum> members = EnumerationOf(staticMetaObject, enumeration);
    return members ? ValueIn(*members, member) : std::nullopt;
}

} // namespace schedules
