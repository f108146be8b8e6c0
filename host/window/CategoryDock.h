#pragma once

#include "host/project/ProjectTypes.h"

#include <QDockWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace schedules::host {

class Project;

/// The categories of a project with the number of their tags, and below each its templates; that which its schedule
/// uses is bold. A double click or Enter chooses.
class CategoryDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit CategoryDock(QWidget* parent = nullptr);

    /// Lists what the project has now; `category` is the one that is being worked on. Throws `HostError`.
    void Show(const Project& project, const QString& category);

Q_SIGNALS:
    void CategoryChosen(const QString& category);
    void TemplateChosen(const QString& category, const QString& fileName);

private:
    void AddCategory(const Project& project, const Category& category, const QList<TemplateEntry>& templates);
    void Choose(const QTreeWidgetItem* entry);

    QTreeWidget* m_tree;
};

} // namespace schedules::host
