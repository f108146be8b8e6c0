#pragma once

#include "common/CResEnum.h"
#include "common/modResource.h"
#include "support/FakeHost.h"
#include "support/ScriptedUserInterface.h"
#include "tools/schedule/ctlSchedule.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

namespace schedules {

inline const QString kSchedule = QStringLiteral("<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH></TR>"
                                                "<TR><TH>P-1</TH><TD>12</TD><TD>48</TD></TR></TABLE>");
inline const QString kOtherSchedule = QStringLiteral("<TABLE><TR><TH/><TH>Area</TH></TR>"
                                                     "<TR><TH>V-1</TH><TD>7</TD></TR></TABLE>");
inline const QString kSelection = QStringLiteral(
    "<TABLE><TR><TH/><TH>1</TH><TH>2</TH></TR><TR><TH>Tag</TH><TD>P-1</TD><TD>P-2</TD></TR>"
    "<TR><TH>Select</TH><TD dataType='CHECKBOX' visible='-1'/><TD dataType='CHECKBOX' visible='-1'/></TR></TABLE>");
/// Its first line is hidden, which tells the orientations apart.
inline const QString kWithHiddenLine = QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR>"
                                                      "<TR><TH hidden='-1'>1</TH><TD>a1</TD><TD>b1</TD></TR>"
                                                      "<TR><TH>2</TH><TD>a2</TD><TD>b2</TD></TR></TABLE>");
inline const QString kBroken = QStringLiteral("<TABLE><TR>");

inline constexpr int kScheduleView = static_cast<int>(CResEnum::eViewType::vtSCHEDULE_VIEW);
inline constexpr int kSelectorView = static_cast<int>(CResEnum::eViewType::vtSELECTOR_VIEW);

/// The view as a host gets it, but that a test can say that values were edited.
class TestedSchedule : public ctlSchedule
{
public:
    using ctlSchedule::ctlSchedule;
    using ctlSchedule::SetTagDataDirty;
};

/// A view between a host and a user, both of which answer from a script. The host has no resource module, so texts
/// that have a number show it: "Missing: 3040".
class ScheduleViewTest : public ::testing::Test
{
protected:
    ScheduleViewTest() { host.replies[QStringLiteral("GetResourceModule")] = QStringLiteral("0"); }
    ~ScheduleViewTest() override { SetResourceModule(0); }

    void Initialize(ctlSchedule& tool) { tool.IToolUI_Initialize(&host, QStringLiteral("Host")); }

    void Activate(const QString& xml)
    {
        view.IToolUI_XML(xml);
        view.IToolUI_Activate();
    }

    /// Brings the view up on a document and forgets what was said on the way.
    void Start(int viewType, const QString& xml)
    {
        view.setProperty("ViewType", viewType);
        Initialize(view);
        Activate(xml);
        host.sent.clear();
        user.boxes.clear();
        user.pointers.clear();
    }

    void Click(const char* key) { view.ab_ToolClick(QLatin1String(key)); }

    template <class Child>
    Child* Find(const char* name) const
    {
        return view.findChild<Child*>(QLatin1String(name));
    }

    QAction* Tool(const char* key) const { return Find<QAction>(key); }
    QAbstractButton* Button(const char* name) const { return Find<QAbstractButton>(name); }
    bool Shown(const char* name) const { return Find<QWidget>(name)->isVisibleTo(&view); }
    void Press(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }

    Sheet* TheSheet() const { return view.property("sheet").value<Sheet*>(); }

    /// The cells that can be seen, headers included, one row a line.
    std::string Grid() const
    {
        QStringList lines;
        for (int row = 0; row <= TheSheet()->RowCount(); ++row) {
            if (!TheSheet()->Hidden(Row(row)))
                lines += GridRow(Row(row));
        }
        return lines.join('\n').toStdString();
    }

    /// "columns x rows" that do not scroll.
    std::string Frozen() const
    {
        return std::to_string(TheSheet()->FrozenColumns()) + " x " + std::to_string(TheSheet()->FrozenRows());
    }

    std::string Log() const { return host.Log().join('\n').toStdString(); }

    /// What the user was shown: "text (style) title" for each box.
    std::string Boxes() const
    {
        QStringList boxes;
        for (const auto& box : user.boxes)
            boxes += QStringLiteral("%1 (%2) %3").arg(box.text).arg(box.style).arg(box.title).trimmed();
        return boxes.join('\n').toStdString();
    }

    testing::FakeHost host;
    testing::ScriptedUserInterface user;
    TestedSchedule view{&user};

private:
    QString GridRow(Row row) const
    {
        QStringList cells;
        for (int column = 0; column <= TheSheet()->ColumnCount(); ++column) {
            if (!TheSheet()->Hidden(Column(column)))
                cells += TheSheet()->Text({Column(column), row});
        }
        return cells.join(QStringLiteral(" | "));
    }
};

} // namespace schedules
