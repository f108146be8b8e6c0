#include "Saving.h"
#include "host/TemplateFolderFiles.h"
#include "host/answers/LaidOutTemplates.h"
#include "host/answers/SmallProject.h"
#include "host/answers/TemplateFileAnswers.h"
#include "host/base/HostError.h"
#include "host/cli/LoadedTool.h"
#include "host/cli/Picture.h"
#include "host/files/XmlFile.h"
#include "host/import/SampleProject.h"
#include "host/project/StoredProject.h"
#include "host/tools/HostedEditor.h"
#include "support/ModalDialog.h"
#include "support/ScriptedUserInterface.h"
#include "support/TraceLog.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

namespace schedules::host::testing {

namespace {

using schedules::testing::OnceModal;
using schedules::testing::ScriptedUserInterface;
using schedules::testing::TraceLog;

void Write(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(fileName);
    file.write(content);
}

/// The line of the failure of a step; empty when there is none.
template <typename Step>
QString FailureOf(Step step)
{
    try {
        step();
    } catch (const HostError& error) {
        return error.Line();
    }
    return {};
}

enum class Before
{
    Nothing,
    AFile
};

/// A schedule in a file of some format.
class Export : public Saving
{
public:
    Export(const QString& format, Before before) : m_format(format), m_before(before) {}

    void Prepare(const QString& folder) override
    {
        m_fileName = folder + "/schedule." + m_format;
        if (m_before == Before::AFile)
            Write(m_fileName, "what there was before");
        m_tool.emplace(CommandLine(), ReadXmlFile(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/air-handling.xml")));
    }

    QString Save() override
    {
        if (m_format == "png")
            return FailureOf([&] { WritePng(PictureOf(m_tool->Tool(), "Air"), m_fileName); });
        if (m_format == "pdf")
            return m_tool->Tool().WritePdf(m_fileName, true, QPageSize::A4);
        return m_tool->Tool().WriteFile(m_format, m_fileName);
    }

private:
    QString m_format;
    Before m_before;
    QString m_fileName;
    std::optional<LoadedTool> m_tool;
};

/// The commands of the view that export, with a user who names the file.
class ExportCommand : public Saving
{
public:
    ExportCommand(const char* command, const char* fileName, Before before)
        : m_command(command), m_name(fileName), m_before(before)
    {
    }

    void Prepare(const QString& folder) override
    {
        m_fileName = folder + '/' + m_name;
        if (m_before == Before::AFile) {
            Write(m_fileName, "what there was before");
            Write(LogName(), "why it was not written before");
        }
        m_session.emplace(SessionOptions());
        m_tool.emplace(m_session->Router(), &m_user, ViewOptions{.view = View::Schedule});
        m_tool->Load(ReadXmlFile(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/air-handling.xml")));
        EXPECT_TRUE(m_user.boxes.empty());
    }

    QString Save() override
    {
        const TraceLog trace;
        m_user.fileNames = {m_fileName};
        m_tool->Widget().findChild<QAction*>(m_command)->trigger();
        EXPECT_EQ(m_user.questions.size(), 1u);
        return ToldFailure(m_user.boxes, trace.lines);
    }

protected:
    QString FileName() const { return m_fileName; }
    QString LogName() const { return m_fileName + ".LOG"; }

private:
    virtual QString ToldFailure(const std::vector<MessageBox>& boxes, const QStringList& trace) const = 0;

    const char* m_command;
    const char* m_name;
    Before m_before;
    QString m_fileName;
    ScriptedUserInterface m_user;
    std::optional<Session> m_session;
    std::optional<HostedSchedule> m_tool;
};

/// Tells a failure in the trace alone, as its protocol wants.
class WorkbookCommand : public ExportCommand
{
public:
    explicit WorkbookCommand(Before before) : ExportCommand("btnExport", "schedule.xls", before) {}

private:
    QString ToldFailure(const std::vector<MessageBox>& boxes, const QStringList& trace) const override
    {
        EXPECT_TRUE(boxes.empty());
        return trace.filter("Schedules.ctlSchedule.ExportToExcel: ").join('\n');
    }
};

/// Tells in a box whether it has succeeded, and of a failure in a file beside the page, too.
class PageCommand : public ExportCommand
{
public:
    explicit PageCommand(Before before) : ExportCommand("mnuExportHtml", "schedule.htm", before) {}

    bool TellsOfFailure(const std::string& name, const std::string& text) const override
    {
        const std::string begin = FileName().toStdString() + ": ";
        return name == "schedule.htm.LOG" && text.starts_with(begin) && text.find('\n') == text.size() - 1;
    }

private:
    QString ToldFailure(const std::vector<MessageBox>& boxes, const QStringList&) const override
    {
        EXPECT_EQ(boxes.size(), 1u);
        if (boxes.empty())
            return {};
        const bool isSuccess = boxes.front().style == kInformation;
        EXPECT_TRUE(boxes.front().text.endsWith(isSuccess ? FileName() : LogName()));
        return isSuccess ? QString() : boxes.front().text;
    }
};

/// The edited schedule that a host keeps in a file.
class EditedSchedule : public Saving
{
public:
    void Prepare(const QString& folder) override
    {
        m_fileName = folder + "/schedule.xml";
        m_text = ReadXmlFile(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/pumps.xml"));
        Write(m_fileName, m_text.toUtf8());
        m_text.replace("<TD", "<TD Dirty='-1'");
    }

    QString Save() override
    {
        return FailureOf([&] { WriteXmlFile(m_fileName, m_text); });
    }

private:
    QString m_fileName;
    QString m_text;
};

/// A template that was edited in the options editor, between a host's files and a user.
class EditedTemplate : public Saving
{
public:
    void Prepare(const QString& folder) override
    {
        EXPECT_TRUE(QDir(folder).mkdir("templates"));
        Write(folder + "/templates/Pumps.xml", kPumpTemplate);
        Write(folder + "/templates/Fans.xml", kFanTemplate);
        Write(folder + "/list.xml", kTemplateList);
        Write(folder + "/categories.xml", kCategoryList);
        m_session.emplace(SessionOptions());
        m_files.emplace(m_session->Router(), TemplatePlaces{folder + "/templates", folder + "/list.xml",
                                                            folder + "/categories.xml", "Pumps.xml"});
        Edit();
        QObject::connect(&m_session->Router(), &HostRouter::Crossed, &m_session->Router(),
                         [this](const Crossing& crossing) { m_told += host::FailureOf(crossing); });
    }

    QString Save() override
    {
        Press();
        return m_told + m_user.TakeReports().join('\n');
    }

protected:
    HostedEditor& Editor() { return *m_editor; }

private:
    void Edit()
    {
        m_editor.emplace(m_session->Router(), &m_user);
        m_editor->Widget().show();
        m_editor->Open();
        m_editor->SelectGroup("Motor");
        auto* groups = m_editor->Widget().findChild<QAbstractItemView*>("lstGroups");
        QTest::keyClick(groups, Qt::Key_Space);
        EXPECT_TRUE(m_editor->HasUnsavedEdits());
        EXPECT_EQ(m_user.TakeReports(), QStringList());
    }

    virtual void Press() { EXPECT_TRUE(m_editor->Apply()); }

    ConsoleUserInterface m_user;
    QString m_told;
    std::optional<Session> m_session;
    std::optional<TemplateFileAnswers> m_files;
    std::optional<HostedEditor> m_editor;
};

/// The same under a name of its own.
class NewTemplate : public EditedTemplate
{
    void Press() override
    {
        OnceModal<QDialog>([](QDialog& dialog) {
            OnceModal<QDialog>([](QDialog& again) { again.reject(); }); // where the name cannot be used
            QTest::keyClicks(dialog.findChild<QLineEdit*>("Text1"), "Night");
            QTest::keyClick(dialog.findChild<QLineEdit*>("Text1"), Qt::Key_Return);
        });
        Editor().Widget().findChild<QAbstractButton*>("cmdSaveAs")->click();
    }
};

/// Something done with a project in a file, as by another start of the program.
class ProjectSaving : public Saving
{
public:
    using Step = std::function<void(Project& project, const QString& folder)>;

    ProjectSaving(Step before, Step step) : m_before(std::move(before)), m_step(std::move(step)) {}

    void Prepare(const QString& folder) override
    {
        m_folder = folder;
        const auto project = Project::Create(Address());
        project->Put(SmallPlant());
        m_before(*project, folder);
    }

    QString Save() override
    {
        return FailureOf([&] { m_step(*Project::Open(Address()), m_folder); });
    }

private:
    QString Address() const { return m_folder + "/plant.schedules"; }

    Step m_before;
    Step m_step;
    QString m_folder;
};

class ProjectMade : public Saving
{
public:
    void Prepare(const QString& folder) override { m_address = folder + "/plant.schedules"; }

    QString Save() override
    {
        return FailureOf([&] { NewProject(m_address, [](Project& project) { project.Put(SmallPlant()); }); });
    }

    bool MayStayUnfinished() const override { return true; }

private:
    QString m_address;
};

const QString kDesign = "Design/Flow";
const TemplateEntry kDay{.name = "Day", .fileName = "Day.xml", .category = "PUMPS"};
const TemplateEntry kNight{.name = "Night", .fileName = "Night.xml", .category = "PUMPS"};

void NothingElse(Project&, const QString&) {}

void SaveValues(Project& project, const QString&)
{
    project.Save({{"P-1", kDesign, "13", 1}, {"P-1", "Design/Head", "50", 1}, {"P-2", "Design/Head", "51", 0}});
}

void ListDay(Project& project, const QString&)
{
    project.MergeTemplates({}, {kDay}, {{"Day.xml", TemplateWith("Day", {kDesign})}});
}

void ListNight(Project& project, const QString&)
{
    project.MergeTemplates({kDay}, {kNight, kDay}, {{"Night.xml", TemplateWith("Night", {kDesign})}});
}

void LayOut(Project& project, const QString& folder)
{
    LaidOutTemplates(project, folder + "/templates").LayOut();
}

void LayOutDay(Project& project, const QString& folder)
{
    ListDay(project, folder);
    LayOut(project, folder);
    project.MergeTemplates(
        {kDay}, {kDay, kNight},
        {{"Day.xml", TemplateWith("Day", {"Design/Head"})}, {"Night.xml", TemplateWith("Night", {kDesign})}});
}

template <class Kind, class... Arguments>
std::function<std::unique_ptr<Saving>()> Made(Arguments... arguments)
{
    return [=] { return std::make_unique<Kind>(arguments...); };
}

} // namespace

std::vector<SavingKind> AllSavings()
{
    std::vector<SavingKind> all{{"Template", Made<EditedTemplate>()},
                                {"NewTemplate", Made<NewTemplate>()},
                                {"EditedSchedule", Made<EditedSchedule>()},
                                {"Values", Made<ProjectSaving>(NothingElse, SaveValues)},
                                {"TemplateList", Made<ProjectSaving>(ListDay, ListNight)},
                                {"TemplateFolder", Made<ProjectSaving>(LayOutDay, LayOut)},
                                {"NewProject", Made<ProjectMade>()},
                                {"WorkbookCommand", Made<WorkbookCommand>(Before::AFile)},
                                {"New_WorkbookCommand", Made<WorkbookCommand>(Before::Nothing)},
                                {"PageCommand", Made<PageCommand>(Before::AFile)},
                                {"New_PageCommand", Made<PageCommand>(Before::Nothing)}};
    for (const char* format : {"xls", "xlsx", "csv", "html", "pdf", "png"}) {
        all.push_back({format, Made<Export>(QString(format), Before::AFile)});
        all.push_back({std::string("New_") + format, Made<Export>(QString(format), Before::Nothing)});
    }
    return all;
}

SavingKind SavingNamed(const std::string& name)
{
    const auto all = AllSavings();
    return *std::ranges::find(all, name, &SavingKind::name);
}

} // namespace schedules::host::testing
