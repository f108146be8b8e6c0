#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

class QWidget;

namespace schedules::host {

class Project;

/// What a project's window asks its user. Each answer is empty when the user would rather not.
class ProjectDialogs
{
    Q_DECLARE_TR_FUNCTIONS(schedules::host::ProjectDialogs)

public:
    /// Over a window that outlives this object.
    explicit ProjectDialogs(QWidget& window) : m_window(window) {}

    /// The file of a project that is to be made, with the end of its name.
    QString AskNewProject() const;

    /// The file of a project that there is.
    QString AskProject() const;

    /// The address of a project on a server.
    QString AskServer() const;

    /// Opens a project. Asks for the password of a server that does not let the user in without. Throws `HostError`.
    std::unique_ptr<Project> Opened(const QString& address) const;

    /// A file to import.
    QString AskTable() const;

    void ShowAbout() const;

private:
    static QString ProjectFilter();
    std::optional<QString> AskPassword(const QString& refusal) const;

    QWidget& m_window;
};

} // namespace schedules::host
