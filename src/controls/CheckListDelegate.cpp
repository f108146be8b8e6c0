#include "controls/CheckListDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

namespace schedules {

namespace {

QStyle& StyleOf(const QStyleOptionViewItem& option)
{
    return *(option.widget ? option.widget->style() : QApplication::style());
}

/// The option of the same entry in the colors it has, but with a check mark that is disabled.
QStyleOptionViewItem WithGreyMark(QStyleOptionViewItem option)
{
    const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    for (const auto role : {QPalette::Base, QPalette::Highlight})
        option.palette.setBrush(QPalette::Disabled, role, option.palette.brush(group, role));
    option.state &= ~QStyle::State_Enabled;
    return option;
}

} // namespace

QRect CheckListDelegate::MarkRect(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    return StyleOf(filled).subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &filled, filled.widget);
}

void CheckListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.flags() & Qt::ItemIsUserCheckable)
        return QStyledItemDelegate::paint(painter, option, index);
    const QRect mark = MarkRect(option, index);
    painter->save();
    painter->setClipRegion(QRegion(option.rect) - mark);
    QStyledItemDelegate::paint(painter, option, index);
    painter->setClipRect(mark);
    QStyledItemDelegate::paint(painter, WithGreyMark(option), index);
    painter->restore();
}

QString CheckListDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    return QStyledItemDelegate::displayText(value, locale).replace(u'\n', u' ');
}

QSize CheckListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
}

bool CheckListDelegate::IsElided(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QStyle& style = StyleOf(filled);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, filled.widget) + 1;
    const QRect place = style.subElementRect(QStyle::SE_ItemViewItemText, &filled, filled.widget);
    return filled.fontMetrics.horizontalAdvance(filled.text) > place.width() - 2 * margin;
}

bool CheckListDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                  const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid() || !IsElided(option, index))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data().toString();
    QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), view->viewport(),
                       option.rect);
    return true;
}

} // namespace schedules
