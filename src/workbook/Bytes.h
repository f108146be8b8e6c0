#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

// The fields of records: numbers, least byte first, one after the other without gaps.

namespace schedules {

static_assert(std::endian::native == std::endian::little, "numbers are written as they lie in memory");

using Byte = std::uint8_t;
using Word = std::uint16_t;
using DWord = std::uint32_t;

template <class Field>
concept RecordField = std::is_arithmetic_v<Field> && !std::is_same_v<Field, bool> && !std::is_same_v<Field, int>;

/// Where a record's fields are put one after the other.
template <RecordField Field>
char* Put(char* at, Field field)
{
    std::memcpy(at, &field, sizeof field);
    return at + sizeof field;
}

template <RecordField... Fields>
void Append(std::string& bytes, Fields... fields)
{
    (bytes.append(reinterpret_cast<const char*>(&fields), sizeof fields), ...);
}

} // namespace schedules
