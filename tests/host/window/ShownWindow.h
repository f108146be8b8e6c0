#pragma once

#include "host/tools/HostRouter.h"
#include "host/tools/LanguageModule.h"
#include "host/window/MainWindow.h"
#include "spread/Sheet.h"
#include "support/ScriptedUserInterface.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <deque>
#include <gtest/gtest.h>

namespace schedules::host::testing {

/// The flow of P-1 and of P-2 may be edited.
inline constexpr auto kPumps = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                               "<TABLE><!-- two pumps -->\r\n <TR><TH/><TH>Flow</TH><TH>Head</TH></TR>\r\n"
                               " <TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD>48</TD></TR>\r\n"
                               " <TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD>49</TD></TR></TABLE>\r\n";
inline constexpr auto kFans =
    "<TABLE><TR><TH/><TH>Duty</TH></TR><TR><TH>F-1</TH><TD AllowEdit='-1'>7</TD></TR></TABLE>";
inline constexpr auto kTags =
    "<TABLE><TR><TH/><TH>1</TH><TH>2</TH></TR><TR><TH>Tag</TH><TD>P-1</TD><TD>P-2</TD></TR>"
    "<TR><TH>Select</TH><TD dataType='CHECKBOX' visible='-1'/><TD dataType='CHECKBOX' visible='-1'/></TR></TABLE>";

/// A window on files of its own, with a user who works in it, and who answers from scripts.
class ShownWindow : public ::testing::Test
{
protected:
    ShownWindow()
    {
        router.Answers(QStringLiteral("GetResourceModule"), [this](const Message&) { return language.Reply(); });
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QString Path(const QString& name) const { return folder.filePath(name); }

    QString Written(const QString& name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
        file.write(bytes);
        return file.fileName();
    }

    std::string Content(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        return file.readAll().toStdString();
    }

    void Open(const QByteArray& xml, const QString& name = QStringLiteral("pumps.xml"))
    {
        window.Open(Written(name, xml));
    }

    QWidget& View() const { return *window.centralWidget(); }
    Sheet& Grid() const { return *View().property("sheet").value<Sheet*>(); }
    bool Dirty() const { return View().property("TagDataDirty").toBool(); }
    std::string TextAt(int column, int row) const { return Grid().Text({Column(column), Row(row)}).toStdString(); }

    template <class Child>
    Child* Find(const char* name) const
    {
        return View().findChild<Child*>(QLatin1String(name));
    }

    /// Edits a cell, but for the Enter at the end.
    void Type(int column, int row, const char* text)
    {
        Grid().SetActiveCell({Column(column), Row(row)});
        QTest::keyClick(Find<QWidget>("vaSpread1"), Qt::Key_F2);
        QTest::keyClicks(Find<QLineEdit>("txtEditCell"), QLatin1String(text));
    }

    void Edit(int column, int row, const char* text)
    {
        Type(column, row, text);
        QTest::keyClick(Find<QLineEdit>("txtEditCell"), Qt::Key_Return);
    }

    void PressSave() { Find<QAction>("btnSaveTag")->trigger(); }

    QAction* Menu(const QString& text) const
    {
        for (QMenu* menu : window.findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text() == text)
                    return action;
            }
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
        return nullptr;
    }

    std::string Status() const { return window.statusBar()->currentMessage().toStdString(); }

    /// A column of the list of messages, from its third line on: what comes after the start-up.
    QStringList Logged(int field = 3) const
    {
        const auto* model = window.findChild<QTreeView*>(QStringLiteral("lstMessages"))->model();
        QStringList fields;
        for (int row = 2; row < model->rowCount(); ++row)
            fields.append(model->index(row, field).data().toString());
        return fields;
    }

    UnsavedValues NextAnswer()
    {
        EXPECT_FALSE(unsaved.empty()) << "an answer is missing for " << qPrintable(asked.last());
        const UnsavedValues answer = unsaved.empty() ? UnsavedValues::Keep : unsaved.front();
        unsaved.pop_front();
        return answer;
    }

    QTemporaryDir folder;
    LanguageModule language{QStringLiteral("en")};
    HostRouter router;
    schedules::testing::ScriptedUserInterface user;
    std::deque<UnsavedValues> unsaved; ///< the answers to come
    QStringList asked;                 ///< the files that the window has asked about
    MainWindow window{router, {}, {&user, [this](QWidget&, const QString& file) {
                                       asked.append(file);
                                       return NextAnswer();
                                   }}};
};

} // namespace schedules::host::testing
