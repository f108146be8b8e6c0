#include "controls/DesktopUserInterface.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace schedules {

namespace {

constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0xF0;

QMessageBox::Icon IconOf(int style)
{
    switch (style & kIconBits) {
    case kCritical:
        return QMessageBox::Critical;
    case kQuestion:
        return QMessageBox::Question;
    case kExclamation:
        return QMessageBox::Warning;
    case kInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons ButtonsOf(int style)
{
    switch (style & kButtonBits) {
    case kYesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case kYesNo:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

Answer AnswerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

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
    const QString title = box.title.isEmpty() ? QApplication::applicationDisplayName() : box.title;
    QMessageBox dialog(IconOf(box.style), title, box.text, ButtonsOf(box.style), Window());
    dialog.setTextFormat(Qt::PlainText);
    return AnswerOf(dialog.exec());
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
    QFileDialog dialog(Window(), question.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(question.filters);
    dialog.setDefaultSuffix(question.defaultSuffix);
    dialog.selectFile(question.fileName);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace schedules
