#include "host/tools/HostedSchedule.h"

#include "framework/IScheduleView.h"
#include "framework/IToolUI.h"
#include "host/base/HostError.h"
#include "host/tools/CreatedTool.h"
#include "host/tools/HostRouter.h"
#include "spread/Sheet.h"

#include <optional>

namespace schedules::host {

namespace {

HostError Refused(GridPlace place, const QString& why)
{
    return HostError(QStringLiteral("the cell in column %1, row %2 %3")
                         .arg(QString::number(place.column), QString::number(place.row), why));
}

/// Why a text was not entered.
QString Refusal(Entry entry, const QString& text)
{
    switch (entry) {
    case Entry::NoSuchCell:
        return QStringLiteral("does not exist");
    case Entry::Hidden:
        return QStringLiteral("is hidden");
    case Entry::NotABoxText:
        return QStringLiteral("is a check box, which takes 1 or 0, not '%1'").arg(text);
    case Entry::Refused:
        return QStringLiteral("does not take '%1'").arg(text);
    default:
        return QStringLiteral("cannot be edited");
    }
}

/// The cell that a tag's check box would be in.
std::optional<GridPlace> TickPlace(const HostedSchedule& view, const QString& tag)
{
    const Sheet& sheet = view.Grid();
    const bool tagsAreColumns = view.Orientation() == 1;
    const int count = tagsAreColumns ? sheet.ColumnCount() : sheet.RowCount();
    for (int number = 1; number <= count; ++number) {
        if (sheet.Text(tagsAreColumns ? Cell{Column(number), Row(1)} : Cell{Column(1), Row(number)}) == tag)
            return tagsAreColumns ? GridPlace{number, 2} : GridPlace{2, number};
    }
    return std::nullopt;
}

} // namespace

HostedSchedule::HostedSchedule(IMsgRouter& router, UserInterface* userInterface, const ViewOptions& options)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedule"), userInterface)),
      m_tool(InterfaceOf<IToolUI>(*m_widget)),
      m_view(InterfaceOf<IScheduleView>(*m_widget))
{
    m_widget->setProperty("ViewType", static_cast<int>(options.view));
    m_widget->setProperty("SelectAllTags", options.selectAll);
    m_widget->setProperty("ShowPrintButtonOnUnitSelector", true);
    m_tool.IToolUI_Initialize(&router, kOwner);
}

HostedSchedule::~HostedSchedule()
{
    m_tool.IToolUI_Deactivate(false);
}

void HostedSchedule::Load(const QString& xml)
{
    m_tool.IToolUI_XML(xml);
    m_tool.IToolUI_Activate();
}

void HostedSchedule::GiveText(const QString& xml)
{
    m_tool.IToolUI_XML(xml);
}

void HostedSchedule::SetPdsg(const QString& pdsg)
{
    m_widget->setProperty("BuilderPdsg", pdsg);
}

void HostedSchedule::Do(ViewCommand command, const char* button)
{
    if (!m_view.Do(command))
        throw HostError(QStringLiteral("this view has no button %1").arg(QLatin1String(button)));
}

void HostedSchedule::Transpose()
{
    Do(ViewCommand::Transpose, "btnTranspose");
}

void HostedSchedule::Save()
{
    Do(ViewCommand::Save, "btnSaveTag");
}

void HostedSchedule::Print()
{
    Do(ViewCommand::Print, "btnPrint");
}

void HostedSchedule::Continue()
{
    Do(ViewCommand::Continue, "cmdContinue");
}

bool HostedSchedule::Close()
{
    return m_view.CanDo(ViewCommand::Close) && m_view.Do(ViewCommand::Close);
}

void HostedSchedule::Enter(const CellText& entry)
{
    const GridPlace place{entry.column, entry.row};
    const Entry result = m_view.EnterText(place, entry.text);
    if (result != Entry::Taken)
        throw Refused(place, Refusal(result, entry.text));
}

void HostedSchedule::Tick(const QString& tag)
{
    const auto place = TickPlace(*this, tag);
    if (!place)
        throw HostError(QStringLiteral("there is no tag '%1'").arg(tag));
    const Cell cell{Column(place->column), Row(place->row)};
    if (!m_view.TickTag(tag) || Grid().Text(cell) != QLatin1String("1"))
        throw Refused(*place, QStringLiteral("cannot be ticked"));
}

void HostedSchedule::Sort(const SortColumn& sort)
{
    if (Orientation() != 0)
        throw HostError(QStringLiteral("the view cannot be sorted in this layout"));
    if (!m_view.SortBy(sort.column, sort.descending))
        throw HostError(QStringLiteral("there is no column %1 to sort by").arg(sort.column));
}

QString HostedSchedule::WriteFile(const QString& format, const QString& fileName)
{
    return m_view.WriteFile(format, fileName);
}

QString HostedSchedule::WritePdf(const QString& fileName, bool smart, QPageSize::PageSizeId paper)
{
    return m_view.WritePdf(fileName, {.smart = smart, .pageSize = paper});
}

QSize HostedSchedule::WholeSize() const
{
    return m_view.WholeSize();
}

void HostedSchedule::CommitEdit()
{
    m_view.CommitEdit();
}

bool HostedSchedule::IsEditing() const
{
    return m_view.IsEditing();
}

bool HostedSchedule::Dirty() const
{
    return m_widget->property("TagDataDirty").toBool();
}

Sheet& HostedSchedule::Grid() const
{
    auto* sheet = m_widget->property("sheet").value<Sheet*>();
    if (!sheet)
        throw HostError(QStringLiteral("the schedule view has no grid"));
    return *sheet;
}

int HostedSchedule::Orientation() const
{
    return m_widget->property("SchedOrientation").toInt();
}

bool HostedSchedule::Transposed() const
{
    return m_widget->property("TransposeData").toBool();
}

} // namespace schedules::host
