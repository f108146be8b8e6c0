#pragma once

#include <QStyledItemDelegate>

namespace schedules {

/// Paints the entries of a check list in the look of the platform: elided where they are too long, with a pale mark
/// where it cannot be checked. The tool tip of an elided entry is its whole text.
class CheckListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Where the check mark is in the rectangle of the option.
    QRect MarkRect(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// On one line.
    QString displayText(const QVariant& value, const QLocale& locale) const override;

    /// As high as an entry is; as wide as the list makes it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    QStyleOptionViewItem Filled(QStyleOptionViewItem option, const QModelIndex& index) const;
    void PaintPale(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    bool IsElided(const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

} // namespace schedules
