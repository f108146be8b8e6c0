// Resource modules whose file goes after it was handed over, and handles that are none.

#include "TemplateHost.h"
#include "framework/IComponentFactory.h"
#include "support/ScriptedUserInterface.h"

#include <functional>

namespace schedules::testing {

namespace {

/// A tool without a tip shows its caption, which is the same in all languages.
constexpr auto kWithoutTexts = "|Save|";

constexpr auto kModule = SCHEDULES_BIN_DIR "/languages/Schedules_de.qm";

/// A host with a resource module in a file of its own.
struct HostileModules : ::testing::Test
{
    HostileModules()
    {
        EXPECT_TRUE(QFile::copy(kModule, fileName));
        QFile::setPermissions(fileName, QFile::ReadOwner | QFile::WriteOwner);
    }
    ~HostileModules() override
    {
        ComponentFactory().CloseResourceModule(handle);
        ComponentFactory().UseResourceModule(0);
    }

    void Open()
    {
        handle = ComponentFactory().OpenResourceModule(fileName);
        EXPECT_GT(handle, 0);
        Answer(QString::number(handle));
    }

    void Answer(const QString& reply)
    {
        ComponentFactory().UseResourceModule(0);
        host.replies["GetResourceModule"] = reply;
    }

    void Overwrite(const QByteArray& content) const
    {
        QFile file(fileName);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
    }

    /// The texts of both tools, as they come up now.
    std::string Texts()
    {
        const HostedView view(&user);
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        EXPECT_EQ(view.Drawn(), kDrawnSchedule);
        const HostedEditor editor(&user);
        editor.Start(host);
        EXPECT_EQ(editor.Templates(), 3);
        return (view.Find<QAbstractButton>("cmdCancel").text() + '|' + view.Find<QAction>("btnSaveTag").toolTip() +
                '|' + editor.Find<QAbstractButton>("cmdSaveAs").text())
            .toStdString();
    }

    TemplateHost host;
    ScriptedUserInterface user;
    const QString fileName = host.PathOf("texts.qm");
    int handle = 0;
};

} // namespace

TEST_F(HostileModules, AFileThatIsGoneOrOverwrittenChangesNoText)
{
    Open();
    const std::string before = Texts();
    EXPECT_NE(before.find("Schlie"), before.npos) << before;
    const QByteArray content = host.Content("texts.qm");
    const std::function<void()> deeds[] = {[&] { Overwrite(Rubbish().toUtf8()); },
                                           [&] { Overwrite(content.first(content.size() / 2)); },
                                           [&] { Overwrite({}); },
                                           [&] { QFile::resize(fileName, 1 << 20); },
                                           [&] { QFile::setPermissions(fileName, {}); },
                                           [&] { QFile::remove(fileName); }};
    for (const auto& deed : deeds) {
        deed();
        EXPECT_EQ(Texts(), before);
    }
}

TEST_F(HostileModules, AFileThatIsCutOffAnywhereIsEitherNoModuleOrOne)
{
    const QByteArray content = host.Content("texts.qm");
    for (qsizetype size = 0; size < content.size(); size += 1 + content.size() / 97) {
        Overwrite(content.first(size));
        handle = ComponentFactory().OpenResourceModule(fileName);
        Answer(QString::number(handle));
        Texts();
        ComponentFactory().CloseResourceModule(handle);
    }
}

TEST_F(HostileModules, AModuleThatIsClosedInUseLeavesToolsWithoutTexts)
{
    Open();
    ComponentFactory().CloseResourceModule(handle);
    EXPECT_EQ(Texts(), kWithoutTexts);
}

TEST_F(HostileModules, AModuleMayBeClosedWhileToolsAreOpen)
{
    Open();
    const HostedView view(&user);
    view.Ui().IToolUI_Initialize(&host, "Host");
    ComponentFactory().CloseResourceModule(handle);
    ComponentFactory().CloseResourceModule(handle);
    view.Widget().setProperty("ViewType", kScheduleView);
    view.Ui().IToolUI_XML(kSchedule);
    view.Ui().IToolUI_Activate();
    EXPECT_EQ(view.Drawn(), kDrawnSchedule);
}

TEST_F(HostileModules, HandlesThatAreNoneGiveNoTexts)
{
    for (const char* reply : {"-1", "2147483647", "-2147483648", "123456"}) {
        Answer(reply);
        EXPECT_EQ(Texts(), kWithoutTexts) << reply;
    }
    Answer("0");
    EXPECT_NE(Texts().find("Missing: "), std::string::npos);
}

} // namespace schedules::testing
