#pragma once

#include "controls/grid/CellEditBox.h"
#include "controls/grid/SpreadView.h"
#include "tools/ScheduleViewTest.h"

#include <QApplication>
#include <QTest>

namespace schedules {

/// Flow and note of P-1, flow and head of P-2 may be edited.
inline const QString kEditable =
    QStringLiteral("<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH><TH>Note</TH></TR>"
                   "<TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD>48</TD><TD AllowEdit='-1'>spare</TD></TR>"
                   "<TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD AllowEdit='-1'>49</TD><TD>fixed</TD></TR></TABLE>");

/// The view on screen, with a user at mouse and keyboard.
class EditingTest : public ScheduleViewTest
{
protected:
    /// The view in a window of its own with a neighbour that can take the focus.
    void Show(int viewType, const QString& xml, QSize size = {900, 400})
    {
        Start(viewType, xml);
        view.resize(size);
        view.show();
        QApplication::setActiveWindow(&view);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        Spread()->setFocus();
    }

    SpreadView* Spread() const { return Find<SpreadView>("vaSpread1"); }
    CellEditBox* Box() const { return Find<CellEditBox>("txtEditCell"); }
    QPoint Middle(int column, int row) const { return Spread()->CellRect({Column(column), Row(row)}).center(); }

    void ClickCell(int column, int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(Spread()->viewport(), Qt::LeftButton, modifiers, Middle(column, row));
    }

    /// Presses the right button, upon which the desktop asks for a menu.
    void AskForMenu(QPoint point)
    {
        QWidget* const viewport = Spread()->viewport();
        QTest::mouseClick(viewport, Qt::RightButton, {}, point);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, point, viewport->mapToGlobal(point));
        QApplication::sendEvent(viewport, &asked);
    }

    /// Presses a key where the focus is.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(Focus(), key, modifiers); }
    void Type(const char* text) { QTest::keyClicks(Focus(), QLatin1String(text)); }

    QWidget* Focus() const
    {
        QWidget* focus = QApplication::focusWidget();
        return focus ? focus : Spread();
    }

    /// "column,row: text" of an open edit, else "idle".
    std::string Edit() const
    {
        if (!Box()->isVisible())
            return "idle";
        for (int row = 1; row <= TheSheet()->RowCount(); ++row) {
            for (int column = 1; column <= TheSheet()->ColumnCount(); ++column) {
                if (Box()->geometry() == Spread()->SeenRect({Column(column), Row(row)}))
                    return std::to_string(column) + "," + std::to_string(row) + ": " + Box()->text().toStdString();
            }
        }
        return "nowhere";
    }

    std::string Active() const
    {
        const Cell cell = TheSheet()->ActiveCell();
        return std::to_string(cell.column.Value()) + "," + std::to_string(cell.row.Value());
    }

    std::string TextAt(int column, int row) const { return TheSheet()->Text({Column(column), Row(row)}).toStdString(); }

    /// Edits a cell as a user does.
    void EditCell(int column, int row, const char* text)
    {
        TheSheet()->SetActiveCell({});
        ClickCell(column, row);
        Type(text);
        Key(Qt::Key_Return);
    }

    /// The cells that bear the mark of an edit.
    std::string Marked() const
    {
        QStringList cells;
        for (int row = 0; row <= TheSheet()->RowCount(); ++row) {
            for (int column = 0; column <= TheSheet()->ColumnCount(); ++column) {
                if (TheSheet()->Style({Column(column), Row(row)}).edited)
                    cells += QStringLiteral("%1,%2").arg(column).arg(row);
            }
        }
        return cells.join(' ').toStdString();
    }

    bool Dirty() const { return view.property("TagDataDirty").toBool(); }

    /// What the host was handed with the last save.
    std::string SavedXml() const
    {
        for (auto sent = host.sent.rbegin(); sent != host.sent.rend(); ++sent) {
            if (sent->message && sent->message->name == QLatin1String("UpdateTagScheduleData"))
                return sent->message->parameters.Items()[1].value.toString().toStdString();
        }
        return "nothing saved";
    }
};

/// On the editable schedule.
class CellEditingTest : public EditingTest
{
protected:
    void ShowSchedule() { Show(kScheduleView, kEditable); }
};

} // namespace schedules
