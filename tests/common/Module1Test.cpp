#include "common/Module1.h"

#include "common/CompiledTable.h"
#include "common/StringNumbers.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <system_error>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Quoted(const char* text)
{
    return QString::fromUtf8(text);
}

std::string Element(const char* name, const QString& content, const QStringList& attributes = {})
{
    return ElementText(Quoted(name), content, attributes).toStdString();
}

std::string SystemText(int code)
{
    return std::system_category().message(code);
}

std::string Folder(const char* path)
{
    return FolderPathWithSeparator(Quoted(path)).toStdString();
}

/// What `ShowError` showed, as "style|title|text"; "nothing" when it showed no box.
std::string Shown(const Error& error, const char* leadingMessage = "", const char* title = "Title")
{
    ScriptedUserInterface user;
    ShowError(user, error, Quoted(leadingMessage), kExclamation, Quoted(title));
    if (user.boxes.empty())
        return user.pointers.empty() ? "nothing" : "a pointer only";
    EXPECT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
    const MessageBox& box = user.boxes.front();
    return QStringLiteral("%1|%2|%3").arg(QString::number(box.style), box.title, box.text).toStdString();
}

Error Failed(int number, const char* description, int systemCode = 0)
{
    return {number, Quoted(description), {}, systemCode};
}

/// A desktop whose pointer or boxes fail.
class BrokenUserInterface : public ScriptedUserInterface
{
public:
    Answer Show(const MessageBox& box) override
    {
        ScriptedUserInterface::Show(box);
        throw std::runtime_error("no box");
    }
    void SetPointer(Pointer) override { throw std::runtime_error("no pointer"); }
};

} // namespace

TEST(ElementText, ClosesItselfWithoutContent)
{
    EXPECT_EQ(Element("Tags", {}), "<Tags/>");
}

TEST(ElementText, EnclosesItsContent)
{
    EXPECT_EQ(Element("Id", Quoted("P-101A")), "<Id>P-101A</Id>");
}

TEST(ElementText, AppendsAttributesInOrderAndUnchanged)
{
    EXPECT_EQ(Element("Group", Quoted("X"), {Quoted(" a=\"1\""), Quoted("b='2'"), Quoted("  c")}),
              "<Group a=\"1\"b='2'  c>X</Group>");
    EXPECT_EQ(Element("Group", {}, {Quoted(" Name=\"Motor\"")}), "<Group Name=\"Motor\"/>");
}

TEST(ElementText, EscapesNothingSoThatElementsNest)
{
    EXPECT_EQ(Element("Tags", ElementText(Quoted("Tag"), Quoted("a & <b/> %1 %2"))),
              "<Tags><Tag>a & <b/> %1 %2</Tag></Tags>");
}

TEST(ElementText, TakesContentOfBlanksAsContent)
{
    EXPECT_EQ(Element("Id", Quoted(" ")), "<Id> </Id>");
}

TEST(SystemErrorText, IsEmptyForCode0)
{
    EXPECT_EQ(SystemErrorText(0), QString());
}

TEST(SystemErrorText, LeadsInWithTheLocalisedTextAndTheCode)
{
    const ModuleInUse module(CompiledTable({{kSystemError, Quoted("Systemfehler")}}));
    EXPECT_EQ(SystemErrorText(5).toStdString(), "Systemfehler 5  -  " + SystemText(5));
}

TEST(SystemErrorText, ShowsThatTheLeadInIsMissingWithoutAModule)
{
    EXPECT_EQ(SystemErrorText(13).toStdString(), "Missing: 3038 13  -  " + SystemText(13));
}

TEST(SystemErrorText, KeepsPlaceholdersOfTheLeadInAsTheyAre)
{
    const ModuleInUse module(CompiledTable({{kSystemError, Quoted("%2 %3")}}));
    EXPECT_EQ(SystemErrorText(2).toStdString(), "%2 %3 2  -  " + SystemText(2));
}

TEST(FolderPathWithSeparator, AppendsABackslash)
{
    EXPECT_EQ(Folder("C:\\data"), "C:\\data\\");
}

TEST(FolderPathWithSeparator, KeepsABackslashThatIsThere)
{
    EXPECT_EQ(Folder("C:\\data\\"), "C:\\data\\");
    EXPECT_EQ(Folder("\\"), "\\");
}

TEST(FolderPathWithSeparator, TakesASlashForNoSeparator)
{
    EXPECT_EQ(Folder("/data/"), "/data/\\");
}

TEST(FolderPathWithSeparator, IsEmptyForNothingAndForBlanks)
{
    EXPECT_EQ(Folder(""), "");
    EXPECT_EQ(Folder("   "), "");
}

TEST(FolderPathWithSeparator, TrimsBlanksAtBothEndsOnly)
{
    EXPECT_EQ(Folder("  C:\\my data  "), "C:\\my data\\");
    EXPECT_EQ(Folder(" C:\\data\\ "), "C:\\data\\");
}

TEST(FolderPathWithSeparator, TrimsNoOtherWhiteSpace)
{
    EXPECT_EQ(Folder("\tdata\n"), "\tdata\n\\");
    EXPECT_EQ(Folder("\t"), "\t\\");
    EXPECT_EQ(Folder("data\u00a0"), "data\u00a0\\");
}

TEST(ShowError, ShowsTheDescriptionWithStyleAndTitle)
{
    EXPECT_EQ(Shown(Failed(13, "Type mismatch")), "48|Title|Type mismatch");
}

TEST(ShowError, LeavesTheTitleToTheDesktopWhenThereIsNone)
{
    EXPECT_EQ(Shown(Failed(13, "Type mismatch"), "", ""), "48||Type mismatch");
}

TEST(ShowError, PutsTheLeadingMessageAboveWithAnEmptyLineBetween)
{
    EXPECT_EQ(Shown(Failed(13, "abc"), "xyz"), "48|Title|xyz\r\n\r\nabc");
}

TEST(ShowError, DropsALeadingMessageWhoseLengthHasNoBitInCommon)
{
    EXPECT_EQ(Shown(Failed(13, "a"), "xy"), "48|Title|a");
    EXPECT_EQ(Shown(Failed(13, "abcd"), "xyz"), "48|Title|abcd");
    EXPECT_EQ(Shown(Failed(13, "abc"), "xy"), "48|Title|xy\r\n\r\nabc");
}

TEST(ShowError, ShowsTheLeadingMessageAloneWhenTheErrorHasNoText)
{
    EXPECT_EQ(Shown(Failed(13, ""), "xyz"), "48|Title|xyz");
    EXPECT_EQ(Shown(Failed(0, ""), "xyz"), "48|Title|xyz");
}

TEST(ShowError, ShowsNothingWhenThereIsNoText)
{
    EXPECT_EQ(Shown(Failed(0, "")), "nothing");
    EXPECT_EQ(Shown(Failed(13, "")), "nothing");
}

TEST(ShowError, TakesNoDescriptionOfAnErrorWithoutNumberAndSystemCode)
{
    EXPECT_EQ(Shown(Failed(0, "Left over")), "nothing");
}

TEST(ShowError, TakesTheDescriptionOfASystemErrorFirst)
{
    EXPECT_EQ(Shown(Failed(0, "The disk is full", 5)), "48|Title|The disk is full");
}

TEST(ShowError, TakesTheSystemTextWhenASystemErrorHasNoDescription)
{
    const ModuleInUse module(CompiledTable({{kSystemError, Quoted("System error")}}));
    EXPECT_EQ(Shown(Failed(0, "", 5)), "48|Title|System error 5  -  " + SystemText(5));
}

TEST(ShowError, TakesNoSystemTextWhenTheErrorHasANumber)
{
    EXPECT_EQ(Shown(Failed(13, "", 5)), "nothing");
}

TEST(ShowError, ShowsTheBoxThoughThePointerFailsAndLetsNothingOut)
{
    BrokenUserInterface user;
    ShowError(user, Failed(13, "Type mismatch"), {}, kExclamation, Quoted("Title"));
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes.front().text, Quoted("Type mismatch"));
}

TEST(ShowError, ResetsThePointerBeforeTheBoxIsShown)
{
    struct : ScriptedUserInterface
    {
        Answer Show(const MessageBox& box) override
        {
            pointersBefore = pointers;
            return ScriptedUserInterface::Show(box);
        }
        std::vector<Pointer> pointersBefore;
    } user;
    ShowError(user, Failed(13, "Type mismatch"), {}, kCritical, {});
    EXPECT_EQ(user.pointersBefore, std::vector{Pointer::Default});
    EXPECT_EQ(user.boxes.at(0).style, kCritical);
}
