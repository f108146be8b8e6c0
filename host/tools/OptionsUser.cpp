#include "host/tools/OptionsUser.h"

#include "host/base/HostError.h"
#include "host/tools/HostedEditor.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace schedules::host {

namespace {

template <class Child>
Child& ChildOf(const QWidget& widget, const char* name)
{
    auto* child = widget.findChild<Child*>(QLatin1String(name));
    if (!child)
        throw HostError(QStringLiteral("the editor has no %1").arg(QLatin1String(name)));
    return *child;
}

void Press(QWidget& widget, int key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
}

void Click(QAbstractItemView& list, const QModelIndex& entry)
{
    list.scrollTo(entry);
    QWidget& surface = *list.viewport();
    const QPointF point = list.visualRect(entry).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, point, surface.mapToGlobal(point), Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&surface, &event);
    }
}

QModelIndex EntryOf(const QAbstractItemView& list, const QString& name)
{
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QModelIndex entry = list.model()->index(row, 0);
        if (entry.data().toString() == name)
            return entry;
    }
    return {};
}

} // namespace

void OptionsUser::ChooseTemplate(const QString& fileName)
{
    auto& templates = ChildOf<QComboBox>(m_tool.Widget(), "cboTemplates");
    const auto isShown = [&] { return m_tool.TemplateFile().compare(fileName, Qt::CaseInsensitive) == 0; };
    if (isShown())
        return;
    Press(templates, Qt::Key_Home);
    for (int step = 1; !isShown() && step < templates.count(); ++step)
        Press(templates, Qt::Key_Down);
    if (!isShown())
        throw HostError(QStringLiteral("there is no template %1 in the list").arg(fileName));
}

void OptionsUser::SelectGroup(const QString& name)
{
    Select("lstGroups", name, QStringLiteral("group"));
}

void OptionsUser::SelectItem(const QString& name)
{
    Select("lstItems", name, QStringLiteral("data item"));
}

void OptionsUser::Select(const char* list, const QString& name, const QString& kind)
{
    auto& entries = ChildOf<QAbstractItemView>(m_tool.Widget(), list);
    QModelIndex entry = EntryOf(entries, name);
    if (!entry.isValid())
        entry = EntryOf(entries, u'*' + name);
    if (!entry.isValid())
        throw HostError(QStringLiteral("there is no %1 '%2' in %3").arg(kind, name, m_tool.TemplateFile()));
    if (!entries.isEnabled())
        throw HostError(QStringLiteral("the group of the %1 '%2' is not shown").arg(kind, name));
    Click(entries, entry);
}

} // namespace schedules::host
