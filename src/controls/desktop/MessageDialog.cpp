#include "controls/desktop/MessageDialog.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

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
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

} // namespace

Answer AskOver(QWidget* window, const MessageBox& box)
{
    const QString title = box.title.isEmpty() ? QApplication::applicationDisplayName() : box.title;
    const QPointer dialog = new QMessageBox(IconOf(box.style), title, box.text, ButtonsOf(box.style), window);
    dialog->setTextFormat(Qt::PlainText);
    const Answer answer = AnswerOf(dialog->exec());
    delete dialog;
    return answer;
}

} // namespace schedules
