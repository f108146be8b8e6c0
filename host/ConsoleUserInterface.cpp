#include "host/ConsoleUserInterface.h"

#include <algorithm>
#include <utility>

namespace schedules::host {

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
    if (numbered == boxes.end())
        return boxes.first().text.simplified();
    return QStringLiteral("%1 (%2)").arg(numbered->text.simplified(), QString::number(numbered->number));
}

} // namespace schedules::host
