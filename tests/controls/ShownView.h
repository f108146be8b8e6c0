#pragma once

#include "controls/DrawnSheet.h"
#include "controls/grid/SpreadView.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

namespace schedules::testing {

/// Keeps what the view tells assistive programs.
class ListenedView : public SpreadView
{
public:
    void Announce(QAccessibleEvent& event) override
    {
        QAccessibleInterface* const about = event.accessibleInterface();
        const bool isThere = about && about->isValid();
        m_told.emplace_back(event.type(), isThere ? about->text(QAccessible::Name) : QString());
        SpreadView::Announce(event);
    }

    /// The names of what it told about with a kind of event.
    QStringList Told(QAccessible::Event type) const
    {
        QStringList names;
        for (const auto& [toldType, name] : m_told) {
            if (toldType == type)
                names.append(name);
        }
        return names;
    }

    void ForgetTold() { m_told.clear(); }

private:
    std::vector<std::pair<QAccessible::Event, QString>> m_told;
};

/// A spread view on screen, with the focus, and its sheet.
struct ShownView
{
    explicit ShownView(std::unique_ptr<Sheet> shown, QSize size = {500, 300}) : sheet(std::move(shown))
    {
        view.setFrameShape(QFrame::NoFrame);
        view.resize(size);
        view.SetSheet(sheet.get());
        view.show();
        QApplication::setActiveWindow(&view);
        view.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    QImage Grabbed() { return view.viewport()->grab().toImage(); }

    /// A point of the cell that is seen, beside its text.
    QPoint Corner(Cell cell) const { return view.SeenRect(cell).bottomRight() - QPoint(4, 4); }
    QPoint Middle(Cell cell) const { return view.SeenRect(cell).center(); }
    QColor GroundOf(Cell cell) { return Grabbed().pixelColor(Corner(cell)); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { QTest::keyClick(&view, key, modifiers); }

    void Click(Cell cell, Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view.viewport(), button, modifiers, Middle(cell));
    }

    void Press(QPoint point) { QTest::mousePress(view.viewport(), Qt::LeftButton, {}, point); }
    void MoveTo(QPoint point) { QTest::mouseMove(view.viewport(), point); }
    void Release(QPoint point) { QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, point); }

    std::unique_ptr<Sheet> sheet;
    ListenedView view;
};

/// An empty sheet of columns of 96 pixels and rows of 20.
inline std::unique_ptr<Sheet> EmptySheet(int columns, int rows)
{
    auto sheet = std::make_unique<Sheet>();
    sheet->SetSize(columns, rows);
    for (int row = 0; row <= rows; ++row)
        sheet->SetRowHeight(Row(row), 300);
    return sheet;
}

} // namespace schedules::testing
