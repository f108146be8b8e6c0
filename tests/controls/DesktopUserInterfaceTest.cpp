#include "controls/desktop/DesktopUserInterface.h"

#include "support/ModalDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

namespace {

struct Shown
{
    Answer answer{};
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

Shown Answered(const MessageBox& box, QMessageBox::StandardButton button)
{
    Shown shown;
    DesktopUserInterface userInterface(nullptr);
    OnceModal<QMessageBox>([&](QMessageBox& dialog) {
        shown.text = dialog.text();
        shown.title = dialog.windowTitle();
        shown.icon = dialog.icon();
        shown.buttons = dialog.standardButtons();
        QTest::mouseClick(dialog.button(button), Qt::LeftButton);
    });
    shown.answer = userInterface.Show(box);
    return shown;
}

MessageBox Box(int style)
{
    return {.text = QStringLiteral("<b>Save?</b>"), .style = style, .title = QStringLiteral("Schedule")};
}

int OverrideCursors()
{
    std::vector<QCursor> cursors;
    while (const QCursor* cursor = QApplication::overrideCursor()) {
        cursors.push_back(*cursor);
        QApplication::restoreOverrideCursor();
    }
    for (auto cursor = cursors.rbegin(); cursor != cursors.rend(); ++cursor)
        QApplication::setOverrideCursor(*cursor);
    return static_cast<int>(cursors.size());
}

} // namespace

TEST(DesktopUserInterface, BoxesShowTextTitleAndIcon)
{
    const Shown shown = Answered(Box(kExclamation), QMessageBox::Ok);
    EXPECT_EQ(shown.text, QStringLiteral("<b>Save?</b>"));
    EXPECT_EQ(shown.title, QStringLiteral("Schedule"));
    EXPECT_EQ(shown.icon, QMessageBox::Warning);
    EXPECT_EQ(shown.buttons, QMessageBox::Ok);
    EXPECT_EQ(Answered(Box(kCritical), QMessageBox::Ok).icon, QMessageBox::Critical);
    EXPECT_EQ(Answered(Box(kQuestion), QMessageBox::Ok).icon, QMessageBox::Question);
    EXPECT_EQ(Answered(Box(kInformation), QMessageBox::Ok).icon, QMessageBox::Information);
    EXPECT_EQ(Answered(Box(kOkOnly), QMessageBox::Ok).icon, QMessageBox::NoIcon);
}

TEST(DesktopUserInterface, TheStyleSaysWhichAnswersThereAre)
{
    EXPECT_EQ(Answered(Box(kOkOnly), QMessageBox::Ok).answer, Answer::Ok);
    EXPECT_EQ(Answered(Box(kYesNo | kQuestion), QMessageBox::Yes).answer, Answer::Yes);
    EXPECT_EQ(Answered(Box(kYesNo), QMessageBox::No).answer, Answer::No);
    EXPECT_EQ(Answered(Box(kYesNoCancel), QMessageBox::No).answer, Answer::No);
    const Shown shown = Answered(Box(kYesNoCancel | kQuestion), QMessageBox::Cancel);
    EXPECT_EQ(shown.answer, Answer::Cancel);
    EXPECT_EQ(shown.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

TEST(DesktopUserInterface, TheApplicationsNameIsTheTitleOfBoxesWithoutOne)
{
    QApplication::setApplicationDisplayName(QStringLiteral("Plant"));
    EXPECT_EQ(Answered({.text = QStringLiteral("text")}, QMessageBox::Ok).title, QStringLiteral("Plant"));
    QApplication::setApplicationDisplayName(QString());
}

TEST(DesktopUserInterface, DialogsStandOverTheWindowOfTheirParent)
{
    QWidget window;
    QWidget child(&window);
    DesktopUserInterface userInterface(&child);
    const QWidget* over = nullptr;
    OnceModal<QMessageBox>([&](QMessageBox& dialog) {
        over = dialog.parentWidget();
        dialog.reject();
    });
    userInterface.Show(Box(kOkOnly));
    EXPECT_EQ(over, &window);
}

TEST(DesktopUserInterface, ABoxWhoseWindowIsDeletedIsCancelled)
{
    for (const int style : std::array<int, 3>{kOkOnly, kYesNo, kYesNoCancel}) {
        auto window = std::make_unique<QWidget>();
        auto userInterface = std::make_unique<DesktopUserInterface>(window.get());
        OnceModal<QMessageBox>([&](QMessageBox&) {
            userInterface.reset();
            window.reset();
        });
        EXPECT_EQ(userInterface->Show(Box(style)), Answer::Cancel);
        EXPECT_EQ(window, nullptr);
    }
}

TEST(DesktopUserInterface, AFileDialogWhoseWindowIsDeletedGivesNoName)
{
    auto window = std::make_unique<QWidget>();
    auto userInterface = std::make_unique<DesktopUserInterface>(window.get());
    OnceModal<QFileDialog>([&](QFileDialog&) {
        userInterface.reset();
        window.reset();
    });
    EXPECT_EQ(userInterface->AskSaveFileName({.fileName = QStringLiteral("plan")}), QString());
    EXPECT_EQ(window, nullptr);
}

TEST(DesktopUserInterface, TheHourglassNeverStacksAndLeavesOthersAlone)
{
    QApplication::setOverrideCursor(Qt::CrossCursor);
    {
        DesktopUserInterface userInterface(nullptr);
        userInterface.SetPointer(Pointer::Default);
        EXPECT_EQ(OverrideCursors(), 1);
        userInterface.SetPointer(Pointer::Hourglass);
        userInterface.SetPointer(Pointer::Hourglass);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(OverrideCursors(), 2);
        userInterface.SetPointer(Pointer::Default);
        EXPECT_EQ(OverrideCursors(), 1);
        userInterface.SetPointer(Pointer::Hourglass);
    }
    EXPECT_EQ(OverrideCursors(), 1) << "it ends with who has set it";
    QApplication::restoreOverrideCursor();
}

TEST(DesktopUserInterface, DialogsHaveTheOrdinaryPointerWhileTheHourglassIsShown)
{
    DesktopUserInterface userInterface(nullptr);
    userInterface.SetPointer(Pointer::Hourglass);
    const auto close = [](QDialog& dialog) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        dialog.reject();
    };
    OnceModal<QMessageBox>(close);
    userInterface.Show(Box(kOkOnly));
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    OnceModal<QFileDialog>(close);
    userInterface.AskSaveFileName({});
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(OverrideCursors(), 1);
}

TEST(DesktopUserInterface, DialogsLeaveThePointersOfTheirWidgetsAloneOtherwise)
{
    DesktopUserInterface userInterface(nullptr);
    OnceModal<QMessageBox>([](QDialog& dialog) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        dialog.reject();
    });
    userInterface.Show(Box(kOkOnly));
}

TEST(DesktopUserInterface, ADialogInWhichTheHourglassEndsLeavesNoPointerBehind)
{
    for (const bool isDeleted : {true, false}) {
        auto userInterface = std::make_unique<DesktopUserInterface>(nullptr);
        userInterface->SetPointer(Pointer::Hourglass);
        OnceModal<QMessageBox>([&](QDialog& dialog) {
            if (isDeleted)
                userInterface.reset();
            else
                userInterface->SetPointer(Pointer::Default);
            dialog.reject();
        });
        userInterface->Show(Box(kOkOnly));
        EXPECT_EQ(OverrideCursors(), 0);
    }
}

TEST(DesktopUserInterface, AsksForAFileNameAndAddsTheSuffix)
{
    const QTemporaryDir folder;
    DesktopUserInterface userInterface(nullptr);
    QStringList filters;
    QString title;
    OnceModal<QFileDialog>([&](QFileDialog& dialog) {
        filters = dialog.nameFilters();
        title = dialog.windowTitle();
        dialog.setDirectory(folder.path());
        dialog.findChild<QLineEdit*>()->setText(QStringLiteral("plan"));
        static_cast<QDialog&>(dialog).accept();
    });
    const QString name = userInterface.AskSaveFileName({.title = QStringLiteral("Export"),
                                                        .fileName = QStringLiteral("Schedule"),
                                                        .defaultSuffix = QStringLiteral(".xls"),
                                                        .filters = {QStringLiteral("Workbook (*.xls)")}});
    EXPECT_EQ(name, folder.filePath(QStringLiteral("plan.xls")));
    EXPECT_EQ(filters, QStringList{QStringLiteral("Workbook (*.xls)")});
    EXPECT_EQ(title, QStringLiteral("Export"));
}

TEST(DesktopUserInterface, ProposesTheFileName)
{
    DesktopUserInterface userInterface(nullptr);
    QString proposed;
    OnceModal<QFileDialog>([&](QFileDialog& dialog) {
        proposed = dialog.findChild<QLineEdit*>()->text();
        dialog.reject();
    });
    const QString name = userInterface.AskSaveFileName({.fileName = QStringLiteral("Schedule")});
    EXPECT_EQ(proposed, QStringLiteral("Schedule"));
    EXPECT_EQ(name, QString()) << "cancelled";
}

TEST(DesktopUserInterface, Beeps)
{
    DesktopUserInterface(nullptr).Beep();
}

} // namespace schedules::testing
