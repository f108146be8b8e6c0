// Opening the options editor on a folder of templates and switching to a large one, against the model reading the same
// files. Of these every reading of a file is the editor's, too; the rest is asking the host and filling its lists.

#include "Quiet.h"
#include "TemplateFolder.h"
#include "controls/lists/CheckList.h"
#include "framework/IMsgRouter.h"
#include "framework/Message.h"
#include "model/CTemplates.h"
#include "tools/options/ctlSchedOptions.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>

#include <benchmark/benchmark.h>
#include <memory>

namespace schedules::bench {

namespace {

/// Has a folder of templates and uses the first of them.
class TemplateHost : public IMsgRouter
{
public:
    explicit TemplateHost(const TemplateFolder& folder) : m_folder(folder) {}

    QString Send(const Envelope& envelope) override
    {
        const auto message = ParseMessage(envelope.body.toString());
        const QString name = message ? message->name : QString();
        if (name == QLatin1String("GETTEMPLATELIST"))
            return m_folder.List();
        if (name == QLatin1String("GETTEMPLATECATEGORIES"))
            return m_folder.Categories();
        if (name == QLatin1String("GETBUILDERPATH"))
            return m_folder.Path();
        if (name == QLatin1String("GETCURRENTSCHEDTEMPLATE"))
            return QStringLiteral("Template0.xml");
        return QStringLiteral("0");
    }

private:
    const TemplateFolder& m_folder;
};

/// The editor as a user sees it when it is open.
std::unique_ptr<ctlSchedOptions> Opened(IMsgRouter& host, UserInterface& user)
{
    auto editor = std::make_unique<ctlSchedOptions>(&user);
    editor->IToolUI_Initialize(&host, QStringLiteral("Host"));
    editor->IToolUI_Activate();
    editor->resize(800, 600);
    editor->show();
    QCoreApplication::processEvents();
    return editor;
}

const TemplateFolder& ManyTemplates()
{
    static const TemplateFolder folder({1'000, 10, 20});
    return folder;
}

const TemplateFolder& LargeTemplates()
{
    static const TemplateFolder folder({2, 200, 500});
    return folder;
}

void OwnOpen(benchmark::State& state)
{
    Quiet quiet;
    TemplateHost host(ManyTemplates());
    for (auto _ : state) {
        auto editor = Opened(host, quiet);
        state.PauseTiming();
        if (editor->findChild<QComboBox*>(QStringLiteral("cboTemplates"))->count() != 1'000)
            state.SkipWithError("the templates were not listed");
        editor.reset();
        state.ResumeTiming();
    }
}

void ModelOpen(benchmark::State& state)
{
    Quiet quiet;
    for (auto _ : state) {
        CTemplates catalogue(quiet);
        if (!catalogue.CreateObjects(ManyTemplates().List(), ManyTemplates().Categories(), ManyTemplates().Path()))
            state.SkipWithError("the list was not read");
        state.PauseTiming();
        catalogue.Clear();
        state.ResumeTiming();
    }
}

void Press(QWidget& control, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &press);
    QCoreApplication::processEvents();
}

void OwnSwitch(benchmark::State& state)
{
    Quiet quiet;
    TemplateHost host(LargeTemplates());
    const auto editor = Opened(host, quiet);
    auto& templates = *editor->findChild<QComboBox*>(QStringLiteral("cboTemplates"));
    for (auto _ : state) {
        Press(templates, templates.currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
        if (editor->findChild<CheckList*>(QStringLiteral("lstGroups"))->Count() != 200)
            state.SkipWithError("the groups were not listed");
    }
}

void ModelSwitch(benchmark::State& state)
{
    Quiet quiet;
    for (auto _ : state) {
        auto read = std::make_unique<CTemplate>(quiet);
        read->SetFilePath(LargeTemplates().Path());
        read->SetFilename(QStringLiteral("Template1.xml"));
        if (!read->XMLToObject())
            state.SkipWithError("the file was not read");
        state.PauseTiming();
        read.reset();
        state.ResumeTiming();
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("options/open 1000/own", OwnOpen)->Unit(benchmark::kMillisecond)->MinTime(2);
    benchmark::RegisterBenchmark("options/open 1000/model", ModelOpen)->Unit(benchmark::kMillisecond)->MinTime(2);
    benchmark::RegisterBenchmark("options/switch to 200 groups/own", OwnSwitch)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("options/switch to 200 groups/model", ModelSwitch)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace

} // namespace schedules::bench
