#pragma once

#include "common/UserInterface.h"

namespace schedules::bench {

/// Nobody is asked and nothing is shown while a benchmark runs.
class Quiet : public UserInterface
{
public:
    Answer Show(const MessageBox&) override { return Answer::Ok; }
    void SetPointer(Pointer) override {}
    void Beep() override {}
    QString AskSaveFileName(const FileQuestion&) override { return {}; }
};

} // namespace schedules::bench
