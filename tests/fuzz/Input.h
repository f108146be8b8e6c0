#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

// Called by the fuzzer: once at the start, then with one input after the other, until one of them crashes, runs without
// an end or fails an expectation.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace schedules::testing {

/// An input: some bytes, and in the last one a choice of what to do with them. So a file of text, which ends in a line
/// feed, is an input, too.
struct Input
{
    Input(const std::uint8_t* data, std::size_t size);

    /// The bytes as UTF-8, or, with a choice from 0x80 on, as UTF-16 units of any kind.
    QString Text() const;

    QByteArray bytes;
    unsigned choice = '\n';
};

} // namespace schedules::testing
