// Windows that are deleted and sheets that change while the user prints.

#include "common/Error.h"
#include "controls/PrintDialogsFixture.h"

#include <QPrintDialog>
#include <QProgressDialog>

namespace schedules::testing {

namespace {

using PrintDialogsInterruptedTest = PrintDialogsTest;

} // namespace

TEST_F(PrintDialogsInterruptedTest, APreviewWhoseWindowIsDeletedIsCancelled)
{
    OnPreview([&](PrintPreview&) { window.reset(); });
    RunInWindow();
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(user.questions.empty());
}

TEST_F(PrintDialogsInterruptedTest, APreviewWhoseSheetIsDeletedWithTheWindowIsCancelled)
{
    sheet.release()->setParent(window.get());
    OnPreview([&](PrintPreview&) { window.reset(); });
    RunInWindow();
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(asked, 0);
}

TEST_F(PrintDialogsInterruptedTest, APreviewWhoseParentIsDeletedWithTheSheetIsCancelled)
{
    OnPreview([&](PrintPreview&) {
        sheet.reset();
        delete window->findChild<QWidget*>(QStringLiteral("control"));
    });
    auto* const control = new QWidget(window.get());
    control->setObjectName(QStringLiteral("control"));
    EXPECT_NO_THROW(PrintDialogs(control, user, desk).Run(job));
    EXPECT_EQ(asked, 0);
}

TEST_F(PrintDialogsInterruptedTest, APrintDialogWhoseWindowIsDeletedIsCancelled)
{
    QPrinter printer;
    OnceModal<QPrintDialog>([&](QPrintDialog&) { window.reset(); });
    EXPECT_FALSE(PrinterDesk::OfPlatform().ask(printer, 3, window.get()));
    EXPECT_EQ(window, nullptr);
}

TEST_F(PrintDialogsInterruptedTest, AProgressWhoseWindowIsDeletedIsCancelled)
{
    sheet->SetSize(1, 1'000'000);
    user.fileNames = {FileIn("list.pdf")};
    ClickInPreview("Save as PDF...");
    OnceModal<QProgressDialog>([&](QProgressDialog&) { window.reset(); });
    RunInWindow();
    EXPECT_EQ(window, nullptr);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintDialogsInterruptedTest, ASheetThatChangesUnderThePreviewIsAnError)
{
    OnPreview([&](PrintPreview&) { Change(); });
    EXPECT_THROW(Run(), Error);
}

TEST_F(PrintDialogsInterruptedTest, ASheetThatIsDeletedUnderThePreviewIsAnError)
{
    OnPreview([&](PrintPreview&) { sheet.reset(); });
    EXPECT_THROW(Run(), Error);
}

TEST_F(PrintDialogsInterruptedTest, ASheetThatChangesUnderThePrintDialogIsAnError)
{
    answer = [&](QPrinter& printer) {
        printer.setOutputFileName(FileIn("printed.pdf"));
        Change();
        return true;
    };
    ClickInPreview("Print...");
    EXPECT_THROW(Run(), Error);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintDialogsInterruptedTest, ASheetThatChangesUnderTheFileDialogIsAnError)
{
    /// While he thinks about the name, the schedule is loaded anew.
    struct SlowUser : ScriptedUserInterface
    {
        QString AskSaveFileName(const FileQuestion&) override
        {
            meanwhile();
            return fileName;
        }
        std::function<void()> meanwhile;
        QString fileName;
    };
    SlowUser slow;
    slow.meanwhile = [this] { Change(); };
    slow.fileName = FileIn("list.pdf");
    ClickInPreview("Save as PDF...");
    EXPECT_THROW(PrintDialogs(nullptr, slow, desk).Run(job), Error);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintDialogsInterruptedTest, ASheetThatChangesUnderTheProgressIsAnError)
{
    sheet->SetSize(1, 1'000'000);
    user.fileNames = {FileIn("list.pdf")};
    ClickInPreview("Save as PDF...");
    OnceModal<QProgressDialog>([&](QProgressDialog&) { Change(); });
    EXPECT_THROW(Run(), Error);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

} // namespace schedules::testing
