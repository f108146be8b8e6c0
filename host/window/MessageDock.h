#pragma once

#include "host/tools/Crossing.h"

#include <QDockWidget>

class QComboBox;
class QTreeView;

namespace schedules::host {

class MessageFilter;
class MessageModel;

/// Lists the messages between tools and host as they cross; of one kind alone when the user chooses so.
class MessageDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MessageDock(QWidget* parent = nullptr);

    void Append(const Crossing& crossing);

protected:
    void changeEvent(QEvent* event) override;

private:
    static QStringList KindNames();
    void BuildList();
    QWidget* FilterRow();

    MessageModel* m_model;
    MessageFilter* m_filter;
    QTreeView* m_list;
    QComboBox* m_kinds = nullptr;
};

} // namespace schedules::host
