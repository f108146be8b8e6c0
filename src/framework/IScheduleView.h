#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QtPlugin>

#include <optional>
#include <utility>

namespace schedules {

/// A place in the grid as it is shown. Columns and rows count from 0, which is where the headers stand.
struct GridPlace
{
    int column = 0;
    int row = 0;

    bool operator==(const GridPlace&) const = default;
};

/// A value that has been edited and not saved, by the texts of its headers: `tag` is the header in the table's first
/// line, `item` the one that its own line begins with, however the table is turned.
struct ChangedCell
{
    QString tag;
    QString item;
    QString former; ///< the text as it was handed over, or as it was last saved
    QString now;
    QList<std::pair<QString, QString>> attributes; ///< those of its element, without `Dirty`, as they are written there

    bool operator==(const ChangedCell&) const = default;
};

/// What a view's tools and buttons do.
enum class ViewCommand
{
    Transpose,
    Save,
    Print,
    Export,
    Customize,
    Help,
    Continue,
    Close ///< the last button: Close, or Cancel
};

/// What becomes of a text that is entered into a cell.
enum class Entry
{
    Taken,
    NoSuchCell,
    Hidden,
    NotEditable,
    NotABoxText, ///< a check box takes "1" and "0"
    Refused      ///< the edit box does not take such a text, as one that is too long
};

/// How a schedule is printed into a file.
struct PaperOptions
{
    bool smart = true;           ///< fitted to pages; otherwise at full size
    std::optional<int> pageSize; ///< a `QPageSize::PageSizeId`; A4 without one
};

/// The schedule view beside `IToolUI`: found with `qobject_cast` on what `IComponentFactory::CreateTool` has made.
/// Calls are made on the user-interface thread, and none of them throws. The host may delete the view in any message
/// that a call sends; the call then returns as if it had done nothing.
class IScheduleView
{
public:
    virtual ~IScheduleView() = default;

    /// Ends an open edit and keeps its value.
    virtual void CommitEdit() = 0;
    virtual bool IsEditing() const = 0;

    /// Whether the view has the tool or button, and the user could press it now.
    virtual bool CanDo(ViewCommand command) const = 0;

    /// Does what the tool or button does, also while it is disabled; an open edit is committed first. False when the
    /// view has no such tool.
    virtual bool Do(ViewCommand command) = 0;

    /// Enters a text as a user would, a tick as "1" or "0".
    virtual Entry EnterText(GridPlace place, const QString& text) = 0;

    /// Ticks the tag of that identifier in a selector. False when there is none.
    virtual bool TickTag(const QString& identifier) = 0;

    /// Sorts by a column as `DoColSort` does. False where the view cannot be sorted by it.
    virtual bool SortBy(int column, bool descending) = 0;

    /// The first cell with these headers, see `ChangedCell`; none when there is none.
    virtual std::optional<GridPlace> FindCell(const QString& tag, const QString& item) const = 0;

    /// Makes that cell the active one and scrolls to it. False when there is none, or it is hidden.
    virtual bool ShowCell(const QString& tag, const QString& item) = 0;

    /// All that has been edited and not saved, in the table's order.
    virtual QList<ChangedCell> ChangedCells() const = 0;

    /// The size at which the whole grid is seen without scrolling, in pixels, when all else is as it is laid out now.
    virtual QSize WholeSize() const = 0;

    /// Writes what the grid shows: an Excel 97 workbook ("xls"), an Office Open XML one ("xlsx"), comma-separated
    /// values ("csv") or a web page ("html"). Returns what went wrong, an empty text when it is done.
    virtual QString WriteFile(const QString& format, const QString& fileName) = 0;

    /// Prints the grid into a PDF file. Returns what went wrong, likewise.
    virtual QString WritePdf(const QString& fileName, const PaperOptions& options) = 0;
};

} // namespace schedules

Q_DECLARE_INTERFACE(schedules::IScheduleView, "schedules.IScheduleView/1.0")
