// What a host may use beyond the tools, because it is linked with the component: the sheet that is shown, the messages,
// the template model and the search for files. Its argument is a template file.

#include "fileutil/CFileUtility.h"
#include "framework/IComponentFactory.h"
#include "framework/IToolUI.h"
#include "framework/Message.h"
#include "model/CTemplates.h"
#include "spread/Sheet.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <memory>

using namespace schedules;

namespace {

class Silent : public UserInterface
{
public:
    Answer Show(const MessageBox&) override { return Answer::Ok; }
    void SetPointer(Pointer) override {}
    void Beep() override {}
    QString AskSaveFileName(const FileQuestion&) override { return {}; }
};

QString ShownText()
{
    const std::unique_ptr<QObject> view(ComponentFactory().CreateTool("ctlSchedule"));
    auto* tool = qobject_cast<IToolUI*>(view.get());
    tool->IToolUI_XML("<TABLE><TR><TH/><TH>Flow</TH></TR><TR><TH>P-1</TH><TD>12</TD></TR></TABLE>");
    tool->IToolUI_Activate();
    return view->property("sheet").value<Sheet*>()->Text({Column(1), Row(1)});
}

QString TemplateFile(const QString& pattern)
{
    CFileUtility search;
    return search.FindFile(pattern) ? search.GetFileName() : QString();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Silent user;
    CTemplates templates(user);
    templates.CreateObjects("<Templates/>", "<Categories><Category name='pump'/></Categories>", "/tmp/");

    std::printf("%s\n", qPrintable(ShownText()));
    std::printf("%s\n", qPrintable(ParseMessage(Message{.name = "Sent"}.Text()).value_or(Message()).name));
    std::printf("%d templates\n", templates.Count());
    std::printf("%s\n", qPrintable(TemplateFile(application.arguments().value(1) + "/Schedules_e*.qm")));
    return 0;
}
