#pragma once

#include "framework/IComponentFactory.h"
#include "framework/IToolUI.h"
#include "spread/Sheet.h"
#include "support/FakeHost.h"
#include "support/ScriptedUserInterface.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace schedules::host::testing {

inline constexpr int kScheduleView = 1;
inline constexpr int kSelectorView = 2;

/// The component's view on screen, with a table in it and a user at the keyboard.
class ShownView
{
public:
    ShownView(int viewType, const QString& xml)
    {
        host.replies[QStringLiteral("GetResourceModule")] = QStringLiteral("0");
        m_view->setProperty("ViewType", viewType);
        Tool().IToolUI_Initialize(&host, QStringLiteral("Host"));
        Tool().IToolUI_XML(xml);
        Tool().IToolUI_Activate();
        m_view->resize(900, 400);
        m_view->show();
        QApplication::setActiveWindow(m_view.get());
    }
    ~ShownView() { Tool().IToolUI_Deactivate(false); }
    Q_DISABLE_COPY_MOVE(ShownView)

    const Sheet& Grid() const { return *m_view->property("sheet").value<Sheet*>(); }

    /// Types a text into a cell, and Enter.
    void Edit(int column, int row, const char* text)
    {
        MoveTo(column, row);
        QTest::keyClick(Find<QWidget>("vaSpread1"), Qt::Key_F2);
        QTest::keyClicks(Find<QLineEdit>("txtEditCell"), QString::fromUtf8(text));
        QTest::keyClick(Find<QLineEdit>("txtEditCell"), Qt::Key_Return);
    }

    void Tick(int column, int row)
    {
        MoveTo(column, row);
        QTest::keyClick(Find<QWidget>("vaSpread1"), Qt::Key_Space);
    }

    void Trigger(const char* button) { Find<QAction>(button)->trigger(); }
    void Press(const char* button) { Find<QAbstractButton>(button)->click(); }

    /// A parameter of the last message with that name.
    QString Sent(const char* message, const char* parameter) const
    {
        for (auto sent = host.sent.rbegin(); sent != host.sent.rend(); ++sent) {
            if (!sent->message || sent->message->name != QLatin1String(message))
                continue;
            for (const Parameter& each : sent->message->parameters.Items()) {
                if (each.name == QLatin1String(parameter))
                    return each.value.toString();
            }
        }
        ADD_FAILURE() << "no " << message;
        return {};
    }

    schedules::testing::FakeHost host;
    schedules::testing::ScriptedUserInterface user;

private:
    IToolUI& Tool() const { return *qobject_cast<IToolUI*>(m_view.get()); }

    void MoveTo(int column, int row)
    {
        m_view->property("sheet").value<Sheet*>()->SetActiveCell({Column(column), Row(row)});
    }

    template <class Child>
    Child* Find(const char* name) const
    {
        return m_view->findChild<Child*>(QLatin1String(name));
    }

    std::unique_ptr<QWidget> m_view{
        qobject_cast<QWidget*>(ComponentFactory().CreateTool(QStringLiteral("ctlSchedule"), &user))};
};

} // namespace schedules::host::testing
