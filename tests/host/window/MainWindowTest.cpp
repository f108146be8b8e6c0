#include "host/window/MainWindow.h"

#include "framework/MessageTable.h"
#include "host/base/DataFolder.h"
#include "host/tools/HostRouter.h"
#include "host/tools/LanguageModule.h"
#include "host/window/MessageDock.h"
#include "spread/Sheet.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

struct MainWindowTest : ::testing::Test
{
    MainWindowTest()
    {
        router.Answers(QStringLiteral("GetResourceModule"), [this](const Message&) { return language.Reply(); });
        window.show();
    }

    void OpenSample(const QString& name) { window.Open(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/") + name); }

    QStringList LoggedNames() const
    {
        const auto* model = window.findChild<QTreeView*>(QStringLiteral("lstMessages"))->model();
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row)
            names.append(model->index(row, 3).data().toString());
        return names;
    }

    QAction* MenuAction(const QString& text) const
    {
        for (QAction* action : window.findChildren<QAction*>()) {
            if (action->text() == text)
                return action;
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
        return nullptr;
    }

    const Sheet* Grid() const { return window.centralWidget()->property("sheet").value<Sheet*>(); }

    LanguageModule language{QStringLiteral("en")};
    HostRouter router;
    MainWindow window{router, {}};
};

} // namespace

TEST_F(MainWindowTest, ShowsAFileInTheToolAndItsNameInTheTitle)
{
    OpenSample(QStringLiteral("pumps.xml"));
    EXPECT_EQ(window.windowTitle(), "pumps.xml - Equipment Schedules");
    ASSERT_NE(Grid(), nullptr);
    EXPECT_EQ(Grid()->Text({Column(1), Row(0)}), "P-101A");
}

TEST_F(MainWindowTest, TheDockListsWhatCrossed)
{
    OpenSample(QStringLiteral("pumps.xml"));
    EXPECT_EQ(LoggedNames(), (QStringList{"GetResourceModule", "InitializeSchedule"}));
}

TEST_F(MainWindowTest, AnotherFileComesIntoAToolMadeAnew)
{
    OpenSample(QStringLiteral("pumps.xml"));
    OpenSample(QStringLiteral("air-handling.xml"));
    EXPECT_EQ(Grid()->Text({Column(1), Row(0)}), "AHU-01");
    EXPECT_EQ(LoggedNames(), (QStringList{"GetResourceModule", "InitializeSchedule", "InitializeSchedule"}))
        << "the module is asked for once";
}

TEST_F(MainWindowTest, AHelpClickIsLogged)
{
    OpenSample(QStringLiteral("pumps.xml"));
    window.centralWidget()->findChild<QAction*>(QStringLiteral("btnHelp"))->trigger();
    EXPECT_EQ(LoggedNames().last(), "ProcessSubscriberEvent");
}

TEST_F(MainWindowTest, CancelClosesTheWindowWhenTheMessageIsOver)
{
    OpenSample(QStringLiteral("pumps.xml"));
    auto* cancel = window.centralWidget()->findChild<QWidget*>(QStringLiteral("cmdCancel"));
    ASSERT_NE(cancel, nullptr);
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_EQ(LoggedNames().last(), "UnloadSchedule");
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
}

TEST_F(MainWindowTest, AnErrorIsToldInTheStatusBar)
{
    const QVariant description = QStringLiteral("Something failed");
    const Message message = BuildMessage(MessageFormOf(u"ErrorMessage"),
                                         {description, QString(), 5, QStringLiteral("Schedules.ctlSchedule")});
    router.Send({QStringLiteral("ctlSchedule"), QStringLiteral("Framework"), MessageKind::Event, message.Text()});
    EXPECT_EQ(window.statusBar()->currentMessage(), "Something failed");
    EXPECT_EQ(LoggedNames(), QStringList{"ErrorMessage"});
}

TEST_F(MainWindowTest, TheToolHasMostOfTheRoom)
{
    OpenSample(QStringLiteral("pumps.xml"));
    QCoreApplication::processEvents();
    EXPECT_GT(window.centralWidget()->height(), window.height() / 2);
    EXPECT_TRUE(window.findChild<QDockWidget*>(QStringLiteral("dockMessages"))->isVisible());
}

TEST_F(MainWindowTest, ReloadReadsTheFileAgain)
{
    OpenSample(QStringLiteral("pumps.xml"));
    const QWidget* before = window.centralWidget();
    MenuAction(QStringLiteral("&Reload"))->trigger();
    EXPECT_NE(window.centralWidget(), before);
    EXPECT_EQ(Grid()->Text({Column(1), Row(0)}), "P-101A");
}

TEST_F(MainWindowTest, TheViewMenuChoosesTheKindOfView)
{
    OpenSample(QStringLiteral("selection.xml"));
    EXPECT_TRUE(MenuAction(QStringLiteral("&Schedule"))->isChecked());
    MenuAction(QStringLiteral("Se&lector"))->trigger();
    EXPECT_EQ(window.centralWidget()->property("ViewType").toInt(), 2);
    EXPECT_EQ(Grid()->Text({Column(1), Row(2)}), "0") << "the check boxes are set";
}

TEST_F(MainWindowTest, AFileThatCannotBeReadIsToldAndTheWindowStays)
{
    OpenSample(QStringLiteral("pumps.xml"));
    QString told;
    QTimer::singleShot(0, [&told] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        told = box->text();
        box->accept();
    });
    OpenSample(QStringLiteral("absent.xml"));
    EXPECT_TRUE(told.startsWith(QLatin1String("cannot read "))) << qPrintable(told);
    EXPECT_EQ(window.windowTitle(), "pumps.xml - Equipment Schedules");
    EXPECT_EQ(Grid()->Text({Column(1), Row(0)}), "P-101A");
}

} // namespace schedules::host
