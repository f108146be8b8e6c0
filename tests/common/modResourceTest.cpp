#include "common/modResource.h"

#include "common/CompiledTable.h"
#include "common/StringNumbers.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Quoted(const char* text)
{
    return QString::fromUtf8(text);
}

std::string Loaded(int number)
{
    return LoadResString(number).toStdString();
}

Texts Numbered(const char* text)
{
    return {{1064, Quoted(text)}};
}

/// A file of this content that is no compiled table.
int OpenedFile(const QByteArray& content)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(Quoted("table.qm")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    return OpenResourceModule(file.fileName());
}

QByteArray ContentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST(OpenResourceModule, GivesAPositiveHandle)
{
    const ModuleInUse module(CompiledTable(Numbered("No data")));
    EXPECT_GT(module.Handle(), 0);
    EXPECT_EQ(Loaded(1064), "No data");
}

TEST(OpenResourceModule, GivesEachModuleItsOwnHandle)
{
    const CompiledTable table(Numbered("No data"));
    const ModuleInUse first(table);
    const ModuleInUse second(table);
    EXPECT_NE(first.Handle(), second.Handle());
}

TEST(OpenResourceModule, NeverUsesAHandleAgain)
{
    const CompiledTable table(Numbered("No data"));
    const int closed = OpenResourceModule(table.FileName());
    CloseResourceModule(closed);
    const ModuleInUse module(table);
    EXPECT_GT(module.Handle(), closed);
}

TEST(OpenResourceModule, RefusesAFileThatDoesNotExist)
{
    EXPECT_EQ(OpenResourceModule(Quoted("/nowhere/table.qm")), 0);
    EXPECT_EQ(OpenResourceModule({}), 0);
}

TEST(OpenResourceModule, TakesNoFileOfASimilarName)
{
    const CompiledTable table(Numbered("No data"));
    QString longer = table.FileName();
    EXPECT_EQ(OpenResourceModule(longer.chopped(3)), 0);
    EXPECT_EQ(OpenResourceModule(longer.replace(Quoted(".qm"), Quoted("_de.qm"))), 0);
}

TEST(OpenResourceModule, RefusesAFolder)
{
    EXPECT_EQ(OpenResourceModule(QDir::tempPath()), 0);
}

TEST(OpenResourceModule, RefusesAFileThatIsNoTable)
{
    EXPECT_EQ(OpenedFile({}), 0);
    EXPECT_EQ(OpenedFile("1064 No data"), 0);
    EXPECT_EQ(OpenedFile(ContentOf(CompiledTable(Numbered("No data")).SourceName())), 0);
}

TEST(OpenResourceModule, RefusesATableThatIsCutOff)
{
    const QByteArray content = ContentOf(CompiledTable(Numbered("No data")).FileName());
    EXPECT_GT(OpenedFile(content), 0);
    EXPECT_EQ(OpenedFile(content.first(16)), 0);
    EXPECT_EQ(OpenedFile(content.first(content.size() / 2)), 0);
}

TEST(OpenResourceModule, RefusesATableWithoutTexts)
{
    EXPECT_EQ(OpenResourceModule(CompiledTable({}).FileName()), 0);
}

TEST(OpenResourceModule, NeedsTheFileOnlyWhileItOpens)
{
    auto table = std::make_unique<CompiledTable>(Numbered("No data"));
    const ModuleInUse module(*table);
    table.reset();
    EXPECT_EQ(Loaded(1064), "No data");
}

TEST(SetResourceModule, KeepsWhateverNumberItIsGiven)
{
    EXPECT_EQ(ResourceModule(), 0);
    SetResourceModule(-4711);
    EXPECT_EQ(ResourceModule(), -4711);
    SetResourceModule(0);
    EXPECT_EQ(ResourceModule(), 0);
}

TEST(SetResourceModule, SelectsAmongSeveralOpenModules)
{
    const int english = OpenResourceModule(CompiledTable(Numbered("No data")).FileName());
    const int german = OpenResourceModule(CompiledTable(Numbered("Keine Daten")).FileName());
    SetResourceModule(english);
    EXPECT_EQ(Loaded(1064), "No data");
    SetResourceModule(german);
    EXPECT_EQ(Loaded(1064), "Keine Daten");
    CloseResourceModule(english);
    EXPECT_EQ(Loaded(1064), "Keine Daten");
    CloseResourceModule(german);
    SetResourceModule(0);
}

TEST(LoadResString, NamesTheMissingNumberWithoutAModule)
{
    EXPECT_EQ(Loaded(1064), "Missing: 1064");
    EXPECT_EQ(Loaded(0), "Missing: 0");
    EXPECT_EQ(Loaded(-1), "Missing: -1");
}

TEST(LoadResString, IsEmptyForANumberThatTheModuleLacks)
{
    const ModuleInUse module(CompiledTable(Numbered("No data")));
    EXPECT_EQ(Loaded(1065), "");
    EXPECT_EQ(Loaded(106), "");
    EXPECT_EQ(Loaded(-1064), "");
}

TEST(LoadResString, IsEmptyWhenTheHandleIsNoOpenModule)
{
    SetResourceModule(1'000'000);
    EXPECT_EQ(Loaded(1064), "");
    SetResourceModule(-1);
    EXPECT_EQ(Loaded(1064), "");
    SetResourceModule(0);
}

TEST(LoadResString, IsEmptyAfterTheModuleInUseWasClosed)
{
    const ModuleInUse module(CompiledTable(Numbered("No data")));
    CloseResourceModule(module.Handle());
    EXPECT_EQ(Loaded(1064), "");
}

TEST(LoadResString, GivesTheTextUnchanged)
{
    const char* text = "  Gr\u00f6\u00dfe & <Menge> %1 \u65e5\u672c ";
    const ModuleInUse module(CompiledTable(Numbered(text)));
    EXPECT_EQ(Loaded(1064), text);
}

TEST(LoadResString, GivesUpTo2047Characters)
{
    const QString longest(2047, QLatin1Char('x'));
    const ModuleInUse module(CompiledTable({{1, longest}, {2, longest + Quoted("y")}, {3, longest.repeated(3)}}));
    EXPECT_EQ(LoadResString(1), longest);
    EXPECT_EQ(LoadResString(2), longest);
    EXPECT_EQ(LoadResString(3), longest);
}

TEST(LoadResString, CutsNoCharacterOutsideTheBasicPlaneInHalf)
{
    const QString filler(2046, QLatin1Char('x'));
    const QString fitting = filler.chopped(1) + Quoted("\U0001F600");
    const ModuleInUse module(CompiledTable({{1, filler + Quoted("\U0001F600")}, {2, fitting + Quoted("y")}}));
    EXPECT_EQ(LoadResString(1), filler);
    EXPECT_EQ(LoadResString(2), fitting);
}

TEST(ComponentText, FollowsTheLanguageOfTheModuleInUse)
{
    {
        const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("de_DE")));
        EXPECT_EQ(ComponentText("Toolbar"), Quoted("Symbolleiste"));
    }
    {
        const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("fr_FR")));
        EXPECT_EQ(ComponentText("Toolbar"), Quoted("Barre d’outils"));
    }
    {
        const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("de_AT")));
        EXPECT_EQ(ComponentText("Toolbar"), Quoted("Symbolleiste"));
    }
}

TEST(ComponentText, IsTheSourceInEnglishAndInLanguagesWithoutACatalogue)
{
    {
        const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("en_US")));
        EXPECT_EQ(ComponentText("Toolbar"), Quoted("Toolbar"));
    }
    {
        const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("ja_JP")));
        EXPECT_EQ(ComponentText("Toolbar"), Quoted("Toolbar"));
    }
}

TEST(ComponentText, IsTheSourceWithoutAModule)
{
    EXPECT_EQ(ComponentText("Toolbar"), Quoted("Toolbar"));
}

TEST(ComponentText, IsTheSourceWhenTheCatalogueLacksIt)
{
    const ModuleInUse module(CompiledTable(Numbered("x"), Quoted("de_DE")));
    EXPECT_EQ(ComponentText("Fu\u00df"), Quoted("Fu\u00df"));
}

TEST(LookUpKey, GivesTheNumberOfAKey)
{
    EXPECT_EQ(LookUpKey(Quoted("cmdOK_CAPTION"), Quoted("ectlSchedOptions")), 1027);
    EXPECT_EQ(LookUpKey(Quoted("cmdOK_CAPTION"), Quoted("efrmSaveAs")), 1054);
}

TEST(LookUpKey, GivesTheSmallestNumberWhenThereIsNoSuchMember)
{
    EXPECT_EQ(static_cast<unsigned>(LookUpKey(Quoted("cmdOK_CAPTION"), Quoted("ectlSchedule"))), 0x80000000U);
    EXPECT_EQ(static_cast<unsigned>(LookUpKey(Quoted("cmdOK_CAPTION"), Quoted("efrmPrint"))), 0x80000000U);
}
