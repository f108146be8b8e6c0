#pragma once

#include "controls/lists/CheckList.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace schedules::testing {

/// Adds entries drawn line by line: "[x] Flow" is checked, "[ ] Flow" not, "[-] Flow" cannot be. The first ID is 1.
inline void Fill(CheckList& list, const QString& drawn)
{
    const auto stateOf = [](QStringView mark) -> std::optional<bool> {
        return mark == u"[-]" ? std::nullopt : std::optional(mark == u"[x]");
    };
    const QStringList lines = drawn.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        list.AddEntry(line.mid(4), list.Count() + 1, stateOf(QStringView(line).left(3)));
}

/// "[ ] Entry 1", "[ ] Entry 2" and so on.
inline QString NumberedEntries(int count)
{
    QString drawn;
    for (int number = 1; number <= count; ++number)
        drawn += QStringLiteral("[ ] Entry %1\n").arg(number);
    return drawn;
}

inline QString MarkOf(const CheckList& list, int row)
{
    if (!(list.model()->index(row, 0).flags() & Qt::ItemIsUserCheckable))
        return QStringLiteral("[-]");
    return list.Checked(row) ? QStringLiteral("[x]") : QStringLiteral("[ ]");
}

/// As it is drawn for `Fill`, the selected entry behind ">"; hidden ones are left out.
inline QString Drawn(const CheckList& list)
{
    QStringList lines;
    for (int row = 0; row < list.Count(); ++row) {
        const QString pointer = row == list.CurrentRow() ? QStringLiteral("> ") : QStringLiteral("  ");
        if (!list.isRowHidden(row))
            lines.append(pointer + MarkOf(list, row) + u' ' + list.Text(row));
    }
    return lines.join(u'\n');
}

/// A check list on screen, with the focus, in a window with a button; and what it told: "clicked", "1->2".
struct ShownCheckList
{
    explicit ShownCheckList(const QString& drawn, QSize size = {200, 150})
    {
        list->setFixedSize(size);
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(list);
        layout->addWidget(button);
        Fill(*list, drawn);
        QObject::connect(list, &CheckList::Clicked, &window, [this] { told.append(QStringLiteral("clicked")); });
        QObject::connect(list, &CheckList::MoveRequested, &window,
                         [this](int from, int to) { told.append(QStringLiteral("%1->%2").arg(from).arg(to)); });
        window.show();
        QApplication::setActiveWindow(&window);
        list->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// A press that a test has not released would be one of the next test.
    ~ShownCheckList()
    {
        if (isPressed)
            QTest::mouseRelease(&window, Qt::LeftButton);
    }

    QString Told() { return std::exchange(told, {}).join(u' '); }

    QRect Place(int row) const { return list->visualRect(list->model()->index(row, 0)); }
    QPoint Middle(int row) const { return Place(row).center(); }

    /// The middle of the check mark, from how the style lays an entry out.
    QPoint Mark(int row) const
    {
        QStyleOptionViewItem option;
        option.initFrom(list);
        option.rect = Place(row);
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.text = list->Text(row);
        option.widget = list;
        return list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list).center();
    }

    int TopRow() const { return list->verticalScrollBar()->value(); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(list, key, modifiers);
    }

    void Click(QPoint point, Qt::MouseButton mouseButton = Qt::LeftButton) const
    {
        QTest::mouseClick(list->viewport(), mouseButton, {}, point);
    }

    void Press(QPoint point)
    {
        isPressed = true;
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, point);
    }

    void MoveTo(QPoint point) const { QTest::mouseMove(list->viewport(), point); }

    void Release(QPoint point)
    {
        isPressed = false;
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, point);
    }

    /// Presses the entry in one row and moves to that in another.
    void Drag(int from, int to)
    {
        Press(Middle(from));
        MoveTo(Middle(to));
    }

    QWidget window;
    CheckList* list = new CheckList;
    QPushButton* button = new QPushButton;
    QStringList told;
    bool isPressed = false;
};

} // namespace schedules::testing
