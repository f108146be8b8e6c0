#pragma once

#include "common/UserInterface.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace schedules::host {

/// Stands in for the user where there is none: message boxes are remembered, questions are answered with no.
class ConsoleUserInterface : public UserInterface
{
public:
    Answer Show(const MessageBox& box) override;
    void SetPointer(Pointer) override {}
    void Beep() override {}
    QString AskSaveFileName(const FileQuestion&) override { return {}; }

    /// What went wrong since the last call, as one line: the first message with a number, the number behind it in
    /// brackets; without any numbered one the first message. Nothing when no message was shown.
    std::optional<QString> TakeFailure();

    /// Every message since the last call as a line, in order: what it is about, if it says so, its text, and its number
    /// in brackets, if it has one.
    QStringList TakeReports();

private:
    QList<MessageBox> m_boxes;
};

} // namespace schedules::host
