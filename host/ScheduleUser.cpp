#include "host/ScheduleUser.h"

#include "host/HostError.h"
#include "host/ScheduleTool.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace schedules::host {

namespace {

constexpr QSize kViewSize{1024, 768};

template <class Child = QWidget>
Child& ChildOf(const QWidget& widget, const char* name)
{
    auto* child = widget.findChild<Child*>(QLatin1String(name));
    if (!child)
        throw HostError(QStringLiteral("the view has no %1").arg(QLatin1String(name)));
    return *child;
}

void Press(QWidget& widget, int key, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
}

/// Types a text over the one that is selected.
void TypeInto(QLineEdit& box, const QString& text)
{
    if (text.isEmpty())
        return Press(box, Qt::Key_Delete);
    for (const char32_t character : text.toUcs4())
        Press(box, Qt::Key_unknown, QString::fromUcs4(&character, 1));
}

HostError Refused(Cell cell, const QString& why)
{
    return HostError(QStringLiteral("the cell in column %1, row %2 %3")
                         .arg(QString::number(cell.column.Value()), QString::number(cell.row.Value()), why));
}

/// Whatever a view does not open an edit for.
HostError NotEditable(Cell cell)
{
    return Refused(cell, QStringLiteral("cannot be edited"));
}

template <class... Arguments>
void Invoke(QWidget& view, const char* method, Arguments&&... arguments)
{
    if (!QMetaObject::invokeMethod(&view, method, std::forward<Arguments>(arguments)...))
        throw HostError(QStringLiteral("the view has no %1").arg(QLatin1String(method)));
}

} // namespace

ScheduleUser::ScheduleUser(ScheduleTool& tool)
    : m_tool(tool), m_sheet(tool.Grid()), m_grid(ChildOf(tool.Widget(), "vaSpread1"))
{
    QWidget& view = tool.Widget();
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.resize(kViewSize);
    view.show();
}

void ScheduleUser::GoTo(Cell cell)
{
    if (cell.column > Column(m_sheet.ColumnCount()) || cell.row > Row(m_sheet.RowCount()))
        throw Refused(cell, QStringLiteral("does not exist"));
    if (m_sheet.Hidden(cell.column) || m_sheet.Hidden(cell.row))
        throw Refused(cell, QStringLiteral("is hidden"));
    m_sheet.SetActiveCell(cell);
}

bool ScheduleUser::IsCheckBox(Cell cell) const
{
    return m_sheet.Style(cell).type == CellType::CheckBox;
}

void ScheduleUser::Edit(const CellText& edit)
{
    const Cell cell{Column(edit.column), Row(edit.row)};
    GoTo(cell);
    if (!IsCheckBox(cell))
        return Type(cell, edit.text);
    if (!m_sheet.Style(cell).allowEdit)
        throw NotEditable(cell);
    if (edit.text != QLatin1String("1") && edit.text != QLatin1String("0"))
        throw Refused(cell, QStringLiteral("is a check box, which takes 1 or 0, not '%1'").arg(edit.text));
    SetTicked(cell, edit.text == QLatin1String("1"));
}

void ScheduleUser::Type(Cell cell, const QString& text)
{
    auto& box = ChildOf<QLineEdit>(m_tool.Widget(), "txtEditCell");
    Press(m_grid, Qt::Key_F2);
    if (box.isHidden())
        throw NotEditable(cell);
    TypeInto(box, text);
    if (box.text() != text)
        throw Refused(cell, QStringLiteral("does not take '%1'").arg(text));
    Press(box, Qt::Key_Return);
}

void ScheduleUser::SetTicked(Cell cell, bool ticked)
{
    const auto isTicked = [&] { return m_sheet.Text(cell) == QLatin1String("1"); };
    if (isTicked() == ticked)
        return;
    Press(m_grid, Qt::Key_Space, QStringLiteral(" "));
    if (isTicked() != ticked)
        throw Refused(cell, QStringLiteral("cannot be ticked"));
}

void ScheduleUser::Tick(const QString& tag)
{
    const bool tagsAreColumns = m_tool.Orientation() == 1;
    const int count = tagsAreColumns ? m_sheet.ColumnCount() : m_sheet.RowCount();
    for (int place = 1; place <= count; ++place) {
        const auto field = [&](int number) {
            return tagsAreColumns ? Cell{Column(place), Row(number)} : Cell{Column(number), Row(place)};
        };
        if (m_sheet.Text(field(1)) == tag) {
            GoTo(field(2));
            return SetTicked(field(2), true);
        }
    }
    throw HostError(QStringLiteral("there is no tag '%1'").arg(tag));
}

void ScheduleUser::Sort(const SortColumn& sort)
{
    if (m_tool.Orientation() != 0)
        throw HostError(QStringLiteral("the view cannot be sorted in this layout"));
    if (sort.column < 1 || sort.column > m_sheet.ColumnCount())
        throw HostError(QStringLiteral("there is no column %1 to sort by").arg(sort.column));
    m_sheet.SetActiveCell({Column(sort.column), Row(1)});
    Invoke(m_tool.Widget(), "DoColSort");
    if (sort.descending)
        Invoke(m_tool.Widget(), "DoColSort");
}

void ScheduleUser::PressContinue()
{
    ChildOf<QAbstractButton>(m_tool.Widget(), "cmdContinue").click();
}

void ScheduleUser::PressSave()
{
    // The button is enabled after edits alone; by its key it hands over a table that nobody has edited, too.
    Invoke(m_tool.Widget(), "ab_ToolClick", Q_ARG(QString, QStringLiteral("btnSaveTag")));
}

} // namespace schedules::host
