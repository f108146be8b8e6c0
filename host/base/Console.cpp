#include "host/base/Console.h"

#include "host/base/HostError.h"

#include <cstdio>
#include <unistd.h>

namespace schedules::host {

namespace {

constexpr auto kStartOfLine = "\r\033[K";
constexpr int kLongestLine = 79;

} // namespace

void PrintOut(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw HostError(QStringLiteral("cannot write to standard output"));
}

void PrintError(const QString& line)
{
    std::fputs((line + u'\n').toLocal8Bit().constData(), stderr);
}

ProgressLine::ProgressLine() : m_onTerminal(::isatty(STDERR_FILENO) != 0) {}

void ProgressLine::Show(const QString& text)
{
    if (!m_onTerminal)
        return;
    Clear();
    // A line that wraps could not be taken away again.
    std::fputs(text.left(kLongestLine).toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
    m_shown = true;
}

void ProgressLine::Clear()
{
    if (m_shown)
        std::fputs(kStartOfLine, stderr);
    m_shown = false;
}

} // namespace schedules::host
