#pragma once

#include "host/tools/Crossing.h"

#include <QFile>

#include <optional>

namespace schedules::host {

/// A file that grows by one line for every message. Each line is on its way to the disk before the tool goes on.
class MessageFile
{
public:
    /// Throws `HostError` when the file cannot be written.
    explicit MessageFile(const QString& fileName);

    /// Never throws, since the tool that sends waits for the reply; see `RequireComplete`.
    void Append(const Crossing& crossing);

    /// Throws `HostError` when a message could not be written.
    void RequireComplete() const;

private:
    QFile m_file;
    std::optional<QString> m_failure;
};

} // namespace schedules::host
