// Does with both tools what a host and its user do, on the files in the folder "in", into the folder "out". It is
// watched meanwhile.

#include "host/base/HostError.h"
#include "host/files/XmlFile.h"
#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "support/FakeHost.h"
#include "support/ScriptedUserInterface.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

#include <cstdio>

namespace schedules::host {

namespace {

QString In(const char* name)
{
    return QStringLiteral("in/") + QLatin1String(name);
}

void Require(const QString& failure)
{
    if (!failure.isEmpty())
        throw HostError(failure);
}

void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        throw HostError(QLatin1String(what));
}

void WorkOnSchedule(testing::FakeHost& router, testing::ScriptedUserInterface& user)
{
    HostedSchedule tool(router, &user, {});
    tool.Widget().setProperty("CustomMsg", ReadXmlFile(In("message.txt")));
    tool.Load(ReadXmlFile(In("table.xml")));
    tool.Enter({1, 1, QStringLiteral("20")});
    tool.Widget().setAttribute(Qt::WA_DontShowOnScreen, false);
    tool.Widget().hide();
    tool.Widget().show();
    Require(!tool.Widget().grab().isNull(), "there is no picture");
    for (const char* format : {"xls", "xlsx", "csv", "html"})
        Require(tool.WriteFile(QLatin1String(format), QLatin1String("out/schedule.") + QLatin1String(format)));
    Require(tool.WritePdf(QStringLiteral("out/schedule.pdf"), true, QPageSize::A4));
    tool.Transpose();
    tool.Save();
    Require(!tool.Dirty(), "nothing was saved");
}

void WorkOnTemplates(testing::FakeHost& router, testing::ScriptedUserInterface& user)
{
    HostedEditor editor(router, &user);
    editor.Open();
    editor.Widget().show();
    Require(!editor.Widget().grab().isNull(), "there is no picture");
    auto* const groups = editor.Widget().findChild<QAbstractItemView*>(QStringLiteral("lstGroups"));
    groups->setCurrentIndex(groups->model()->index(0, 0));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(groups, &press);
    Require(editor.HasUnsavedEdits(), "nothing was edited");
    Require(editor.Apply() && !editor.HasUnsavedEdits(), "nothing was applied");
}

int Work()
{
    testing::FakeHost router;
    router.replies = {{QStringLiteral("GetResourceModule"), QStringLiteral("0")},
                      {QStringLiteral("GETTEMPLATELIST"), ReadXmlFile(In("list.xml"))},
                      {QStringLiteral("GETBUILDERPATH"), In("templates")},
                      {QStringLiteral("GETTEMPLATECATEGORIES"), ReadXmlFile(In("categories.xml"))},
                      {QStringLiteral("GETCURRENTSCHEDTEMPLATE"), QStringLiteral("pumps.xml")}};
    testing::ScriptedUserInterface user;
    try {
        WorkOnSchedule(router, user);
        WorkOnTemplates(router, user);
        return 0;
    } catch (const HostError& error) {
        std::fputs(qPrintable(error.Line()), stderr);
        return 1;
    }
}

} // namespace

} // namespace schedules::host

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return schedules::host::Work();
}
