#pragma once

#include "host/tools/ViewOptions.h"

#include <QPageSize>
#include <QWidget>

#include <memory>

namespace schedules {
class IMsgRouter;
class IToolUI;
class Sheet;
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// The schedule view as this host uses it: created by name, set up through properties, driven through `IToolUI`.
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

    /// Does what the button Transpose does. Throws `HostError` while there is no such button.
    void Transpose();

    /// Does what the button Save does; nothing while it is not enabled. Throws `HostError` as well.
    void Save();

    /// Does what the button Print does. Throws `HostError` likewise.
    void Print();

    /// Writes what the grid shows in a format of `Output` that is neither a picture nor a PDF. Gives what went wrong.
    QString WriteFile(const QString& format, const QString& fileName);

    /// Prints the grid, fitted to pages or at full size. Gives what went wrong.
    QString WritePdf(const QString& fileName, bool smart, QPageSize::PageSizeId paper);

    /// Ends an edit that is open, keeping its value.
    void CommitEdit();

    /// Whether the user is in the midst of an edit.
    bool IsEditing() const;

    /// Whether there are edited values that have not been saved.
    bool Dirty() const;

    /// Presses the last button of the view, Cancel or Close. False when it has none that can be pressed.
    bool PressCancel();

    QWidget& Widget() const { return *m_widget; }
    Sheet& Grid() const;

    /// The engine's settings, as the tool shows them to its host.
    int Orientation() const;
    bool Transposed() const;

private:
    void Trigger(const char* button);

    std::unique_ptr<QWidget> m_widget;
    IToolUI* m_tool;
};

} // namespace schedules::host
