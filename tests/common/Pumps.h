#pragma once

#include "common/KeyedCollection.h"

#include <QStringList>

#include <functional>
#include <limits>

namespace schedules::testing {

inline constexpr int kSmallest = std::numeric_limits<int>::min();
inline constexpr int kLargest = std::numeric_limits<int>::max();

/// A member with a number, and something to do at its end.
class Pump
{
public:
    explicit Pump(QString name, std::function<void()> atEnd = {}) : m_name(std::move(name)), m_atEnd(std::move(atEnd))
    {
    }
    ~Pump()
    {
        if (m_atEnd)
            m_atEnd();
    }
    Q_DISABLE_COPY_MOVE(Pump)

    const MemberId& Identity() const { return m_id; }
    const QString& Name() const { return m_name; }
    void SetId(int id) { m_id.Set(id); }

private:
    MemberId m_id;
    QString m_name;
    std::function<void()> m_atEnd;
};

using Pumps = KeyedCollection<Pump>;

inline QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

inline std::shared_ptr<Pump> NewPump(const QString& name, int id = 0)
{
    auto pump = std::make_shared<Pump>(name);
    pump->SetId(id);
    return pump;
}

inline QString NameOf(const std::shared_ptr<Pump>& pump)
{
    return pump ? pump->Name() : QStringLiteral("nothing");
}

/// "A B C", the names in order.
inline QString Drawn(const Pumps& pumps)
{
    QStringList names;
    for (const auto& pump : pumps.Members())
        names += pump->Name();
    return names.join(u' ');
}

/// Pumps of these names, under the same keys, numbered from 1.
inline Pumps Filled(const char* names)
{
    Pumps pumps;
    for (const QString& name : Text(names).split(u' ', Qt::SkipEmptyParts))
        pumps.Append(name, NewPump(name, pumps.Count() + 1));
    return pumps;
}

/// "P1 P2 P3", so many.
inline Pumps FilledWith(int count)
{
    Pumps pumps;
    for (int number = 1; number <= count; ++number)
        pumps.Append(QStringLiteral("P%1").arg(number), NewPump(QStringLiteral("P%1").arg(number), number));
    return pumps;
}

inline bool Inserts(Pumps& pumps, Position place, const QString& key)
{
    return pumps.Insert(place, key, NewPump(key));
}

} // namespace schedules::testing
