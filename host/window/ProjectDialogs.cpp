#include "host/window/ProjectDialogs.h"

#include "framework/IComponentFactory.h"
#include "host/base/HostError.h"
#include "host/project/Project.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace schedules::host {

namespace {

const QString kProjectEnd = QStringLiteral(".schedules");

} // namespace

QString ProjectDialogs::ProjectFilter()
{
    return tr("Projects (*%1);;All files (*)").arg(kProjectEnd);
}

QString ProjectDialogs::AskNewProject() const
{
    const QString chosen = QFileDialog::getSaveFileName(&m_window, tr("New project"), {}, ProjectFilter(), nullptr,
                                                        QFileDialog::DontConfirmOverwrite); // none is overwritten
    const bool isComplete = chosen.isEmpty() || chosen.endsWith(kProjectEnd, Qt::CaseInsensitive);
    return isComplete ? chosen : chosen + kProjectEnd;
}

QString ProjectDialogs::AskProject() const
{
    return QFileDialog::getOpenFileName(&m_window, tr("Open a project"), {}, ProjectFilter());
}

QString ProjectDialogs::AskServer() const
{
    return QInputDialog::getText(&m_window, tr("Open from a server"), tr("Address of the project:"), QLineEdit::Normal,
                                 QStringLiteral("postgresql://user@host/database"));
}

std::unique_ptr<Project> ProjectDialogs::Opened(const QString& address) const
{
    try {
        return Project::Open(address);
    } catch (const LoginRefused& error) {
        const auto password = AskPassword(error.Line());
        if (!password)
            throw;
        return Project::Open(WithPassword(address, *password));
    }
}

/// Empty if the user gives none.
std::optional<QString> ProjectDialogs::AskPassword(const QString& refusal) const
{
    bool given = false;
    const QString password = QInputDialog::getText(&m_window, m_window.windowTitle(), tr("%1\nPassword:").arg(refusal),
                                                   QLineEdit::Password, {}, &given);
    return given ? std::optional(password) : std::nullopt;
}

QString ProjectDialogs::AskTable() const
{
    return QFileDialog::getOpenFileName(&m_window, tr("Import a table"), {}, tr("Tables (*.csv *.txt);;All files (*)"));
}

void ProjectDialogs::ShowAbout() const
{
    QMessageBox::about(
        &m_window, tr("About Equipment Schedules"),
        tr("<h3>Equipment Schedules %1</h3><p>The reference host of the schedule component: it shows the "
           "equipment of a project, and lists what the component and its host say to each other.</p>")
            .arg(ComponentFactory().Version()));
}

} // namespace schedules::host
