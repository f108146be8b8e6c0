#pragma once

#include "host/CommandLine.h"

#include <QMainWindow>

#include <memory>

class QActionGroup;
class QMenu;

namespace schedules::host {

class HostRouter;
class MessageDock;
class ScheduleTool;
struct Crossing;

/// A window around one schedule view, with the messages that it exchanges with this host.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The router must outlive the window.
    MainWindow(HostRouter& router, const ViewOptions& options);
    ~MainWindow() override;

    /// Shows a file, in a view made anew. A file that cannot be read is told in a message box, and the window stays as
    /// it was.
    void Open(const QString& fileName);

private:
    void HoldCentralPlace();
    void BuildFileMenu();
    void BuildViewMenu();
    void BuildHelpMenu();
    void AddViewChoice(QMenu& menu, QActionGroup& choices, const QString& text, View view);
    void AskFile();
    void Reload();
    void ShowView(View view);
    void ShowAbout();
    void OnCrossed(const Crossing& crossing);

    HostRouter& m_router;
    ViewOptions m_options;
    QString m_fileName;
    MessageDock* m_messages;
    std::unique_ptr<ScheduleTool> m_tool;
};

} // namespace schedules::host
