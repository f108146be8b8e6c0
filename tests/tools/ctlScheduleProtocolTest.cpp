#include "ScheduleViewTest.h"
#include "framework/MessageTable.h"
#include "support/TraceLog.h"

#include <QMetaMethod>

#include <optional>

namespace schedules {

using ScheduleProtocol = ScheduleViewTest;

TEST_F(ScheduleProtocol, StartUpAsksForTheModuleAndAnnouncesTheView)
{
    Initialize(view);
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: GetResourceModule 0 3\n"
                     "request ctlSchedule -> Host: InitializeSchedule 0 0 [2 Caller=]");
}

TEST_F(ScheduleProtocol, StartUpTakesTheModuleFromTheReply)
{
    host.replies[QStringLiteral("GetResourceModule")] = QStringLiteral("4711");
    Initialize(view);
    EXPECT_EQ(ResourceModule(), 4711);
}

TEST_F(ScheduleProtocol, StartUpSetsCaptionsBeforeTheAnnouncement)
{
    QString captionAtAnnouncement;
    host.onSend = [&](const QString& name) {
        if (name == QStringLiteral("InitializeSchedule"))
            captionAtAnnouncement = Button("cmdContinue")->text();
    };
    Initialize(view);
    EXPECT_EQ(captionAtAnnouncement, QStringLiteral("Missing: 1058"));
    EXPECT_EQ(Button("cmdCancel")->text(), QStringLiteral("Missing: 1057"));
}

TEST_F(ScheduleProtocol, StartUpEndsWithATraceLine)
{
    const testing::TraceLog trace;
    Initialize(view);
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("Schedules.ctlSchedule.IToolUI_Initialize")});
}

TEST_F(ScheduleProtocol, AnEmptyModuleReplyEndsTheStartUp)
{
    const QString designed = Button("cmdCancel")->text();
    host.replies.clear();
    const testing::TraceLog trace;
    Initialize(view);
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: GetResourceModule 0 3");
    EXPECT_EQ(Button("cmdCancel")->text(), designed);
    EXPECT_EQ(trace.lines, QStringList{});
    EXPECT_EQ(ResourceModule(), 0);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleProtocol, WithoutAModuleEachInitializationAsksOnce)
{
    host.replies.clear();
    Initialize(view);
    Initialize(view);
    EXPECT_EQ(host.Names().join(' '), QStringLiteral("GetResourceModule GetResourceModule"));
}

TEST_F(ScheduleProtocol, ZeroGoesOnWithoutAModule)
{
    Initialize(view);
    EXPECT_EQ(ResourceModule(), 0);
    EXPECT_EQ(host.Names().back(), QStringLiteral("InitializeSchedule"));
}

TEST_F(ScheduleProtocol, ASecondToolDoesNotAskForTheModuleAgain)
{
    host.replies[QStringLiteral("GetResourceModule")] = QStringLiteral("12");
    Initialize(view);
    host.sent.clear();
    ctlSchedule second(&user);
    Initialize(second);
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: InitializeSchedule 0 0 [2 Caller=]");
}

TEST_F(ScheduleProtocol, AModuleReplyThatIsNoNumberIsReportedAndEndsTheStartUp)
{
    for (const char* reply : {"abc", "12x", "1.5", "99999999999", " "}) {
        host.sent.clear();
        host.replies[QStringLiteral("GetResourceModule")] = QLatin1String(reply);
        const testing::TraceLog trace;
        Initialize(view);
        EXPECT_EQ(Log(), std::string("request ctlSchedule -> Host: GetResourceModule 0 3\n"
                                     "event ctlSchedule -> Framework: ErrorMessage 20 9 "
                                     "[2 ErrorDescription=The host's resource module is not a number: ") +
                             reply +
                             "] [2 ErrorSource=Schedules.ctlSchedule.IToolUI_Initialize] [3 ErrorNumber=13] "
                             "[2 ProcName=Schedules.ctlSchedule.IToolUI_Initialize]");
        EXPECT_EQ(trace.lines, QStringList{});
        EXPECT_EQ(ResourceModule(), 0);
    }
}

TEST_F(ScheduleProtocol, AHostWhoseModuleRequestFailsIsToldAndTheStartUpEnds)
{
    host.failing.insert(QStringLiteral("GetResourceModule"));
    Initialize(view);
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: GetResourceModule 0 3\n"
                     "event ctlSchedule -> Framework: ErrorMessage 20 9 "
                     "[2 ErrorDescription=The host does not listen to GetResourceModule] "
                     "[2 ErrorSource=Schedules.ctlSchedule.SendRequestToOwner] "
                     "[3 ErrorNumber=51] [2 ProcName=Schedules.ctlSchedule.SendRequestToOwner]");
    EXPECT_EQ(user.pointers.back(), Pointer::Default);
}

TEST_F(ScheduleProtocol, AHostThatNeverListensIsSurvived)
{
    host.failing.insert(testing::FakeHost::kEverything);
    const testing::TraceLog trace;
    view.setProperty("ViewType", kScheduleView);
    Initialize(view);
    EXPECT_EQ(user.pointers.back(), Pointer::Default);
    EXPECT_TRUE(trace.lines.constLast().startsWith(QStringLiteral("Schedules.ctlSchedule.SendRequestToOwner: ")));

    Activate(kSchedule);
    for (const char* key : {"btnTranspose", "btnSaveTag", "btnCustomize", "btnHelp"})
        Click(key);
    Press("cmdCancel");
    view.IToolUI_Deactivate(true);
    EXPECT_EQ(Grid(), " | P-1\nFlow | 12\nHead | 48");
}

TEST_F(ScheduleProtocol, WithoutARouterTheViewWorksAndSaysThatNobodyListens)
{
    view.setProperty("ViewType", kScheduleView);
    view.IToolUI_Initialize(nullptr, QStringLiteral("Host"));
    Activate(kSchedule);
    for (const char* key : {"btnSaveTag", "btnCustomize", "btnHelp"})
        Click(key);
    const Error error(5, QStringLiteral("any"));
    view.HandleError(&error, {}, {}, {});
    Press("cmdCancel");
    view.IToolUI_Deactivate(false);
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_EQ(Boxes(), "There is no host to tell. (48) Schedules.ctlSchedule.ab_ToolClick\n"
                       "There is no host to tell. (48) Schedules.ctlSchedule.ab_ToolClick\n"
                       "There is no host to tell. (48) Schedules.ctlSchedule.cmdCancel_Click");
}

TEST_F(ScheduleProtocol, HandingOverADocumentChangesNothingBeforeTheActivation)
{
    Start(kScheduleView, kSchedule);
    view.IToolUI_XML(kOtherSchedule);
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_EQ(Log(), "");
    view.IToolUI_Activate();
    EXPECT_EQ(Grid(), " | Area\nV-1 | 7");
}

TEST_F(ScheduleProtocol, DeactivationOnlyTraces)
{
    Start(kScheduleView, kSchedule);
    for (const bool cancel : {true, false}) {
        const testing::TraceLog trace;
        view.IToolUI_Deactivate(cancel);
        EXPECT_EQ(trace.lines, QStringList{QStringLiteral("Schedules.ctlSchedule.IToolUI_Deactivate")});
    }
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_EQ(Log(), "");
}

TEST_F(ScheduleProtocol, BeginningAndEndAreTracedAndTellTheHostNothing)
{
    const testing::TraceLog trace;
    {
        std::optional<ctlSchedule> tool;
        tool.emplace(&user);
        Initialize(*tool);
        tool->IToolUI_Activate();
        host.sent.clear();
    }
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(trace.lines.constFirst(), QStringLiteral("Schedules.ctlSchedule.UserControl_Initialize"));
    EXPECT_EQ(trace.lines.constLast(), QStringLiteral("Schedules.ctlSchedule.UserControl_Terminate"));
}

TEST_F(ScheduleProtocol, CleaningUpEmptiesTheGridAndLetsGoOfIt)
{
    Start(kScheduleView, kSchedule);
    Sheet* const sheet = TheSheet();
    sheet->SetHidden(Column(1), true);
    view.CleanUP();
    EXPECT_EQ(sheet->ColumnCount(), 0);
    EXPECT_EQ(sheet->RowCount(), 0);
    EXPECT_TRUE(sheet->Store().Empty());
    EXPECT_FALSE(sheet->Hidden(Column(1)));
    EXPECT_FALSE(TheSheet());
}

TEST_F(ScheduleProtocol, AfterCleaningUpTheViewIsSafeToUse)
{
    Start(kScheduleView, kSchedule);
    view.CleanUP();
    view.CleanUP();
    view.setProperty("RowsFrozen", 1);
    view.IToolUI_Activate();
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_EQ(Frozen(), "0 x 1");
}

TEST_F(ScheduleProtocol, AnErrorGoesToTheFrameworkAndResetsThePointer)
{
    Start(kScheduleView, kSchedule);
    const Error error(91, QStringLiteral("no <object>"), QStringLiteral("Source"));
    view.HandleError(&error, QStringLiteral("A.B.C"), QStringLiteral("ignored"), QStringLiteral("ignored"));
    EXPECT_EQ(Log(), "event ctlSchedule -> Framework: ErrorMessage 20 9 [2 ErrorDescription=no <object>] "
                     "[2 ErrorSource=Source] [3 ErrorNumber=91] [2 ProcName=A.B.C]");
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
}

TEST_F(ScheduleProtocol, NoErrorSendsNothingButResetsThePointer)
{
    Start(kScheduleView, kSchedule);
    const Error none(0, QStringLiteral("described all the same"));
    view.HandleError(&none, {}, {}, {});
    view.HandleError(nullptr, {}, {}, {});
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(user.pointers, (std::vector{Pointer::Default, Pointer::Default}));
}

TEST_F(ScheduleProtocol, AReportThatCannotBeSentIsTraced)
{
    Start(kScheduleView, kSchedule);
    host.failing.insert(QStringLiteral("ErrorMessage"));
    const testing::TraceLog trace;
    const Error error(5, QStringLiteral("lost"));
    view.HandleError(&error, QStringLiteral("A.B.C"), {}, {});
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("A.B.C: not reported: lost")});
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
}

TEST_F(ScheduleProtocol, PublicMethodsAreInvokableByName)
{
    for (const char* method : {"LoadScheduleData(QString)", "LoadSelectionData(QString)", "GetUniqueToolID()",
                               "CleanUP()", "DoColSort()", "AddMenu(QString,QString,int,QString,QString,bool,int)",
                               "HandleError(const schedules::Error*,QString,QString,QString)"})
        EXPECT_GE(ctlSchedule::staticMetaObject.indexOfMethod(method), 0) << method;

    Start(kScheduleView, kSchedule);
    const Error error(5, QStringLiteral("by name"));
    EXPECT_TRUE(QMetaObject::invokeMethod(&view, "HandleError", Q_ARG(const schedules::Error*, &error),
                                          Q_ARG(QString, QStringLiteral("P")), Q_ARG(QString, QString()),
                                          Q_ARG(QString, QString())));
    EXPECT_EQ(host.Names().join(' '), QStringLiteral("ErrorMessage"));
}

TEST_F(ScheduleProtocol, IsAToolForTheHost)
{
    EXPECT_EQ(qobject_cast<IToolUI*>(static_cast<QObject*>(&view)), static_cast<IToolUI*>(&view));
}

TEST_F(ScheduleProtocol, EveryMessageHasTheFormOfTheTable)
{
    Start(kScheduleView, kSchedule);
    Initialize(view);
    for (const char* key : {"btnCustomize", "btnHelp", "btnSaveTag"})
        Click(key);
    Press("cmdCancel");
    const Error error(5, QStringLiteral("any"));
    view.HandleError(&error, {}, {}, {});

    for (const auto& each : host.sent) {
        ASSERT_TRUE(each.message);
        const MessageForm& form = MessageFormOf(each.message->name);
        EXPECT_EQ(each.envelope.kind, form.kind) << form.name;
        EXPECT_EQ(each.envelope.recipient, QLatin1String(form.recipient ? form.recipient : "Host")) << form.name;
        EXPECT_EQ(each.message->firstCode, form.firstCode) << form.name;
        EXPECT_EQ(each.message->secondCode, form.secondCode) << form.name;
        EXPECT_EQ(each.message->parameters.Items().size(), static_cast<qsizetype>(form.parameters.size())) << form.name;
    }
    EXPECT_EQ(host.Names().join(' '),
              QStringLiteral("GetResourceModule InitializeSchedule ShowOptions ProcessSubscriberEvent "
                             "UpdateTagScheduleData UnloadSchedule ErrorMessage"));
}

} // namespace schedules
