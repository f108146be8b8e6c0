#pragma once

#include "common/UserInterface.h"

#include <functional>
#include <vector>

namespace schedules {

/// Stands between the user and somebody who does many things at a time: what is reported while `Together` runs, the
/// user sees in one box. Everything else passes.
class GatheredReports final : public UserInterface
{
public:
    /// The user must outlive it.
    explicit GatheredReports(UserInterface& user) : m_user(user) {}

    /// Runs `work`, then shows what was reported as one box, in which each text stands once, with its subjects below,
    /// also when `work` throws. Questions are asked at once.
    void Together(const std::function<void()>& work);

    Answer Show(const MessageBox& box) override;
    void SetPointer(Pointer pointer) override { m_user.SetPointer(pointer); }
    void Beep() override { m_user.Beep(); }
    QString AskSaveFileName(const FileQuestion& question) override { return m_user.AskSaveFileName(question); }

private:
    void ShowGathered() noexcept;

    UserInterface& m_user;
    std::vector<MessageBox> m_boxes;
    bool m_gathers = false;
};

} // namespace schedules
