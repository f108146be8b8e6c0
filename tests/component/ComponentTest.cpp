#include "common/Error.h"
#include "component/LoadedComponent.h"
#include "fileutil/CFileUtility.h"
#include "framework/IScheduleView.h"
#include "framework/ITemplateEditor.h"
#include "framework/IToolUI.h"

#include <QAction>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

namespace schedules {

namespace {

QStringList ExportedNames()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"),
                                    QStringLiteral("--demangle"), QStringLiteral("--format=posix"), kLibrary});
    nm.waitForFinished();
    QStringList names;
    // "name type address size"; a demangled name holds blanks.
    static const QRegularExpression kLine(QStringLiteral("^(.*) [A-Za-z] [0-9a-f]+( [0-9a-f]+)?$"));
    for (const QString& line : QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
        names += kLine.match(line).captured(1);
    return names;
}

} // namespace

TEST_F(ComponentTest, CarriesItsIcons)
{
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/schedules/icons/print.svg")));
}

TEST_F(ComponentTest, TellsItsVersionAndItsTools)
{
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\d+\\.\\d+\\.\\d+$")).match(factory->Version()).hasMatch());
    EXPECT_TRUE(factory->ToolNames().contains(QStringLiteral("ctlSchedule")));
}

TEST_F(ComponentTest, CreatesEachToolThatItNames)
{
    for (const QString& name : factory->ToolNames()) {
        const auto tool = Created(name);
        ASSERT_TRUE(tool) << name.toStdString();
        EXPECT_TRUE(qobject_cast<QWidget*>(tool.get()));
        EXPECT_TRUE(qobject_cast<IToolUI*>(tool.get()));
    }
}

TEST_F(ComponentTest, CreatesNothingForAnUnknownName)
{
    EXPECT_FALSE(factory->CreateTool(QStringLiteral("CTLSCHEDULE"), &user));
    EXPECT_FALSE(factory->CreateTool(QString(), &user));
}

TEST_F(ComponentTest, CreatesTheSearchForFilesByItsName)
{
    EXPECT_EQ(factory->UtilityNames(), QStringList{QStringLiteral("CFileUtility")});
    const auto search = factory->CreateUtility(QStringLiteral("CFileUtility"));
    ASSERT_TRUE(search);
    EXPECT_TRUE(search->FindFile(kLibrary));
    EXPECT_EQ(search->GetFileName(), QStringLiteral("libSchedules.so"));
}

TEST_F(ComponentTest, CreatesNoUtilityForAnUnknownName)
{
    EXPECT_FALSE(factory->CreateUtility(QStringLiteral("ctlSchedule")));
    EXPECT_FALSE(factory->CreateUtility(QString()));
}

TEST_F(ComponentTest, TakesTheTypedContractsOfItsTools)
{
    const auto view = Created(QStringLiteral("ctlSchedule"));
    Start(*view);
    auto* schedule = qobject_cast<IScheduleView*>(view.get());
    ASSERT_TRUE(schedule);
    EXPECT_EQ(schedule->FindCell(QStringLiteral("Flow"), QStringLiteral("P-1")), (GridPlace{1, 1}));
    EXPECT_TRUE(schedule->ChangedCells().isEmpty());
    const auto editor = Created(QStringLiteral("ctlSchedOptions"));
    ASSERT_TRUE(qobject_cast<ITemplateEditor*>(editor.get()));
}

TEST_F(ComponentTest, ReportsAnErrorThatAHostHasMade)
{
    const auto tool = Created(QStringLiteral("ctlSchedule"));
    Start(*tool);
    host.bodies.clear();
    const Error error(5, QStringLiteral("The plot is gone"), QStringLiteral("Host.Plot"));
    const Error* told = &error;
    ASSERT_TRUE(QMetaObject::invokeMethod(tool.get(), "HandleError", Q_ARG(const schedules::Error*, told),
                                          Q_ARG(QString, QStringLiteral("Host.Plot.Draw")), Q_ARG(QString, QString()),
                                          Q_ARG(QString, QString())));
    ASSERT_EQ(host.bodies.size(), 1);
    EXPECT_TRUE(host.bodies.front().contains(QStringLiteral("The plot is gone")));
    EXPECT_TRUE(host.bodies.front().contains(QStringLiteral("Host.Plot.Draw")));
}

TEST_F(ComponentTest, DrivesAToolThroughTheToolInterface)
{
    const auto tool = Created(QStringLiteral("ctlSchedule"));
    Start(*tool);
    EXPECT_TRUE(user.boxes.empty());
    EXPECT_EQ(host.bodies.size(), 2);
    EXPECT_TRUE(tool->findChild<QAction*>(QStringLiteral("btnTranspose")));
    EXPECT_TRUE(tool->property("sheet").value<QObject*>());
}

TEST_F(ComponentTest, SpeaksTheLanguageOfTheModuleInUse)
{
    const int german = factory->OpenResourceModule(QStringLiteral(SCHEDULES_BIN_DIR "/languages/Schedules_de.qm"));
    ASSERT_GT(german, 0);
    factory->UseResourceModule(german);
    const auto tool = Created(QStringLiteral("ctlSchedule"));
    Start(*tool);
    factory->UseResourceModule(0);
    factory->CloseResourceModule(german);

    const auto* transpose = tool->findChild<QAction*>(QStringLiteral("btnTranspose"));
    ASSERT_TRUE(transpose);
    EXPECT_EQ(transpose->text(), QStringLiteral("Transpose")); // captions are the same in every language
    EXPECT_EQ(transpose->toolTip(), QStringLiteral("Zeilen und Spalten vertauschen"));
}

TEST_F(ComponentTest, OpensNoResourceModuleThatIsNone)
{
    EXPECT_EQ(factory->OpenResourceModule(QStringLiteral("/nowhere.qm")), 0);
    EXPECT_EQ(factory->OpenResourceModule(kLibrary), 0);
}

TEST_F(ComponentTest, WithAModuleInUseToolsAskForNone)
{
    factory->UseResourceModule(77);
    const auto tool = Created(QStringLiteral("ctlSchedule"));
    qobject_cast<IToolUI*>(tool.get())->IToolUI_Initialize(&host, QStringLiteral("Host"));
    factory->UseResourceModule(0);
    EXPECT_EQ(host.bodies.size(), 1);
}

TEST(ComponentLibrary, ExportsTheContractAndNothingElse)
{
    static const QRegularExpression kContract(
        QStringLiteral("^(qt_plugin_instance|qt_plugin_query_metadata(_v\\d+)?|"
                       "schedules::(ComponentFactory|ParseMessage|EscapedXml|MessageTable|MessageFormOf|BuildMessage)("
                       "\\[abi:\\w+\\])?\\(.*|"
                       "schedules::(Sheet|CellStore|Axis|Message|ParameterList)::.*|"
                       "schedules::(C(Template|Group|Element|Propert|Categor)\\w*|NamedMembers<\\S+>)::.*|"
                       "schedules::(TextOf|FlagOf|FoldedKey|MemberId::(Set|ForgetOnWrite))(\\[abi:\\w+\\])?\\(.*|"
                       "schedules::CFileUtility::(Find|DeleteFile|Get|Is|MatchesMask|~CFileUtility).*|"
                       "schedules::(UnitLabel|ReplaceFile|TraceIgnoredError)(\\[abi:\\w+\\])?\\(.*|"
                       "(vtable|typeinfo|typeinfo name|non-virtual thunk to|guard variable) ?(for)? ?"
                       "schedules::(Sheet|CFileUtility|IToolUI|IScheduleView|ITemplateEditor|IMsgRouter|"
                       "IComponentFactory|UserInterface)\\b.*)$"));
    const QStringList names = ExportedNames();
    EXPECT_GT(names.size(), 10);
    for (const QString& name : names)
        EXPECT_TRUE(kContract.match(name).hasMatch()) << name.toStdString();
}

TEST(ComponentLibrary, DoesNotExportWhatOnlyTheComponentMayWrite)
{
    for (const QString& name : ExportedNames())
        EXPECT_FALSE(name.contains(QStringLiteral("schedules::Inside"))) << name.toStdString();
}

} // namespace schedules
