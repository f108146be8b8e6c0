#include "common/GatheredReports.h"

#include "common/Error.h"

#include <QScopeGuard>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace schedules {

namespace {

/// More than these would make a box higher than a screen.
constexpr qsizetype kMostSubjects = 20;

constexpr int kButtons = 15;
constexpr int kIcons = 0x70;

/// A text and whatever it was reported about.
struct Paragraph
{
    QString text;
    QStringList subjects;
};

std::vector<Paragraph> Paragraphs(const std::vector<MessageBox>& boxes)
{
    std::vector<Paragraph> paragraphs;
    for (const MessageBox& box : boxes) {
        auto known = std::ranges::find(paragraphs, box.text, &Paragraph::text);
        if (known == paragraphs.end())
            known = paragraphs.insert(known, {box.text, {}});
        if (!box.subject.isEmpty())
            known->subjects.append(box.subject);
    }
    return paragraphs;
}

QString TextOf(const Paragraph& paragraph)
{
    const QStringList& subjects = paragraph.subjects;
    QStringList lines{paragraph.text};
    lines += subjects.first(std::min(subjects.size(), kMostSubjects));
    if (subjects.size() > kMostSubjects)
        lines += QStringLiteral("… (+%1)").arg(subjects.size() - kMostSubjects);
    return lines.join(QStringLiteral("\r\n"));
}

/// The most serious of their icons.
int Icon(const std::vector<MessageBox>& boxes)
{
    for (const int icon : {kCritical, kExclamation, kInformation}) {
        if (std::ranges::any_of(boxes, [icon](const MessageBox& box) { return (box.style & kIcons) == icon; }))
            return icon;
    }
    return kOkOnly;
}

MessageBox InOne(const std::vector<MessageBox>& boxes)
{
    MessageBox box = boxes.front();
    QStringList texts;
    for (const Paragraph& paragraph : Paragraphs(boxes))
        texts += TextOf(paragraph);
    box.text = texts.join(QStringLiteral("\r\n\r\n"));
    box.style = Icon(boxes);
    return box;
}

} // namespace

void GatheredReports::Together(const std::function<void()>& work)
{
    const bool isOutermost = !std::exchange(m_gathers, true);
    const auto end = qScopeGuard([&] {
        if (isOutermost)
            ShowGathered();
    });
    work();
}

Answer GatheredReports::Show(const MessageBox& box)
{
    if (!m_gathers || (box.style & kButtons) != kOkOnly)
        return m_user.Show(box);
    m_boxes.push_back(box);
    return Answer::Ok;
}

void GatheredReports::ShowGathered() noexcept
{
    m_gathers = false;
    const auto boxes = std::exchange(m_boxes, {});
    if (boxes.empty())
        return;
    IgnoringErrors([&] { m_user.SetPointer(Pointer::Default); });
    IgnoringErrors([&] { m_user.Show(InOne(boxes)); });
}

} // namespace schedules
