#include "controls/lists/FilteredList.h"

#include "common/modResource.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace schedules {

FilteredList::FilteredList(CheckList* list, QWidget* parent) : QWidget(parent), m_list(list), m_line(new QLineEdit)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(list);
    setFocusProxy(list);
    list->installEventFilter(this);
    BuildLine();
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(list->model(), change, this, &FilteredList::ShowLineWhenNeeded);
    connect(list->model(), &QAbstractItemModel::modelReset, this, &FilteredList::ShowLineWhenNeeded);
    ShowLineWhenNeeded();
}

void FilteredList::BuildLine()
{
    m_line->setPlaceholderText(ComponentText("Filter"));
    m_line->setAccessibleName(ComponentText("Filter"));
    m_line->setClearButtonEnabled(true);
    m_line->setEnabled(m_list->isEnabled());
    m_line->installEventFilter(this);
    connect(m_line, &QLineEdit::textChanged, this, &FilteredList::Apply);
}

void FilteredList::ShowLineWhenNeeded()
{
    const bool needed = m_list->Count() > kMostWithoutLine;
    m_line->setVisible(needed);
    if (!needed)
        m_line->clear();
}

void FilteredList::Apply(const QString& text)
{
    m_list->ShowOnly(text);
    if (std::exchange(m_wasNarrowed, IsNarrowed()) != IsNarrowed())
        Q_EMIT Narrowed(IsNarrowed());
}

bool FilteredList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_line)
        return HandleLineEvent(event);
    if (watched == m_list && event->type() == QEvent::EnabledChange)
        m_line->setEnabled(m_list->isEnabled());
    return false;
}

bool FilteredList::HandleLineEvent(QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool clears = key->matches(QKeySequence::Cancel) && IsNarrowed();
    const bool leaves = key->key() == Qt::Key_Down && !(key->modifiers() & ~Qt::KeypadModifier);
    if (!clears && !leaves)
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress && clears)
        m_line->clear();
    else if (event->type() == QEvent::KeyPress)
        m_list->setFocus(Qt::ShortcutFocusReason);
    return true;
}

} // namespace schedules
