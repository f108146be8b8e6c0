#pragma once

#include "host/tools/UserActions.h"
#include "host/tools/ViewOptions.h"

#include <QPageSize>
#include <QWidget>

#include <memory>

namespace schedules {
class IMsgRouter;
class IScheduleView;
class IToolUI;
class Sheet;
class UserInterface;
enum class ViewCommand;
} // namespace schedules

namespace schedules::host {

/// The schedule view as this host uses it: created by name, set up through properties, driven through `IToolUI` and
/// `IScheduleView`.
class HostedSchedule
{
public:
    /// Runs the start-up exchange. With no `userInterface` message boxes are the desktop's.
    HostedSchedule(IMsgRouter& router, UserInterface* userInterface, const ViewOptions& options);
    ~HostedSchedule();

    /// Loads a table and shows it. How a failed load is told is the tool's business.
    void Load(const QString& xml);

    /// Hands over a text without showing it: the view goes on showing what it shows, and its next edits go into this
    /// text, which therefore has the same rows and columns.
    void GiveText(const QString& xml);

    /// A text of the host's own, which comes back with what the view sends.
    void SetPdsg(const QString& pdsg);

    /// Does what the button Transpose does. Throws `HostError` when there is no such button.
    void Transpose();

    /// Does what the button Save does, also for a table that nobody has edited. Throws `HostError` likewise.
    void Save();

    /// Does what the button Print does. Throws `HostError` likewise.
    void Print();

    /// Does what the button Continue does. Throws `HostError` likewise.
    void Continue();

    /// Presses the last button of the view, Cancel or Close. False when it has none that can be pressed.
    bool Close();

    /// Enters a text as a user would. Throws `HostError` where the view does not let them.
    void Enter(const CellText& entry);

    /// Ticks a tag in a selector, unless it is ticked. Throws `HostError` likewise.
    void Tick(const QString& tag);

    /// Sorts the rows. Throws `HostError` likewise.
    void Sort(const SortColumn& sort);

    /// Writes what the grid shows in a format of `Output` that is neither a picture nor a PDF. Gives what went wrong.
    QString WriteFile(const QString& format, const QString& fileName);

    /// Prints the grid, fitted to pages or at full size. Gives what went wrong.
    QString WritePdf(const QString& fileName, bool smart, QPageSize::PageSizeId paper);

    /// The size at which its whole grid is seen without scrolling, when all else is as it is laid out now.
    QSize WholeSize() const;

    /// Ends an edit that is open, keeping its value.
    void CommitEdit();

    /// Whether the user is in the midst of an edit.
    bool IsEditing() const;

    /// Whether there are edited values that have not been saved.
    bool Dirty() const;

    QWidget& Widget() const { return *m_widget; }
    Sheet& Grid() const;

    /// The engine's settings, as the tool shows them to its host.
    int Orientation() const;
    bool Transposed() const;

private:
    void Do(ViewCommand command, const char* button);

    std::unique_ptr<QWidget> m_widget;
    IToolUI& m_tool;
    IScheduleView& m_view;
};

} // namespace schedules::host
