#pragma once

#include "common/UserInterface.h"

#include <deque>
#include <vector>

namespace schedules::testing {

/// A user who answers from a script and remembers what he was asked. Without a scripted answer he presses OK, and
/// cancels file dialogs.
class ScriptedUserInterface : public UserInterface
{
public:
    Answer Show(const MessageBox& box) override
    {
        boxes.push_back(box);
        return Next(answers, Answer::Ok);
    }

    void SetPointer(Pointer pointer) override { pointers.push_back(pointer); }
    void Beep() override { ++beeps; }

    QString AskSaveFileName(const FileQuestion& question) override
    {
        questions.push_back(question);
        return Next(fileNames, QString());
    }

    std::deque<Answer> answers;
    std::deque<QString> fileNames;
    std::vector<MessageBox> boxes;
    std::vector<Pointer> pointers;
    std::vector<FileQuestion> questions;
    int beeps = 0;

private:
    template <class Value>
    static Value Next(std::deque<Value>& script, Value otherwise)
    {
        if (script.empty())
            return otherwise;
        const Value value = script.front();
        script.pop_front();
        return value;
    }
};

} // namespace schedules::testing
