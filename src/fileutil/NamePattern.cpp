#include "fileutil/NamePattern.h"

#include "fileutil/FileNames.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr QChar kAnyCharacters = u'*';
constexpr QChar kOneCharacter = u'?';

/// One match: how far it has come in the pattern and in the name. Only the last star is ever tried again with more
/// characters, since what came before it matches as early as it can.
class Match
{
public:
    Match(QStringView pattern, QStringView name) : m_pattern(pattern), m_name(name) {}

    bool Succeeds()
    {
        while (!m_name.isEmpty()) {
            if (!Advance() && !GiveStarOneMore())
                return false;
        }
        return std::ranges::all_of(m_pattern, [](QChar left) { return left == kAnyCharacters; });
    }

private:
    bool Advance()
    {
        if (m_pattern.isEmpty())
            return false;
        const QChar wanted = m_pattern.front();
        if (wanted == kAnyCharacters)
            return BeginStar();
        if (wanted != kOneCharacter && wanted != m_name.front())
            return false;
        m_pattern = m_pattern.sliced(1);
        m_name = m_name.sliced(wanted == kOneCharacter ? CharacterLength(m_name, 0) : 1);
        return true;
    }

    bool BeginStar()
    {
        m_pattern = m_pattern.sliced(1);
        m_hasStar = true;
        m_afterStar = m_pattern;
        m_starTried = m_name;
        return true;
    }

    bool GiveStarOneMore()
    {
        if (!m_hasStar)
            return false;
        m_starTried = m_starTried.sliced(CharacterLength(m_starTried, 0));
        m_pattern = m_afterStar;
        m_name = m_starTried;
        return true;
    }

    QStringView m_pattern;
    QStringView m_name;
    bool m_hasStar = false;
    QStringView m_afterStar;
    QStringView m_starTried; ///< what is left of the name behind the characters that the star took
};

} // namespace

NamePattern::NamePattern(const QString& pattern)
    : m_pattern(pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern)
{
}

bool NamePattern::HasWildcards() const
{
    return m_pattern.contains(kAnyCharacters) || m_pattern.contains(kOneCharacter);
}

bool NamePattern::Matches(QStringView name) const
{
    return MatchesEverything() || Match(m_pattern, name).Succeeds();
}

} // namespace schedules
