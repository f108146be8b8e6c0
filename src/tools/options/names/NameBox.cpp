#include "tools/options/names/NameBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>

#include <limits>
#include <utility>

namespace schedules {

NameBox::NameBox(QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
}

void NameBox::focusInEvent(QFocusEvent* event)
{
    m_focusedByMouse = event->reason() == Qt::MouseFocusReason;
    const QPointer alive(this);
    Q_EMIT Focused();
    if (alive)
        QLineEdit::focusInEvent(event);
}

void NameBox::keyPressEvent(QKeyEvent* event)
{
    const QPointer alive(this);
    const auto taker = m_taker; // goes with the box
    const bool isTaken = taker && taker(event->key());
    if (alive && !isTaken)
        QLineEdit::keyPressEvent(event);
}

void NameBox::mouseReleaseEvent(QMouseEvent* event)
{
    // The press that brought the focus has placed the cursor, which ended the selection.
    if (std::exchange(m_focusedByMouse, false) && !hasSelectedText())
        selectAll();
    QLineEdit::mouseReleaseEvent(event);
}

} // namespace schedules
