#pragma once

#include <cstddef>
#include <vector>

namespace schedules {

/// What a font has taught about pairs of neighbouring ASCII characters. Each value is learned when its pair first turns
/// up.
template <class Value>
class LearnedPairs
{
public:
    static constexpr char32_t kCount = 128;

    /// `unknown` is a value that no pair has.
    explicit LearnedPairs(Value unknown) : m_unknown(unknown), m_values(std::size_t{kCount} * kCount, unknown) {}

    static constexpr bool Covers(char32_t character) { return character < kCount; }

    /// The values of all pairs that begin with a character, among them unknown ones.
    const Value* Row(char32_t before) const { return m_values.data() + before * kCount; }

    /// `learn` gives the value of a pair that is not known yet; it may ask for other pairs.
    template <class Learn>
    Value Of(char32_t before, char32_t character, const Learn& learn)
    {
        Value& value = m_values[before * kCount + character];
        if (value == m_unknown)
            value = learn(before, character);
        return value;
    }

private:
    Value m_unknown;
    std::vector<Value> m_values;
};

} // namespace schedules
