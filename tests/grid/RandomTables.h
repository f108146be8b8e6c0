#pragma once

#include <QString>

#include <random>
#include <span>

namespace schedules::testing {

/// Writes documents at random that are mostly tables, with everything between and inside of cells that XML allows.
/// The same seed gives the same documents.
class RandomTables
{
public:
    explicit RandomTables(unsigned seed) : m_random(seed) {}

    QString Next();

private:
    using Choices = std::span<const char* const>;

    bool Chance(int percent);
    int UpTo(int most);
    QString OneOf(Choices choices);

    QString Element(const QString& name, int depth);
    QString ChildName(const QString& parent);
    QString Content(const QString& parent, int depth);
    QString Attributes();
    QString Text();
    QString Between();

    std::mt19937 m_random;
    bool m_plain = true; ///< nothing but elements, attributes and texts
};

} // namespace schedules::testing
