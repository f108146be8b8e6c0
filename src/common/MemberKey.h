#pragma once

#include <QString>

#include <compare>
#include <cstddef>
#include <variant>

namespace schedules {

/// The place of a member in a collection, counted from 1. A type of its own, so that no number is taken for one.
class Position
{
public:
    explicit constexpr Position(int value) : m_value(value) {}

    /// The place of what has that index, counted from 0.
    static constexpr Position OfIndex(std::size_t index) { return Position(static_cast<int>(index) + 1); }

    constexpr int Value() const { return m_value; }

    /// Counted from 0; what is no place has an index beyond all others.
    constexpr std::size_t Index() const { return static_cast<std::size_t>(m_value) - 1; }

    constexpr Position Next() const { return Position(m_value + 1); }

    constexpr auto operator<=>(const Position&) const = default;

private:
    int m_value;
};

/// What a member is asked for by: its place, or its name. The name "2" is a name.
using MemberKey = std::variant<Position, QString>;

} // namespace schedules
