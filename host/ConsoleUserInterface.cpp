#include "host/ConsoleUserInterface.h"

#include <algorithm>

namespace schedules::host {

Answer ConsoleUserInterface::Show(const MessageBox& box)
{
    m_boxes.append(box);
    constexpr int kButtons = 15;
    const int buttons = box.style & kButtons;
    return buttons == kYesNo || buttons == kYesNoCancel ? Answer::No : Answer::Ok;
}

std::optional<QString> ConsoleUserInterface::Failure() const
{
    if (m_boxes.isEmpty())
        return std::nullopt;
    const auto numbered = std::ranges::find_if(m_boxes, [](const MessageBox& box) { return box.number != 0; });
    if (numbered == m_boxes.end())
        return m_boxes.first().text.simplified();
    return QStringLiteral("%1 (%2)").arg(numbered->text.simplified(), QString::number(numbered->number));
}

} // namespace schedules::host
