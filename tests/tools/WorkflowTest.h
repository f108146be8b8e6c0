#pragma once

#include "tools/EditingTest.h"

#include <QRegularExpression>
#include <QToolBar>

namespace schedules {

/// A user who works through whole sequences, and a host that hears of them.
class WorkflowTest : public EditingTest
{
protected:
    /// "event ctlSchedule -> Host: ..." for each message, documents left out.
    std::string Heard() const
    {
        QStringList log = host.Log();
        for (QString& line : log)
            line.replace(QRegularExpression(QStringLiteral("ScheduleXml=.*\\]")), QStringLiteral("ScheduleXml=...]"));
        return log.join('\n').toStdString();
    }

    void EditTwice()
    {
        view.setProperty("ViewType", kScheduleView);
        view.setProperty("BuilderPdsg", QStringLiteral("pdsg"));
        Initialize(view);
        Activate(kEditable);
        view.resize(900, 400);
        view.show();
        QApplication::setActiveWindow(&view);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        EditCell(1, 1, "20");
        ClickTool("btnSaveTag");
        ClickTool("btnTranspose");
        EditCell(2, 1, "21");
    }

    void ClickTool(const char* key)
    {
        QTest::mouseClick(Find<QToolBar>("tbTasks")->widgetForAction(Tool(key)), Qt::LeftButton);
    }

    static constexpr auto kStart = "request ctlSchedule -> Host: GetResourceModule 0 3\n"
                                   "request ctlSchedule -> Host: InitializeSchedule 0 0 [2 Caller=]";
    static constexpr auto kUpdate = "\nevent ctlSchedule -> Host: UpdateTagScheduleData 8 9 "
                                    "[2 BuilderPdsg=pdsg] [4 ScheduleXml=...]";
    static constexpr auto kUnload = "\nevent ctlSchedule -> Host: UnloadSchedule 8 9 [8 Cancel=True]";
    static constexpr auto kQuestion = "Save Tag data? (3) Missing: 3042";
};

} // namespace schedules
