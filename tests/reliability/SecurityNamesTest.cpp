// Names that come from a host's list, or from a project on somebody else's server, lead to no file outside of their
// folder, and are nobody's markup.

#include "TemplateHost.h"
#include "host/answers/LaidOutTemplates.h"
#include "host/answers/SmallProject.h"
#include "host/base/HostError.h"
#include "host/tools/MessageModel.h"
#include "host/window/Warning.h"
#include "support/ModalDialog.h"
#include "support/ScriptedUserInterface.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <filesystem>

namespace schedules::testing {

namespace {

using host::HostError;
using host::TemplateEntry;

/// Names by which something would be read or written elsewhere, or nowhere.
const QStringList kLeadingAway{
    "../outside.xml",  "../../outside.xml", "sub/../../outside.xml", "/etc/passwd", "..", ".", "..\\outside.xml",
    "sub\\inside.xml", "a\nb.xml",          ".laid-out.json"};

std::string Drawn(const QString& folder)
{
    namespace fs = std::filesystem;
    std::string names;
    for (const auto& entry : fs::recursive_directory_iterator(folder.toStdString()))
        names += fs::relative(entry.path(), folder.toStdString()).string() + ' ';
    return names;
}

struct SecurityNames : host::testing::SmallProject
{
    void AddTemplate(const QString& fileName) const
    {
        const auto shown = project->Templates();
        project->MergeTemplates(shown, shown + QList{TemplateEntry{.name = "Bad", .fileName = fileName}},
                                {{fileName, host::testing::TemplateWith("Bad", {kFlow})}});
    }
    void RemoveTemplate(const QString& fileName) const { project->RemoveTemplate(fileName); }

    QString Folder() const { return Path("own/templates"); }
};

} // namespace

TEST_F(SecurityNames, OfAProjectsTemplatesLeadToNoOtherFile)
{
    host::LaidOutTemplates folder(*project, Folder());
    folder.LayOut();
    const std::string before = Drawn(Path("own"));
    for (const QString& name : kLeadingAway) {
        AddTemplate(name);
        EXPECT_THROW(folder.LayOut(), HostError) << name.toStdString();
        EXPECT_THROW(folder.Changed({name}), HostError) << name.toStdString();
        RemoveTemplate(name);
    }
    EXPECT_EQ(Drawn(Path("own")), before);
    EXPECT_FALSE(QFile::exists(Path("outside.xml")));
    EXPECT_NO_THROW(folder.LayOut()) << "it is well again without them";
}

TEST_F(SecurityNames, ABadOneIsToldBeforeAnythingIsWritten)
{
    AddTemplate("../outside.xml");
    host::LaidOutTemplates folder(*project, Folder());
    try {
        folder.LayOut();
        ADD_FAILURE();
    } catch (const HostError& error) {
        EXPECT_EQ(error.Line().toStdString(), "no template can have the file name \"../outside.xml\"");
    }
    EXPECT_EQ(Drawn(Path("own")), "templates ");
}

TEST_F(SecurityNames, OfAProjectItselfLeadToNoOtherFolder)
{
    const auto identified = [this](const QString& id) {
        {
            auto database = QSqlDatabase::addDatabase("QSQLITE", "hostile");
            database.setDatabaseName(Address());
            EXPECT_TRUE(database.open());
            QSqlQuery query(database);
            query.prepare("UPDATE meta SET value = ? WHERE name = 'id'");
            query.addBindValue(id);
            EXPECT_TRUE(query.exec());
        }
        QSqlDatabase::removeDatabase("hostile");
    };
    for (const char* id : {"..", "../../..", "/tmp/elsewhere", "a/../../b", ""}) {
        identified(id);
        EXPECT_THROW(host::OwnTemplateFolder(*project), HostError) << id;
    }
    identified("7c7f0b3e-8d6e-4a6c-9a55-d8b5f3e0a001");
    EXPECT_NO_THROW(host::OwnTemplateFolder(*project));
}

TEST_F(SecurityNames, OfTemplatesMakeNamesOfFilesThatStayInTheFolder)
{
    EXPECT_EQ(host::FileNameFor("Pumps"), "Pumps.xml");
    EXPECT_EQ(host::FileNameFor("../Pumps/US\\2\n"), "..-Pumps-US-2-.xml");
}

namespace {

/// A host whose list names a file outside of its folder, which looks like a template.
struct SecurityListedNames : ::testing::Test
{
    SecurityListedNames()
    {
        const QByteArray outside = host.Content("pumps.xml").replace("Design", "Secret");
        std::filesystem::create_directory(host.PathOf("in").toStdString());
        std::filesystem::create_directory(host.PathOf("in/sub").toStdString());
        host.Write("outside.xml", outside);
        host.Write("in/inside.xml", host.Content("pumps.xml"));
        host.Write("in/sub/inside.xml", host.Content("pumps.xml"));
        std::filesystem::create_symlink("../outside.xml", host.PathOf("in/link.xml").toStdString());
        std::filesystem::create_symlink("inside.xml", host.PathOf("in/near.xml").toStdString());
        host.replies["GETBUILDERPATH"] = host.PathOf("in");
    }

    void List(const QString& fileName)
    {
        host.replies["GETTEMPLATELIST"] =
            "<T><Template name='x' filename='" + EscapedXml(fileName) + "' readonly='0' category='PUMPS'/></T>";
        host.replies["GETCURRENTSCHEDTEMPLATE"] = fileName;
    }

    /// The groups that the editor shows of the file.
    std::string Groups(const QString& fileName)
    {
        List(fileName);
        const HostedEditor editor(&user);
        editor.Start(host);
        EXPECT_EQ(editor.Templates(), 1);
        QStringList groups;
        const auto* const model = editor.Find<QAbstractItemView>("lstGroups").model();
        for (int row = 0; row < model->rowCount(); ++row)
            groups += model->index(row, 0).data().toString();
        return groups.join(u' ').toStdString();
    }

    ScriptedUserInterface user;
    TemplateHost host;
};

} // namespace

TEST_F(SecurityListedNames, AreReadInTheirFolderAlone)
{
    EXPECT_EQ(Groups("inside.xml"), "Design Motor");
    EXPECT_EQ(Groups("sub\\inside.xml"), "Design Motor") << "below it is in it";
    EXPECT_EQ(Groups("near.xml"), "Design Motor") << "so is what a link in it leads to, in it";
    for (const QString& name : {QString("../outside.xml"), QString("..\\outside.xml"), QString("sub/../../outside.xml"),
                                QString("link.xml"), host.PathOf("outside.xml"), QString("/etc/passwd")})
        EXPECT_EQ(Groups(name), "") << name.toStdString();
}

TEST_F(SecurityListedNames, DeleteNothingOutsideOfTheFolder)
{
    for (const char* name : {"../outside.xml", "..\\outside.xml", "sub/../../outside.xml", "link.xml"}) {
        List(name);
        const HostedEditor editor(&user);
        editor.Start(host);
        user.answers = {Answer::Yes};
        editor.Press("cmdDelete");
    }
    EXPECT_EQ(user.boxes.size(), 4U) << "each time the user is asked";
    EXPECT_TRUE(QFile::exists(host.PathOf("outside.xml")));
}

TEST(SecurityMarkup, OfNamesInAWarningIsPlainText)
{
    Qt::TextFormat format = Qt::AutoText;
    OnceModal<QMessageBox>([&](QMessageBox& box) {
        format = box.textFormat();
        box.reject();
    });
    QWidget window;
    host::Warn(window, "there is no template <img src='/etc/passwd'>");
    EXPECT_EQ(format, Qt::PlainText);
}

TEST(SecurityMarkup, OfMessagesInATipIsPlainText)
{
    host::MessageModel model;
    host::Crossing crossing;
    crossing.reply = "<img src='/etc/passwd'>" + QString(1000, u'x');
    model.Append(crossing);
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString tip = model.index(0, column).data(Qt::ToolTipRole).toString();
        EXPECT_FALSE(tip.contains("<img")) << column;
    }
}

} // namespace schedules::testing
