#pragma once

#include "host/cli/CommandLine.h"

#include <gtest/gtest.h>

namespace schedules::host::testing {

/// What the arguments mean. Fails the test when they mean nothing.
inline CommandLine Parsed(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << qPrintable(error->line);
        return {};
    }
    return std::get<CommandLine>(parsed);
}

/// Why they mean nothing.
inline QString Refused(const QStringList& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return error ? error->line : QStringLiteral("(accepted)");
}

} // namespace schedules::host::testing
