#pragma once

#include "host/files/TableFile.h"
#include "host/tools/ViewOptions.h"
#include "host/window/Answering.h"

#include <QMainWindow>

#include <memory>
#include <optional>

class QActionGroup;
class QMenu;

namespace schedules {
struct Message;
} // namespace schedules

namespace schedules::host {

class HostRouter;
class MessageDock;
class HostedSchedule;
struct Crossing;

/// A window around one schedule view, with the messages that it exchanges with this host. What the view saves goes into
/// the file that is shown.
///
/// Closing the window presses the view's last button, so that the view asks about values that were not saved; the
/// window goes when the view has told to unload it. A view that cannot be asked does not keep it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The router must outlive the window.
    MainWindow(HostRouter& router, const ViewOptions& options, const Answering& answering = {});
    ~MainWindow() override;

    /// Shows a file, in a view made anew. Before that the user is asked about edited values that are not saved. A file
    /// that cannot be read is told in a message box; the window then stays as it was.
    void Open(const QString& fileName);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void HoldCentralPlace();
    void BuildFileMenu();
    void BuildViewMenu();
    void BuildHelpMenu();
    void AddViewChoice(QMenu& menu, const QString& text, View view);
    void CheckViewChoice();
    void AskFile();
    void Reload();
    void ShowView(View view);
    void ShowAbout();
    bool MayReplace();
    bool Show(const QString& fileName, const ViewOptions& options);
    void ShowTable(TableFile file, const ViewOptions& options);
    bool ViewKeepsOpen();
    QString SaveTable(const Message& message);
    void OnCrossed(const Crossing& crossing);

    HostRouter& m_router;
    ViewOptions m_options;
    Answering m_answering;
    std::optional<TableFile> m_file;
    bool m_unloaded = false; ///< the view has told to unload it
    QActionGroup* m_views = nullptr;
    MessageDock* m_messages;
    std::unique_ptr<HostedSchedule> m_tool;
};

} // namespace schedules::host
