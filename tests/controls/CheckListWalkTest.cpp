// Thousands of random user actions on a check list, beside a plain vector that does the same.

#include "controls/ShownCheckList.h"

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

namespace schedules::testing {

namespace {

constexpr int kEntries = 12;

struct Entry
{
    int id;
    std::optional<bool> checked;
};

/// What a check list is to do, without a widget.
class Reference
{
public:
    Reference()
    {
        for (int id = 1; id <= kEntries; ++id)
            m_entries.push_back({id, id % 4 == 0 ? std::nullopt : std::optional(id % 2 == 0)});
    }

    void Fill(CheckList& list) const
    {
        for (const Entry& entry : m_entries)
            list.AddEntry(QStringLiteral("Entry %1").arg(entry.id), entry.id, entry.checked);
    }

    QString Drawn() const
    {
        QStringList lines;
        for (int row = 0; row < kEntries; ++row) {
            const Entry& entry = m_entries[static_cast<std::size_t>(row)];
            const QString mark = !entry.checked   ? QStringLiteral("[-]")
                                 : *entry.checked ? QStringLiteral("[x]")
                                                  : QStringLiteral("[ ]");
            const QString pointer = row == m_selected ? QStringLiteral("> ") : QStringLiteral("  ");
            lines.append(pointer + mark + QStringLiteral(" Entry %1").arg(entry.id));
        }
        return lines.join(u'\n');
    }

    int Selected() const { return m_selected; }

    /// Whether it is another one.
    bool Select(int row) { return std::exchange(m_selected, row) != row; }

    bool Toggle(int row)
    {
        std::optional<bool>& checked = m_entries[static_cast<std::size_t>(row)].checked;
        if (checked)
            checked = !*checked;
        return checked.has_value();
    }

    /// Moves the selected entry, if there is such a place.
    bool MoveTo(int row)
    {
        if (row < 0 || row >= kEntries || row == m_selected)
            return false;
        const Entry moved = m_entries[static_cast<std::size_t>(m_selected)];
        m_entries.erase(m_entries.begin() + m_selected);
        m_entries.insert(m_entries.begin() + row, moved);
        m_selected = row;
        return true;
    }

private:
    std::vector<Entry> m_entries;
    int m_selected = 0;
};

class Walk
{
public:
    Walk()
    {
        m_reference.Fill(*m_shown.list);
        m_shown.list->SetCurrentRow(0);
        QObject::connect(m_shown.list, &CheckList::MoveRequested, m_shown.list, &CheckList::MoveEntry);
    }

    void Step()
    {
        m_expected.clear();
        const std::function<void()> actions[] = {[&] { ClickText(); },  [&] { ClickMark(); },     [&] { PressSpace(); },
                                                 [&] { PressArrow(); }, [&] { PressAltArrow(); }, [&] { Drop(); },
                                                 [&] { CancelDrag(); }};
        actions[Any(7)]();
        ASSERT_EQ(Drawn(*m_shown.list), m_reference.Drawn());
        ASSERT_EQ(m_shown.Told(), m_expected.join(u' '));
    }

private:
    int Any(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

    void Expect(bool told)
    {
        if (told)
            m_expected.append(QStringLiteral("clicked"));
    }

    void ExpectMove(int to)
    {
        const int from = m_reference.Selected();
        if (m_reference.MoveTo(to))
            m_expected.append(QStringLiteral("%1->%2").arg(from).arg(to));
    }

    void ClickText()
    {
        const int row = Any(kEntries);
        m_shown.Click(m_shown.Middle(row));
        m_reference.Select(row);
        Expect(true);
    }

    void ClickMark()
    {
        const int row = Any(kEntries);
        m_shown.Click(m_shown.Mark(row));
        m_reference.Select(row);
        m_reference.Toggle(row);
        Expect(true);
    }

    void PressSpace()
    {
        m_shown.Key(Qt::Key_Space);
        Expect(m_reference.Toggle(m_reference.Selected()));
    }

    void PressArrow()
    {
        const bool down = Any(2) == 1;
        m_shown.Key(down ? Qt::Key_Down : Qt::Key_Up);
        Expect(m_reference.Select(std::clamp(m_reference.Selected() + (down ? 1 : -1), 0, kEntries - 1)));
    }

    void PressAltArrow()
    {
        const bool down = Any(2) == 1;
        m_shown.Key(down ? Qt::Key_Down : Qt::Key_Up, Qt::AltModifier);
        ExpectMove(m_reference.Selected() + (down ? 1 : -1));
    }

    int StartDrag()
    {
        const int from = Any(kEntries);
        m_shown.Press(m_shown.Middle(from));
        for (int moves = 0; moves < 3; ++moves)
            m_shown.MoveTo(m_shown.Middle(Any(kEntries)));
        m_reference.Select(from);
        Expect(true);
        return Any(kEntries);
    }

    void Drop()
    {
        const int to = StartDrag();
        m_shown.MoveTo(m_shown.Middle(to));
        m_shown.Release(m_shown.Middle(to));
        ExpectMove(to);
    }

    void CancelDrag()
    {
        const int to = StartDrag();
        const bool byKey = Any(2) == 1;
        if (byKey)
            m_shown.Key(Qt::Key_Escape);
        m_shown.Release(byKey ? m_shown.Middle(to) : QPoint(-50, 20));
    }

    std::mt19937 m_random{20'240'607};
    Reference m_reference;
    ShownCheckList m_shown{{}, {200, 400}};
    QStringList m_expected;
};

} // namespace

TEST(CheckListWalk, RandomUserActionsDoWhatThePlainVectorDoes)
{
    Walk walk;
    for (int step = 0; step < 3'000; ++step) {
        SCOPED_TRACE(step);
        walk.Step();
        if (::testing::Test::HasFatalFailure())
            return;
    }
}

} // namespace schedules::testing
