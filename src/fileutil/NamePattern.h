#pragma once

#include <QString>

namespace schedules {

/// A pattern of file names: "*" stands for any characters, also none, "?" for one character, everything else for
/// itself. "*.*" means every name, as "*" does. Letters in upper and lower case differ.
class NamePattern
{
public:
    explicit NamePattern(const QString& pattern);

    /// Whether the pattern may match names other than itself.
    bool HasWildcards() const;

    /// Whether the whole name matches. Takes at most the product of the two lengths, however many stars there are.
    bool Matches(QStringView name) const;

    /// Whether it matches each name there can be.
    bool MatchesEverything() const { return m_pattern == QLatin1String("*"); }

private:
    QString m_pattern;
};

} // namespace schedules
