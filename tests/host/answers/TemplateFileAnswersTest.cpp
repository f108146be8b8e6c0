// The host's answers to the options editor, message by message.

#include "host/answers/TemplateFileAnswers.h"

#include "framework/MessageTable.h"
#include "host/TemplateFolderFiles.h"
#include "host/base/HostError.h"
#include "host/tools/HostRouter.h"

#include <QDateTime>

#include <optional>

namespace schedules::host::testing {

namespace {

class TemplateFilesTest : public ::testing::Test
{
protected:
    TemplateFilesTest() { Start(); }

    void Start(const char* current = "Pumps.xml")
    {
        host.reset();
        host.emplace(router, files.Places(current), [this](const QString& file) { kept.append(file); });
    }

    /// Sends a message of the editor with its parameters in order.
    QString Send(const char* name, std::initializer_list<QVariant> values = {})
    {
        const MessageForm& form = MessageFormOf(QString::fromLatin1(name));
        return router.Send({QStringLiteral("ctlSchedOptions"), kOwner, form.kind, BuildMessage(form, values).Text()});
    }

    /// Sends a message that fails, and gives why.
    std::string Failed(const char* name, std::initializer_list<QVariant> values = {})
    {
        try {
            Send(name, values);
        } catch (const HostError& error) {
            return error.Line().toStdString();
        }
        return "(sent)";
    }

    /// The list without the line of a template.
    static std::string ListWithout(const char* fileName)
    {
        QStringList lines = QString::fromLatin1(kTemplateList).split(u'\n');
        lines.removeIf([&](const QString& line) { return line.contains(QLatin1String(fileName)); });
        return lines.join(u'\n').toStdString();
    }

    TemplateFolderFiles files;
    HostRouter router;
    QStringList kept;
    std::optional<TemplateFileAnswers> host;
};

} // namespace

TEST_F(TemplateFilesTest, TheListAndTheCategoriesAreThoseOfTheFilesAsTheyAreNow)
{
    EXPECT_EQ(Send("GETTEMPLATELIST", {""}), kTemplateList);
    EXPECT_EQ(Send("GETTEMPLATECATEGORIES"), kCategoryList);
    files.Write("list.xml", "\xEF\xBB\xBF<Templates/>");
    files.Write("categories.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><C n='\xE9'/>");
    EXPECT_EQ(Send("GETTEMPLATELIST", {""}), "<Templates/>");
    EXPECT_EQ(Send("GETTEMPLATECATEGORIES"), "<?xml version='1.0' encoding='ISO-8859-1'?><C n='é'/>");
}

TEST_F(TemplateFilesTest, ThePathIsThatOfTheFolderFromTheRootOn)
{
    EXPECT_EQ(Send("GETBUILDERPATH", {""}), files.Path("templates"));
    TemplatePlaces relative = files.Places();
    relative.folder = QDir::current().relativeFilePath(relative.folder);
    host.reset();
    host.emplace(router, relative);
    EXPECT_EQ(QDir::cleanPath(Send("GETBUILDERPATH", {""})), QDir::cleanPath(files.Path("templates")));
    EXPECT_TRUE(QDir::isAbsolutePath(Send("GETBUILDERPATH", {""})));
}

TEST_F(TemplateFilesTest, InitialisingNeedsNoReply)
{
    EXPECT_EQ(Send("INITIALIZESCHEDOPTIONS", {""}), QString());
}

TEST_F(TemplateFilesTest, TheCurrentTemplateIsTheOneThatWasToldLast)
{
    EXPECT_EQ(Send("GETCURRENTSCHEDTEMPLATE"), "Pumps.xml");
    EXPECT_EQ(kept, QStringList());
    EXPECT_EQ(Send("SETCURRENTSCHEDTEMPLATE", {"<Template/>", "Fans.xml"}), QString());
    EXPECT_EQ(Send("GETCURRENTSCHEDTEMPLATE"), "Fans.xml");
    EXPECT_EQ(host->Current(), "Fans.xml");
    EXPECT_EQ(kept, QStringList{"Fans.xml"});
}

TEST_F(TemplateFilesTest, WithoutACurrentTemplateTheReplyIsEmpty)
{
    Start("");
    EXPECT_EQ(Send("GETCURRENTSCHEDTEMPLATE"), QString());
}

TEST_F(TemplateFilesTest, TellingTheCurrentTemplateWritesNoFile)
{
    Send("SETCURRENTSCHEDTEMPLATE", {"<Template/>", "Fans.xml"});
    EXPECT_EQ(files.Content("templates/Fans.xml"), kFanTemplate);
    EXPECT_EQ(files.Content("list.xml"), kTemplateList);
}

TEST_F(TemplateFilesTest, ANewListReplacesTheFile)
{
    const QString list = QStringLiteral("<Templates>\r\n <Template name='é &amp; &lt;'/>\r\n</Templates>");
    EXPECT_EQ(Send("UPDATESCHEDCONFIG", {list}), QString());
    EXPECT_EQ(files.Content("list.xml"), list.toStdString());
    EXPECT_EQ(Send("GETTEMPLATELIST", {""}), list);
    EXPECT_EQ(files.Content("categories.xml"), kCategoryList);
}

TEST_F(TemplateFilesTest, ANewListInAnotherEncodingIsWrittenInUtf8)
{
    Send("UPDATESCHEDCONFIG", {QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><T n='é'/>")});
    EXPECT_EQ(files.Content("list.xml"), "<?xml version='1.0' encoding='UTF-8'?><T n='é'/>");
}

TEST_F(TemplateFilesTest, TheOldListStaysWholeUntilTheNewOneIsThere)
{
    QFile before(files.Path("list.xml"));
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    Send("UPDATESCHEDCONFIG", {"<Templates/>"});
    EXPECT_EQ(before.readAll(), kTemplateList) << "the new list is another file in its place";
}

TEST_F(TemplateFilesTest, AListThatIsNoXmlIsRefusedAndNothingIsWritten)
{
    for (const char* list : {"", "templates", "<Templates>", "<Templates/>and more"}) {
        EXPECT_EQ(Failed("UPDATESCHEDCONFIG", {list}).rfind("the list of templates is no XML: ", 0), 0U) << list;
        EXPECT_EQ(files.Content("list.xml"), kTemplateList);
    }
}

TEST_F(TemplateFilesTest, AListThatCannotBeWrittenFails)
{
    ASSERT_TRUE(QFile::remove(files.Path("list.xml")) && QDir().mkdir(files.Path("list.xml")));
    const std::string failure = Failed("UPDATESCHEDCONFIG", {"<Templates/>"});
    EXPECT_EQ(failure.rfind("cannot write " + files.Path("list.xml").toStdString() + ": ", 0), 0U) << failure;
}

TEST_F(TemplateFilesTest, ADeletedTemplateLeavesTheListAndNothingElseDoes)
{
    EXPECT_EQ(Send("REMOVECONFIGENTRY", {"Pumps.xml"}), QString());
    EXPECT_EQ(files.Content("list.xml"), ListWithout("Pumps.xml"));
    EXPECT_EQ(files.Content("templates/Pumps.xml"), kPumpTemplate) << "files are the editor's";
}

TEST_F(TemplateFilesTest, LetterCaseMattersOnlyWhereThereIsAnExactMatch)
{
    Send("REMOVECONFIGENTRY", {"FANS.XML"});
    EXPECT_EQ(files.Content("list.xml"), ListWithout("Fans.xml"));
}

TEST_F(TemplateFilesTest, ATemplateThatIsNotListedChangesNothing)
{
    const QDateTime longAgo(QDate(2001, 1, 1), QTime(0, 0));
    QFile list(files.Path("list.xml"));
    ASSERT_TRUE(list.open(QIODevice::ReadWrite));
    ASSERT_TRUE(list.setFileTime(longAgo, QFileDevice::FileModificationTime));
    list.close();
    EXPECT_EQ(Send("REMOVECONFIGENTRY", {"Motors.xml"}), QString());
    EXPECT_EQ(Send("REMOVECONFIGENTRY", {""}), QString());
    EXPECT_EQ(files.Content("list.xml"), kTemplateList);
    EXPECT_EQ(QFileInfo(list.fileName()).lastModified(), longAgo);
}

TEST_F(TemplateFilesTest, NothingIsTakenFromAListThatIsNoXml)
{
    files.Write("list.xml", "<Templates><Template filename='Pumps.xml'/>");
    EXPECT_EQ(Failed("REMOVECONFIGENTRY", {"Pumps.xml"}).rfind("the list of templates is no XML: ", 0), 0U);
    EXPECT_EQ(files.Content("list.xml"), "<Templates><Template filename='Pumps.xml'/>");
}

TEST_F(TemplateFilesTest, AListThatIsGoneFailsEveryMessageAboutIt)
{
    ASSERT_TRUE(QFile::remove(files.Path("list.xml")) && QFile::remove(files.Path("categories.xml")));
    const std::string list = "cannot read " + files.Path("list.xml").toStdString() + ": ";
    EXPECT_EQ(Failed("GETTEMPLATELIST", {""}).rfind(list, 0), 0U);
    EXPECT_EQ(Failed("REMOVECONFIGENTRY", {"Pumps.xml"}).rfind(list, 0), 0U);
    EXPECT_EQ(Failed("GETTEMPLATECATEGORIES").rfind("cannot read ", 0), 0U);
    EXPECT_EQ(Send("UPDATESCHEDCONFIG", {"<Templates/>"}), QString()) << "which makes it again";
}

TEST_F(TemplateFilesTest, AFailureToKeepTheCurrentTemplateFailsTheMessage)
{
    host.reset();
    host.emplace(router, files.Places(), [](const QString&) { throw HostError(QStringLiteral("no room")); });
    EXPECT_EQ(Failed("SETCURRENTSCHEDTEMPLATE", {"<T/>", "Fans.xml"}), "no room");
}

TEST_F(TemplateFilesTest, WithItsEndNobodyAnswers)
{
    host.reset();
    EXPECT_EQ(Send("GETTEMPLATELIST", {""}), QString());
    EXPECT_EQ(Send("GETBUILDERPATH", {""}), QString());
    EXPECT_EQ(Send("GETTEMPLATECATEGORIES"), QString());
    EXPECT_EQ(Send("GETCURRENTSCHEDTEMPLATE"), QString());
    EXPECT_EQ(Send("REMOVECONFIGENTRY", {"Pumps.xml"}), QString());
    EXPECT_EQ(Send("UPDATESCHEDCONFIG", {"<Templates/>"}), QString());
    EXPECT_EQ(Send("SETCURRENTSCHEDTEMPLATE", {"<T/>", "Fans.xml"}), QString());
    EXPECT_EQ(files.Content("list.xml"), kTemplateList);
    EXPECT_EQ(kept, QStringList());
}

TEST_F(TemplateFilesTest, WhatIsNotThereIsToldAtOnce)
{
    const auto failure = [this](const TemplatePlaces& places) {
        try {
            TemplateFileAnswers(router, places, {});
        } catch (const HostError& error) {
            return error.Line();
        }
        return QStringLiteral("(opened)");
    };
    TemplatePlaces places = files.Places();
    places.folder = files.Path("absent");
    EXPECT_EQ(failure(places), QStringLiteral("there is no folder %1").arg(places.folder));
    places.folder = files.Path("list.xml");
    EXPECT_EQ(failure(places), QStringLiteral("there is no folder %1").arg(places.folder));
    places = files.Places();
    places.list = files.Path("absent");
    EXPECT_TRUE(failure(places).startsWith(QStringLiteral("cannot read %1: ").arg(places.list)));
    places = files.Places();
    places.categories = files.Path("absent");
    EXPECT_TRUE(failure(places).startsWith(QStringLiteral("cannot read %1: ").arg(places.categories)));
}

} // namespace schedules::host::testing
