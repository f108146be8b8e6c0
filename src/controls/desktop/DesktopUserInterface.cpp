#include "controls/desktop/DesktopUserInterface.h"

#include "controls/desktop/MessageDialog.h"
#include "controls/desktop/SaveFileDialog.h"

#include <QApplication>

namespace schedules {

DesktopUserInterface::DesktopUserInterface(QWidget* parent) : m_parent(parent) {}

DesktopUserInterface::~DesktopUserInterface()
{
    SetPointer(Pointer::Default);
}

QWidget* DesktopUserInterface::Window() const
{
    return m_parent ? m_parent->window() : nullptr;
}

Answer DesktopUserInterface::Show(const MessageBox& box)
{
    return AskOver(Window(), box);
}

void DesktopUserInterface::SetPointer(Pointer pointer)
{
    const bool showHourglass = pointer == Pointer::Hourglass;
    if (showHourglass == m_showsHourglass)
        return;
    m_showsHourglass = showHourglass;
    if (showHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void DesktopUserInterface::Beep()
{
    QApplication::beep();
}

QString DesktopUserInterface::AskSaveFileName(const FileQuestion& question)
{
    return SaveFileDialog::Ask(question, Window());
}

} // namespace schedules
