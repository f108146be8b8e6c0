#include "host/window/CategoryDock.h"

#include "host/project/Project.h"

#include <QTreeWidget>

namespace schedules::host {

namespace {

constexpr int kCategoryRole = Qt::UserRole;
constexpr int kFileRole = Qt::UserRole + 1;

bool Same(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

void SetBold(QTreeWidgetItem& entry)
{
    QFont font = entry.font(0);
    font.setBold(true);
    entry.setFont(0, font);
}

} // namespace

CategoryDock::CategoryDock(QWidget* parent) : QDockWidget(tr("Equipment"), parent), m_tree(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("dockCategories"));
    m_tree->setObjectName(QStringLiteral("lstCategories"));
    m_tree->setHeaderHidden(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    setWidget(m_tree);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* entry) { Choose(entry); });
}

void CategoryDock::Show(const Project& project, const QString& category)
{
    const QList<Category> categories = project.Categories();
    const QList<TemplateEntry> templates = project.Templates();
    m_tree->clear();
    for (const Category& each : categories) {
        AddCategory(project, each, templates);
        QTreeWidgetItem* entry = m_tree->topLevelItem(m_tree->topLevelItemCount() - 1);
        entry->setExpanded(Same(each.name, category));
        if (Same(each.name, category))
            m_tree->setCurrentItem(entry);
    }
}

void CategoryDock::AddCategory(const Project& project, const Category& category, const QList<TemplateEntry>& templates)
{
    const QString name = category.displayName.isEmpty() ? category.name : category.displayName;
    const auto count = project.Tags(category.name).size();
    auto* entry = new QTreeWidgetItem(m_tree, {tr("%1 (%2)").arg(name).arg(count)});
    entry->setData(0, kCategoryRole, category.name);
    const QString current = project.CurrentTemplate(category.name);
    for (const TemplateEntry& each : templates) {
        if (!Same(each.category, category.name))
            continue;
        auto* child = new QTreeWidgetItem(entry, {each.name});
        child->setData(0, kCategoryRole, category.name);
        child->setData(0, kFileRole, each.fileName);
        if (Same(each.fileName, current))
            SetBold(*child);
    }
}

void CategoryDock::Choose(const QTreeWidgetItem* entry)
{
    const QString category = entry->data(0, kCategoryRole).toString();
    const QString fileName = entry->data(0, kFileRole).toString();
    if (fileName.isEmpty())
        Q_EMIT CategoryChosen(category);
    else
        Q_EMIT TemplateChosen(category, fileName);
}

} // namespace schedules::host
