#include "controls/desktop/SaveFileDialog.h"

#include "support/ModalDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

namespace {

constexpr int kAllFlags = 2140166; // as the workbook's dialog has them, the create prompt among them

struct SaveFileDialogTest : ::testing::Test
{
    /// Asks a user who does this in the dialog, then cancels it if it is still open.
    QString Asked(FileQuestion question, const std::function<void(QFileDialog& dialog)>& user)
    {
        question.fileName = folder.filePath(question.fileName);
        OnceModal<QFileDialog>([user](QFileDialog& dialog) {
            const QPointer guard(&dialog);
            user(dialog);
            if (guard && guard->isVisible())
                dialog.reject();
        });
        return SaveFileDialog::Ask(question, nullptr);
    }

    /// Presses Save, and gives the text of the box that comes up, in which this button is pressed.
    static QString Told(QFileDialog& dialog, QMessageBox::StandardButton button)
    {
        QString text;
        OnceModal<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            box.button(button)->click();
        });
        Accept(dialog);
        return text;
    }

    static void Accept(QDialog& dialog) { dialog.accept(); }

    static QLineEdit& Name(const QFileDialog& dialog) { return *dialog.findChild<QLineEdit*>(); }

    /// What the list of file types shows.
    static QString Type(const QFileDialog& dialog)
    {
        return dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText();
    }

    void Put(const QString& name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(SaveFileDialogTest, AFilterShowsWhatStandsBeforeTheBarAndUsesThePatternsBehind)
{
    QString type;
    QStringList filters;
    const auto look = [&](QFileDialog& dialog) {
        type = Type(dialog);
        filters = dialog.nameFilters();
    };
    Asked({.filters = {QStringLiteral("Microsoft Excel 97 Workbook(*.xls)|*.xls")}}, look);
    EXPECT_EQ(type, QStringLiteral("Microsoft Excel 97 Workbook(*.xls)"));
    EXPECT_EQ(filters, QStringList{QStringLiteral("Microsoft Excel 97 Workbook(*.xls) (*.xls)")});
    Asked({.filters = {QStringLiteral("Web Page (*.htm; *.html)|*.htm")}}, look);
    EXPECT_EQ(type, QStringLiteral("Web Page (*.htm; *.html)"));
    EXPECT_EQ(filters, QStringList{QStringLiteral("Web Page (*.htm; *.html) (*.htm)")});
    Asked({.filters = {QStringLiteral("Both|*.htm;*.html")}}, look);
    EXPECT_EQ(type, QStringLiteral("Both"));
    EXPECT_EQ(filters, QStringList{QStringLiteral("Both (*.htm *.html)")});
    Asked({.filters = {QStringLiteral("PDF documents (*.pdf)")}}, look);
    EXPECT_EQ(type, QStringLiteral("PDF documents (*.pdf)"));
}

TEST_F(SaveFileDialogTest, TheSuffixMayComeWithItsDotAndIsNotAddedTwice)
{
    const FileQuestion question{.fileName = QStringLiteral("Schedule"), .defaultSuffix = QStringLiteral(".xls")};
    EXPECT_EQ(Asked(question, Accept), folder.filePath(QStringLiteral("Schedule.xls")));
    const auto type = [](QFileDialog& dialog) {
        Name(dialog).setText(QStringLiteral("plan.xls"));
        Accept(dialog);
    };
    EXPECT_EQ(Asked(question, type), folder.filePath(QStringLiteral("plan.xls")));
}

TEST_F(SaveFileDialogTest, ANameWithWildcardsIsRefusedAndTheDialogStays)
{
    for (const char* name : {"*.htm", "plan?.htm"}) {
        const QString chosen =
            Asked({.fileName = QLatin1String(name), .defaultSuffix = QStringLiteral(".htm")}, [&](QFileDialog& dialog) {
                EXPECT_EQ(Told(dialog, QMessageBox::Ok), QStringLiteral("A file name cannot contain * or ?."));
                EXPECT_TRUE(dialog.isVisible());
                EXPECT_EQ(Name(dialog).text(), QLatin1String(name));
                Name(dialog).setText(QStringLiteral("plan"));
                Accept(dialog);
            });
        EXPECT_EQ(chosen, folder.filePath(QStringLiteral("plan.htm")));
    }
}

TEST_F(SaveFileDialogTest, AFolderThatMustExistAndDoesNotIsRefused)
{
    const FileQuestion question{.fileName = QStringLiteral("absent/plan.xls"), .flags = kAllFlags};
    const auto user = [&](QFileDialog& dialog) {
        Name(dialog).setText(folder.filePath(question.fileName));
        EXPECT_EQ(Told(dialog, QMessageBox::Ok),
                  QStringLiteral("There is no folder %1.").arg(folder.filePath(QStringLiteral("absent"))));
        EXPECT_TRUE(dialog.isVisible());
    };
    EXPECT_EQ(Asked(question, user), QString());
}

TEST_F(SaveFileDialogTest, AFileIsWrittenOverAfterOneQuestion)
{
    Put(QStringLiteral("plan.xls"));
    const FileQuestion question{
        .fileName = QStringLiteral("plan"), .defaultSuffix = QStringLiteral(".xls"), .flags = kAllFlags};
    const auto user = [](QFileDialog& dialog) {
        EXPECT_EQ(Told(dialog, QMessageBox::Yes), QStringLiteral("plan.xls exists already. Replace it?"));
        EXPECT_FALSE(dialog.isVisible()) << "asked once";
    };
    EXPECT_EQ(Asked(question, user), folder.filePath(QStringLiteral("plan.xls")));
}

TEST_F(SaveFileDialogTest, ANoToTheQuestionKeepsTheDialogOpen)
{
    Put(QStringLiteral("plan.xls"));
    const auto user = [](QFileDialog& dialog) {
        Told(dialog, QMessageBox::No);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Name(dialog).text(), QStringLiteral("plan.xls"));
    };
    EXPECT_EQ(Asked({.fileName = QStringLiteral("plan.xls"), .flags = kOverwritePrompt}, user), QString());
}

TEST_F(SaveFileDialogTest, ANewFileNeedsNoQuestionWhateverTheFlags)
{
    EXPECT_EQ(Asked({.fileName = QStringLiteral("new.xls"), .flags = kAllFlags}, Accept),
              folder.filePath(QStringLiteral("new.xls")));
}

TEST_F(SaveFileDialogTest, WithoutTheFlagNothingIsAsked)
{
    Put(QStringLiteral("plan.xls"));
    EXPECT_EQ(Asked({.fileName = QStringLiteral("plan.xls")}, Accept), folder.filePath(QStringLiteral("plan.xls")));
}

TEST_F(SaveFileDialogTest, TheEndOfItsWindowCancelsIt)
{
    auto window = std::make_unique<QWidget>();
    OnceModal<QFileDialog>([&](QFileDialog&) { window.reset(); });
    EXPECT_EQ(SaveFileDialog::Ask({.fileName = folder.filePath(QStringLiteral("plan"))}, window.get()), QString());
    EXPECT_EQ(window, nullptr);
}

TEST_F(SaveFileDialogTest, TheEndOfItsWindowEndsTheBoxOverItToo)
{
    Put(QStringLiteral("plan.xls"));
    for (const char* name : {"plan.xls", "*.xls"}) {
        auto window = std::make_unique<QWidget>();
        OnceModal<QFileDialog>([&](QFileDialog& dialog) {
            OnceModal<QMessageBox>([&](QMessageBox&) { window.reset(); });
            Accept(dialog);
        });
        const FileQuestion question{.fileName = folder.filePath(QLatin1String(name)), .flags = kAllFlags};
        EXPECT_EQ(SaveFileDialog::Ask(question, window.get()), QString());
        EXPECT_EQ(window, nullptr);
    }
}

} // namespace schedules::testing
