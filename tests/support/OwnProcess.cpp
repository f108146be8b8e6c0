#include "support/OwnProcess.h"

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace schedules::testing {

namespace {

constexpr unsigned kLongestSeconds = 60;

void Write(int handle, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(handle, text.data(), text.size());
        if (written <= 0)
            ::_exit(127);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

} // namespace

OwnProcess::OwnProcess(const std::function<void(const Tell& tell)>& step)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    m_process = ::fork();
    if (m_process == 0) {
        ::alarm(kLongestSeconds);
        step([&](std::string_view text) { Write(ends[1], text); });
        ::_exit(0);
    }
    ::close(ends[1]);
    m_words = ends[0];
}

OwnProcess::~OwnProcess()
{
    if (m_process > 0) {
        Kill();
        Await();
    }
    ::close(m_words);
}

void OwnProcess::AwaitWord()
{
    ReadSome();
}

void OwnProcess::Kill() const
{
    ::kill(m_process, SIGKILL);
}

OwnProcess::End OwnProcess::Await()
{
    while (ReadSome())
        continue;
    int status = 0;
    ::waitpid(std::exchange(m_process, 0), &status, 0);
    const int code = WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
    return {std::move(m_told), code};
}

bool OwnProcess::ReadSome()
{
    std::array<char, 4096> buffer;
    const ssize_t size = ::read(m_words, buffer.data(), buffer.size());
    if (size > 0)
        m_told.append(buffer.data(), static_cast<std::size_t>(size));
    return size > 0;
}

} // namespace schedules::testing
