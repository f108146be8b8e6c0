#include "model/PropertyValue.h"

#include "common/BooleanText.h"
#include "common/Error.h"

namespace schedules {

namespace {

constexpr int kDigits = 15;

struct ToText
{
    QString operator()(const QString& text) const { return text; }
    QString operator()(double number) const { return QString::number(number, 'G', kDigits); }
    QString operator()(bool flag) const { return BooleanText(flag); }
    QString operator()(const std::shared_ptr<void>&) const
    {
        throw Error(kTypeMismatchError, QStringLiteral("An object is no text."));
    }
};

struct ToFlag
{
    bool operator()(const QString& text) const { return BooleanOf(text); }
    bool operator()(double number) const { return number != 0; }
    bool operator()(bool flag) const { return flag; }
    bool operator()(const std::shared_ptr<void>&) const
    {
        throw Error(kTypeMismatchError, QStringLiteral("An object is neither true nor false."));
    }
};

} // namespace

QString TextOf(const PropertyValue& value)
{
    return std::visit(ToText(), value);
}

bool FlagOf(const PropertyValue& value)
{
    return std::visit(ToFlag(), value);
}

} // namespace schedules
