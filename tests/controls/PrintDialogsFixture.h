#pragma once

#include "controls/DrawnSheet.h"
#include "controls/paper/PrintDialogs.h"
#include "controls/paper/PrintPreview.h"
#include "support/ModalDialog.h"
#include "support/ScriptedUserInterface.h"

#include <QFile>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

/// A user before the print of a sheet of 50 rows: three pages of A4.
struct PrintDialogsTest : ::testing::Test
{
    PrintDialogsTest()
    {
        for (int row = 0; row <= 50; ++row)
            sheet->SetRowHeight(Row(row), 720);
        job.sheet = sheet.get();
        job.title = QStringLiteral("Pumps/newly added");
    }

    void Run() { PrintDialogs(nullptr, user, desk).Run(job); }

    /// Over a widget that owns nothing but goes with the window.
    void RunInWindow()
    {
        auto* const control = new QWidget(window.get());
        PrintDialogs(control, user, desk).Run(job);
    }

    void Change() { sheet->SetSize(1, 1); }

    QString FileIn(const QString& name) const { return folder.filePath(name); }

    static QByteArray ContentOf(const QString& fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<Sheet> sheet = DrawnSheet(QStringLiteral("Pump|Flow") + QStringLiteral("\nP|1").repeated(50));
    PrintJob job;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    ScriptedUserInterface user;
    bool hasPrinter = true;
    std::function<bool(QPrinter&)> answer = [](QPrinter&) { return false; };
    int asked = 0;
    int pagesAsked = 0;
    PrinterDesk desk{.hasPrinter = [this] { return hasPrinter; },
                     .ask =
                         [this](QPrinter& printer, int pages, QWidget*) {
                             ++asked;
                             pagesAsked = pages;
                             return answer(printer);
                         }};
    QTemporaryDir folder;
};

inline void Click(QWidget& dialog, const QString& text)
{
    for (auto* const button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "no button " << text.toStdString();
}

inline void OnPreview(const std::function<void(PrintPreview&)>& action)
{
    OnceModal<PrintPreview>(action);
}

inline void ClickInPreview(const QString& text)
{
    OnPreview([text](PrintPreview& preview) { Click(preview, text); });
}

} // namespace schedules::testing
