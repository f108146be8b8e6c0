#pragma once

#include <QByteArray>
#include <QString>

namespace schedules::host {

/// Writes to standard output at once. Throws `HostError` when that takes less.
void PrintOut(const QByteArray& text);

/// Writes a line to standard error.
void PrintError(const QString& line);

/// The last line of a terminal, telling what is under way. There is none where standard error is no terminal.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine() { Clear(); }
    Q_DISABLE_COPY_MOVE(ProgressLine)

    /// In place of what the line told before.
    void Show(const QString& text);

    /// Makes room for a line that stays.
    void Clear();

private:
    bool m_onTerminal;
    bool m_shown = false;
};

} // namespace schedules::host
