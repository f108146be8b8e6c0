#include "host/window/CategoryDock.h"

#include "host/project/Names.h"
#include "host/project/Project.h"

#include <QEvent>
#include <QTreeWidget>

namespace schedules::host {

namespace {

constexpr int kCategoryRole = Qt::UserRole;
constexpr int kFileRole = Qt::UserRole + 1;

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
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* entry) {
        if (!entry->parent())
            Choose(entry);
    });
}

bool CategoryDock::IsEmpty() const
{
    return m_tree->topLevelItemCount() == 0;
}

void CategoryDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setWindowTitle(tr("Equipment"));
}

void CategoryDock::Show(const Project& project, const QString& category)
{
    const Project::Moment moment(project);
    const QList<Category> categories = project.Categories();
    const QList<TemplateEntry> templates = project.Templates();
    const QSet<QString> expanded = Expanded();
    m_tree->clear();
    for (const Category& each : categories) {
        AddCategory(project, each, templates);
        QTreeWidgetItem* entry = m_tree->topLevelItem(m_tree->topLevelItemCount() - 1);
        entry->setExpanded(SameName(each.name, category) || expanded.contains(each.name));
        if (SameName(each.name, category))
            m_tree->setCurrentItem(entry);
    }
}

QSet<QString> CategoryDock::Expanded() const
{
    QSet<QString> categories;
    for (int index = 0; index < m_tree->topLevelItemCount(); ++index) {
        const QTreeWidgetItem& entry = *m_tree->topLevelItem(index);
        if (entry.isExpanded())
            categories.insert(entry.data(0, kCategoryRole).toString());
    }
    return categories;
}

void CategoryDock::AddCategory(const Project& project, const Category& category, const QList<TemplateEntry>& templates)
{
    const QString name = category.displayName.isEmpty() ? category.name : category.displayName;
    const auto count = project.Tags(category.name).size();
    auto* entry = new QTreeWidgetItem(m_tree, {tr("%1 (%2)").arg(name).arg(count)});
    entry->setData(0, kCategoryRole, category.name);
    const QString current = project.CurrentTemplate(category.name);
    for (const TemplateEntry& each : templates) {
        if (!SameName(each.category, category.name))
            continue;
        auto* child = new QTreeWidgetItem(entry, {each.name});
        child->setData(0, kCategoryRole, category.name);
        child->setData(0, kFileRole, each.fileName);
        if (SameName(each.fileName, current))
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
