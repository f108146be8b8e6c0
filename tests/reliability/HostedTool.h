#pragma once

#include "framework/IToolUI.h"
#include "host/tools/CreatedTool.h"
#include "spread/Sheet.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QPageSize>
#include <QPointer>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

namespace schedules::testing {

/// A tool of the component as a host has it: made by its name, known by what it publishes, and gone when the host says
/// so, or with the window that it is in.
class HostedTool
{
public:
    explicit HostedTool(const char* name, UserInterface* userInterface = nullptr)
        : m_widget(host::CreatedTool(QLatin1String(name), userInterface).release())
    {
    }
    ~HostedTool() { Delete(); }
    Q_DISABLE_COPY_MOVE(HostedTool)

    bool Lives() const { return m_widget; }
    void Delete() { delete m_widget.data(); }

    QWidget& Widget() const { return *m_widget; }
    IToolUI& Ui() const { return *qobject_cast<IToolUI*>(m_widget.data()); }
    bool HasUnsavedEdits() const { return m_widget->property("HasUnsavedEdits").toBool(); }

    template <class Child = QWidget>
    Child& Find(const char* name) const
    {
        auto* const child = m_widget->findChild<Child*>(QLatin1String(name));
        EXPECT_TRUE(child) << name;
        return *child;
    }

    /// What the user does, as long as the tool is there.
    void Press(const char* button) const
    {
        if (Lives())
            QTest::mouseClick(&Find<QAbstractButton>(button), Qt::LeftButton);
    }
    void Trigger(const char* action) const
    {
        if (Lives())
            Find<QAction>(action).trigger();
    }

private:
    QPointer<QWidget> m_widget;
};

/// A schedule view, its table and a user at the keyboard.
class HostedView : public HostedTool
{
public:
    explicit HostedView(UserInterface* userInterface = nullptr) : HostedTool("ctlSchedule", userInterface) {}

    Sheet& Grid() const { return *Widget().property("sheet").value<Sheet*>(); }

    /// All cells, headers included, one row a line.
    std::string Drawn() const
    {
        QStringList lines;
        for (int row = 0; row <= Grid().RowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column <= Grid().ColumnCount(); ++column)
                cells += Grid().Text({Column(column), Row(row)});
            lines += cells.join(QStringLiteral(" | "));
        }
        return lines.join(u'\n').toStdString();
    }

    void Edit(int column, int row, const char* text) const
    {
        Grid().SetActiveCell({Column(column), Row(row)});
        QTest::keyClick(&Find("vaSpread1"), Qt::Key_F2);
        auto& box = Find<QLineEdit>("txtEditCell");
        ASSERT_FALSE(box.isHidden());
        box.selectAll();
        QTest::keyClicks(&box, QLatin1String(text));
        QTest::keyClick(&box, Qt::Key_Return);
    }

    void WriteFile(const char* format, const QString& fileName) const
    {
        QString failure("not called");
        QMetaObject::invokeMethod(&Widget(), "WriteFile", Q_RETURN_ARG(QString, failure), Q_ARG(QString, format),
                                  Q_ARG(QString, fileName));
        EXPECT_EQ(failure, QString()) << format;
    }

    void WritePdf(const QString& fileName) const
    {
        QString failure("not called");
        QMetaObject::invokeMethod(&Widget(), "WritePdf", Q_RETURN_ARG(QString, failure), Q_ARG(QString, fileName),
                                  Q_ARG(bool, true), Q_ARG(int, QPageSize::A4));
        EXPECT_EQ(failure, QString());
    }

    void ClickTool(const char* key) const
    {
        QWidget* const button = Find<QToolBar>("tbTasks").widgetForAction(&Find<QAction>(key));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    /// As a host saves, whatever tools the bar has.
    void Save() const
    {
        if (Lives())
            QMetaObject::invokeMethod(&Widget(), "ab_ToolClick", Q_ARG(QString, QStringLiteral("btnSaveTag")));
    }

    void Tick(int column, int row) const
    {
        Grid().SetActiveCell({Column(column), Row(row)});
        QTest::keyClick(&Find("vaSpread1"), Qt::Key_Space);
    }
};

inline constexpr int kScheduleView = 1;
inline constexpr int kSelectorView = 2;

/// Flow and head of both pumps may be edited.
inline const QString kSchedule =
    QStringLiteral("<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH></TR>"
                   "<TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD AllowEdit='-1'>48</TD></TR>"
                   "<TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD AllowEdit='-1'>49</TD></TR></TABLE>");
inline constexpr auto kDrawnSchedule = " | Flow | Head\nP-1 | 12 | 48\nP-2 | 13 | 49";
inline const QString kOtherSchedule =
    QStringLiteral("<TABLE><TR><TH/><TH>Area</TH></TR><TR><TH>V-1</TH><TD AllowEdit='-1'>7</TD></TR></TABLE>");
inline const QString kSelection = QStringLiteral(
    "<TABLE><TR><TH/><TH>1</TH><TH>2</TH></TR><TR><TH>Tag</TH><TD>P-1</TD><TD>P-2</TD></TR>"
    "<TR><TH>Select</TH><TD dataType='CHECKBOX' visible='-1'/><TD dataType='CHECKBOX' visible='-1'/></TR></TABLE>");
inline const QString kBroken = QStringLiteral("<TABLE><TR>");

} // namespace schedules::testing
