#pragma once

#include "host/Crossing.h"

#include <QFile>

namespace schedules::host {

/// A file that grows by one line for every message. Each line is on its way to the disk before the tool goes on.
class MessageFile
{
public:
    /// Throws `HostError` when the file cannot be written.
    explicit MessageFile(const QString& fileName);

    void Append(const Crossing& crossing);

private:
    QFile m_file;
};

} // namespace schedules::host
