#include "controls/lists/CheckListDelegate.h"

#include "common/Luminance.h"

#include <QAbstractItemView>
#include <QApplication>
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

constexpr double kPaleness = 0.4;
constexpr int kFrameAlpha = 120;

/// On a dark ground the style's own frame of a mark is darker still: an empty mark would not be seen.
void FrameMark(QPainter& painter, const QRect& mark, const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    if (!IsDark(Luminance(ground.redF(), ground.greenF(), ground.blueF())))
        return;
    QColor frame = palette.color(QPalette::Text);
    frame.setAlpha(kFrameAlpha);
    painter.save();
    painter.setPen(frame);
    painter.drawRect(mark.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

QStyleOptionViewItem CheckListDelegate::Filled(QStyleOptionViewItem option, const QModelIndex& index) const
{
    initStyleOption(&option, index);
    return option;
}

QRect CheckListDelegate::MarkRect(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyleOptionViewItem filled = Filled(option, index);
    return StyleOf(filled).subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &filled, filled.widget);
}

void CheckListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QRect mark = MarkRect(option, index);
    if (index.flags() & Qt::ItemIsUserCheckable) {
        QStyledItemDelegate::paint(painter, option, index);
        return FrameMark(*painter, mark, option.palette);
    }
    painter->save();
    painter->setClipRegion(QRegion(option.rect) - mark);
    QStyledItemDelegate::paint(painter, option, index);
    painter->setClipRect(mark);
    PaintPale(painter, option, index);
    painter->restore();
}

/// Not every style tells an empty mark that is disabled from one that is not.
void CheckListDelegate::PaintPale(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyleOptionViewItem filled = Filled(option, index);
    StyleOf(filled).drawPrimitive(QStyle::PE_PanelItemViewItem, &filled, painter, filled.widget);
    painter->setOpacity(kPaleness);
    QStyledItemDelegate::paint(painter, option, index);
    FrameMark(*painter, MarkRect(option, index), option.palette);
}

QString CheckListDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    return QStyledItemDelegate::displayText(value, locale).replace(QChar::LineSeparator, u' ');
}

QSize CheckListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
}

bool CheckListDelegate::IsElided(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyleOptionViewItem filled = Filled(option, index);
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
