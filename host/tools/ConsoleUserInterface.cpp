#include "host/tools/ConsoleUserInterface.h"

#include <algorithm>
#include <utility>

namespace schedules::host {

namespace {

QString LineOf(const MessageBox& box)
{
    const QString text = box.text.simplified();
    return box.number == 0 ? text : text + QStringLiteral(" (%1)").arg(box.number);
}

QString ReportOf(const MessageBox& box)
{
    const QString subject = box.subject.simplified();
    return subject.isEmpty() ? LineOf(box) : subject + QStringLiteral(": ") + LineOf(box);
}

} // namespace

Answer ConsoleUserInterface::Show(const MessageBox& box)
{
    m_boxes.append(box);
    constexpr int kButtons = 15;
    const int buttons = box.style & kButtons;
    return buttons == kYesNo || buttons == kYesNoCancel ? Answer::No : Answer::Ok;
}

std::optional<QString> ConsoleUserInterface::TakeFailure()
{
    const auto boxes = std::exchange(m_boxes, {});
    if (boxes.isEmpty())
        return std::nullopt;
    const auto numbered = std::ranges::find_if(boxes, [](const MessageBox& box) { return box.number != 0; });
    return LineOf(numbered == boxes.end() ? boxes.first() : *numbered);
}

QStringList ConsoleUserInterface::TakeReports()
{
    QStringList lines;
    for (const MessageBox& box : std::exchange(m_boxes, {}))
        lines << ReportOf(box);
    return lines;
}

} // namespace schedules::host
