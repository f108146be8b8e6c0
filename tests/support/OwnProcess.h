#pragma once

#include <QtGlobal>

#include <functional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace schedules::testing {

/// A step that runs in a process of its own, on a copy of all that there is in this one. It ends without any clean-up,
/// and is ended when it takes a minute.
///
/// What goes wrong in the step shows in how it ends: checks that fail there are printed and otherwise lost.
class OwnProcess
{
public:
    /// Says something to the process that waits.
    using Tell = std::function<void(std::string_view)>;

    /// What it ends with when a check has failed in the step, or when that has thrown.
    static constexpr int kFailed = 126;

    explicit OwnProcess(const std::function<void(const Tell& tell)>& step);
    ~OwnProcess();
    Q_DISABLE_COPY_MOVE(OwnProcess)

    /// Waits for something to be told, or for the end.
    void AwaitWord();

    void Kill() const;

    struct End
    {
        std::string told;
        int failure = 0; ///< the signal, or the exit code, that it ended with instead of with its step
    };

    /// Waits for the end. Only once.
    End Await();

private:
    /// False at the end of what is told.
    bool ReadSome();

    pid_t m_process = 0;
    int m_words = -1;
    std::string m_told;
};

} // namespace schedules::testing
