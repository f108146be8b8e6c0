#include "host/MessageDock.h"

#include "host/MessageModel.h"

#include <QHeaderView>
#include <QTreeView>

namespace schedules::host {

MessageDock::MessageDock(QWidget* parent)
    : QDockWidget(tr("Messages"), parent), m_model(new MessageModel(this)), m_list(new QTreeView(this))
{
    setObjectName(QStringLiteral("dockMessages"));
    BuildList();
    setWidget(m_list);
}

void MessageDock::BuildList()
{
    m_list->setModel(m_model);
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
    m_model->Append(crossing);
    m_list->scrollToBottom();
}

} // namespace schedules::host
