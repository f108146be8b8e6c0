#include "host/window/MessageDock.h"

#include "host/tools/MessageFilter.h"
#include "host/tools/MessageModel.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace schedules::host {

MessageDock::MessageDock(QWidget* parent)
    : QDockWidget(tr("Messages"), parent),
      m_model(new MessageModel(this)),
      m_filter(new MessageFilter(this)),
      m_list(new QTreeView(this))
{
    setObjectName(QStringLiteral("dockMessages"));
    BuildList();
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(FilterRow());
    column->addWidget(m_list);
    setWidget(content);
}

QWidget* MessageDock::FilterRow()
{
    auto* row = new QWidget(this);
    m_kinds = new QComboBox(row);
    m_kinds->setObjectName(QStringLiteral("cboMessageKinds"));
    m_kinds->addItems(KindNames());
    connect(m_kinds, &QComboBox::currentIndexChanged, m_filter,
            [this](int index) { m_filter->ShowKind(MessageFilter::Kind(index)); });
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(4, 2, 4, 2);
    line->addWidget(m_kinds);
    line->addStretch();
    return row;
}

/// In the order of the kinds.
QStringList MessageDock::KindNames()
{
    return {tr("All messages"), tr("Requests"), tr("Events"), tr("Errors")};
}

void MessageDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setWindowTitle(tr("Messages"));
    const QStringList names = KindNames();
    for (int kind = 0; kind < names.size(); ++kind)
        m_kinds->setItemText(kind, names[kind]);
}

void MessageDock::BuildList()
{
    m_filter->setSourceModel(m_model);
    m_list->setModel(m_filter);
    m_list->setObjectName(QStringLiteral("lstMessages"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setFrameShape(QFrame::NoFrame);
    const QFontMetrics metrics(font());
    const QStringList widest{"00:00:00.000", "ctlSchedule → schedhost", "Request", "UpdateTagScheduleData",
                             QString(50, u'x')};
    for (int field = 0; field < widest.size(); ++field)
        m_list->setColumnWidth(field, metrics.horizontalAdvance(widest[field]) + 2 * metrics.height());
}

void MessageDock::Append(const Crossing& crossing)
{
    const auto* bar = m_list->verticalScrollBar();
    const bool isAtEnd = bar->value() == bar->maximum(); // else somebody reads
    m_model->Append(crossing);
    if (isAtEnd)
        m_list->scrollToBottom();
}

} // namespace schedules::host
