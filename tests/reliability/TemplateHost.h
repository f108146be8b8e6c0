#pragma once

#include "HostileHost.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

namespace schedules::testing {

/// How the first group of each template begins in its file.
inline QByteArray GroupMarked(bool isMarked)
{
    return QByteArray("<Group Name=\"Design\" DisplayName=\"Design\" ShowThisGroup=") + (isMarked ? "\"-1\"" : "\"0\"");
}

/// A host with a folder of three templates, that keeps its list as the editor tells it to: "pumps.xml", which is in
/// use, "fans.xml", and "rooms.xml", which is protected.
class TemplateHost : public HostileHost
{
public:
    TemplateHost()
    {
        for (const char* name : {"pumps", "fans", "rooms"})
            Write(QLatin1String(name) + ".xml", Template(name));
        replies["GetResourceModule"] = "0";
        replies["GETBUILDERPATH"] = folder.path();
        replies["GETTEMPLATECATEGORIES"] = "<C><Category name='PUMPS' displayname='Pumps'/></C>";
        replies["GETCURRENTSCHEDTEMPLATE"] = "pumps.xml";
        replies["GETTEMPLATELIST"] =
            "<Templates>" + Entry("pumps", "0") + Entry("fans", "0") + Entry("rooms", "-1") + "</Templates>";
        onSend = [this](const QString& name) { Follow(name); };
    }

    QString PathOf(const QString& fileName) const { return folder.filePath(fileName); }

    void Write(const QString& fileName, const QByteArray& content) const
    {
        QFile file(PathOf(fileName));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
    }

    QByteArray Content(const QString& fileName) const
    {
        QFile file(PathOf(fileName));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    /// Whether "pumps.xml", or the template that was saved as "new", has its first group without the mark.
    bool HasSavedMark() const
    {
        return Content("pumps.xml").contains(GroupMarked(false)) || Content("new.xml").contains(GroupMarked(false));
    }

    QTemporaryDir folder;

private:
    static QByteArray Template(const QByteArray& name)
    {
        return "<Template Name=\"" + name + "\" DisplayName=\"" + name + "\" Category=\"PUMPS\" AllowEdit=\"-1\">" +
               GroupMarked(true) + ">" +
               "<Item Name=\"Flow\" DisplayName=\"Flow\" "
               "ShowThisItem=\"-1\"><Location>P/Design/Flow</Location></Item>" +
               "</Group><Group Name=\"Motor\" DisplayName=\"Motor\" ShowThisGroup=\"-1\"/></Template>";
    }

    static QString Entry(const QString& name, const QString& isProtected)
    {
        return QStringLiteral("<Template name='%1' filename='%1.xml' pdsg='' readonly='%2' category='PUMPS' "
                              "defaultforcategory='0'/>")
            .arg(name, isProtected);
    }

    void Follow(const QString& name)
    {
        if (name != "UPDATESCHEDCONFIG" && name != "REMOVECONFIGENTRY" && name != "SETCURRENTSCHEDTEMPLATE")
            return;
        const auto& parameters = sent.back().message->parameters.Items();
        if (name == "UPDATESCHEDCONFIG")
            replies["GETTEMPLATELIST"] = parameters[0].value.toString();
        else if (name == "REMOVECONFIGENTRY")
            replies["GETTEMPLATELIST"].replace(parameters[0].value.toString(), "gone.xml");
        else
            replies["GETCURRENTSCHEDTEMPLATE"] = parameters[1].value.toString();
    }
};

/// The options editor and a user at the keyboard.
class HostedEditor : public HostedTool
{
public:
    explicit HostedEditor(UserInterface* userInterface = nullptr) : HostedTool("ctlSchedOptions", userInterface) {}

    void Start(IMsgRouter& router) const
    {
        Ui().IToolUI_Initialize(&router, QStringLiteral("Host"));
        if (Lives())
            Ui().IToolUI_Activate();
    }

    int Templates() const { return Find<QComboBox>("cboTemplates").count(); }

    /// Presses Cancel. A deactivated editor is disabled for good, and any other one tells its host.
    void ExpectLeft(FakeHost& host) const
    {
        const bool isEnabled = Find("cmdCancel").isEnabled();
        host.sent.clear();
        Press("cmdCancel");
        EXPECT_EQ(host.Names(), isEnabled ? QStringList{"UnloadScheduleOptions"} : QStringList());
    }

    /// Stays with a template that can be edited, or goes on to the first one; false when there is none.
    bool ChooseEditable() const
    {
        auto& templates = Find<QComboBox>("cboTemplates");
        const auto& groups = *Find<QAbstractItemView>("lstGroups").model();
        const auto isThere = [&] { return Find("cmdDelete").isEnabled() && groups.rowCount() > 0; };
        if (!isThere())
            QTest::keyClick(&templates, Qt::Key_Home);
        for (int others = templates.count() - 1; others > 0 && !isThere(); --others)
            QTest::keyClick(&templates, Qt::Key_Down);
        return isThere();
    }

    /// Edits a template and applies it, which must reach its file. False when there is nothing to edit.
    bool EditsAndApplies(const TemplateHost& host) const
    {
        if (!ChooseEditable() || !Mark())
            return false;
        EXPECT_TRUE(HasUnsavedEdits());
        const QString fileName = Find<QLabel>("templateFileName").text();
        Press("cmdApply");
        EXPECT_FALSE(HasUnsavedEdits());
        const auto mark = Find<QAbstractItemView>("lstGroups").model()->index(0, 0).data(Qt::CheckStateRole);
        EXPECT_TRUE(host.Content(fileName).contains(GroupMarked(mark == Qt::Checked))) << fileName.toStdString();
        return true;
    }

    /// Checks the first group, or takes its mark away; false when none is shown.
    bool Mark() const
    {
        auto& groups = Find<QAbstractItemView>("lstGroups");
        if (groups.model()->rowCount() == 0 || !groups.isEnabled())
            return false;
        groups.setCurrentIndex(groups.model()->index(0, 0));
        QTest::keyClick(&groups, Qt::Key_Space);
        return true;
    }
};

} // namespace schedules::testing
