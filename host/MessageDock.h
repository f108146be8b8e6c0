#pragma once

#include "host/Crossing.h"

#include <QDockWidget>

class QTreeView;

namespace schedules::host {

class MessageModel;

/// Lists the messages between tools and host as they cross.
class MessageDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MessageDock(QWidget* parent = nullptr);

    void Append(const Crossing& crossing);

private:
    void BuildList();

    MessageModel* m_model;
    QTreeView* m_list;
};

} // namespace schedules::host
