// The smallest complete host. It shows a schedule, edits a value of it as a user would, saves, and prints what it was
// handed over and what the grid shows then. Its argument is the folder of the component's texts.

#include "framework/IComponentFactory.h"
#include "framework/IMsgRouter.h"
#include "framework/IScheduleView.h"
#include "framework/IToolUI.h"

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QTemporaryDir>

#include <cstdio>

class Router : public schedules::IMsgRouter
{
public:
    explicit Router(int texts) : m_texts(texts) {}

    QString Send(const schedules::Envelope& envelope) override
    {
        const QString message = envelope.body.toString();
        if (message.startsWith("<message name=\"GetResourceModule\""))
            return QString::number(m_texts);
        if (message.startsWith("<message name=\"UpdateTagScheduleData\""))
            std::printf("%s\n", qPrintable(message)); // a real host stores the values that are marked "Dirty"
        return {};
    }

private:
    int m_texts;
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    auto& component = schedules::ComponentFactory();
    const int texts = component.OpenResourceModule(application.arguments().value(1) + "/Schedules_en.qm");
    Router router(texts);
    QMainWindow window;

    auto* view = qobject_cast<QWidget*>(component.CreateTool("ctlSchedule"));
    auto* tool = qobject_cast<schedules::IToolUI*>(view);
    view->setProperty("ViewType", 1); // a schedule, whose values may be edited
    tool->IToolUI_Initialize(&router, "MinimalHost");
    tool->IToolUI_XML("<TABLE><TR><TH>Pump</TH><TH>Flow</TH><TH>Head</TH></TR>"
                      "<TR><TH>P-101A</TH><TD AllowEdit='-1'>412.0</TD><TD>48.0</TD></TR></TABLE>");
    tool->IToolUI_Activate();
    window.setCentralWidget(view); // which makes the window its owner
    window.show();

    auto* schedule = qobject_cast<schedules::IScheduleView*>(view);
    schedule->EnterText({1, 1}, "7"); // as a user would type it
    schedule->Do(schedules::ViewCommand::Save);

    QTemporaryDir folder;
    QFile shown(folder.filePath("shown.csv"));
    const QString failure = schedule->WriteFile("csv", shown.fileName());
    const bool isRead = texts > 0 && failure.isEmpty() && shown.open(QFile::ReadOnly);
    std::printf("%s", shown.readAll().constData());
    return isRead ? 0 : 1; // a real host goes on with application.exec()
}
