#pragma once

#include "host/project/ProjectTypes.h"

#include <QDockWidget>
#include <QSet>

class QTreeWidget;
class QTreeWidgetItem;

namespace schedules::host {

class Project;

/// The categories of a project with the number of their tags, and below each its templates; that which its schedule
/// uses is bold. A click chooses a category; a template, which others would then see as well, takes a double click.
/// Enter chooses both.
class CategoryDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit CategoryDock(QWidget* parent = nullptr);

    /// Lists what the project has now; `category` is the one that is being worked on. Throws `HostError`.
    void Show(const Project& project, const QString& category);

    bool IsEmpty() const;

Q_SIGNALS:
    void CategoryChosen(const QString& category);
    void TemplateChosen(const QString& category, const QString& fileName);

protected:
    void changeEvent(QEvent* event) override;

private:
    void AddCategory(const Project& project, const Category& category, const QList<TemplateEntry>& templates);
    QSet<QString> Expanded() const;
    void Choose(const QTreeWidgetItem* entry);

    QTreeWidget* m_tree;
};

} // namespace schedules::host
