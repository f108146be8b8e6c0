// Does one thing, for a program that counts the instructions of it: check, in this folder.

#include "ShownSchedule.h"
#include "grid/CSchedule.h"

#include <QApplication>

#include <cstdio>
#include <functional>
#include <map>
#include <string>

namespace schedules::bench {

namespace {

using Step = std::function<void()>;

/// Loads a table into a sheet of its own.
Step Load()
{
    return [xml = ScheduleDocument({200, 200})] {
        Quiet quiet;
        Sheet sheet;
        CSchedule engine(quiet);
        engine.SetSched(&sheet);
        engine.LoadScheduleData(xml);
    };
}

/// Edits cells here and there in a view that is shown.
Step Edit()
{
    auto shown = std::make_shared<ShownSchedule>(1, EditableDocument({60, 20}));
    return [shown] {
        for (const Cell cell : EditedCells(*shown->view.ShownSheet()))
            shown->Edit(cell, QStringLiteral("new"));
    };
}

const std::map<std::string, std::function<Step()>> kSteps{{"load", Load}, {"edit", Edit}};

} // namespace

} // namespace schedules::bench

/// What is counted, by its name.
extern "C" [[gnu::noinline]] void Counted(const schedules::bench::Step& step)
{
    step();
}

int main(int argc, char** argv)
{
    using namespace schedules::bench;
    const auto named = kSteps.find(argc > 1 ? argv[1] : "");
    if (named == kSteps.end()) {
        std::fputs("usage: schedules_instructions load|edit\n", stderr);
        return 2;
    }
    QApplication application(argc, argv);
    const Step step = named->second();
    step(); // what is made once and kept is no part of it
    Counted(step);
    return 0;
}
