#pragma once

#include "support/SheetDrawing.h"
#include "webpage/WebPage.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::testing {

/// What a program prints on its output, and what it says about errors, blanks around removed.
struct Told
{
    std::string output;
    std::string errors;
};

inline Told Asked(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(120'000)) << program.toStdString();
    return {QString::fromUtf8(process.readAllStandardOutput()).trimmed().toStdString(),
            QString::fromUtf8(process.readAllStandardError()).trimmed().toStdString()};
}

inline const QString kBrowser = QStringLiteral("/usr/bin/chromium");

/// A sheet that is written as a web page into a folder of its own.
struct WrittenPage
{
    WrittenPage() { info.title = QStringLiteral("Pumps"); }

    QString FileName() const { return folder.filePath(QStringLiteral("plan.htm")); }

    /// The whole page.
    std::string Written() const
    {
        WriteWebPage(sheet, info, FileName());
        QFile file(FileName());
        return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    /// What a browser prints that opens the page as it was written last.
    std::string Browsed(const QStringList& options) const
    {
        const QStringList common{"--headless",     "--no-sandbox",
                                 "--disable-gpu",  "--hide-scrollbars",
                                 "--no-first-run", "--user-data-dir=" + folder.filePath("profile")};
        return Asked(kBrowser, common + options + QStringList{"file://" + FileName()}).output;
    }

    /// Its table as a parser sees it.
    std::string Table() const
    {
        WriteWebPage(sheet, info, FileName());
        const QString script = QStringLiteral(SCHEDULES_SOURCE_DIR "/tests/webpage/read_page.py");
        const Told told = Asked(QStringLiteral("/usr/bin/python3"), {script, FileName()});
        EXPECT_EQ(told.errors, "");
        return told.output;
    }

    /// Puts texts into the sheet, headers first.
    void Fill(const std::vector<std::vector<const char*>>& rows)
    {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < rows[row].size(); ++column) {
                sheet.SetText(At(static_cast<int>(column), static_cast<int>(row)),
                              QString::fromUtf8(rows[row][column]));
            }
        }
        sheet.SetSize(static_cast<int>(rows[0].size()) - 1, static_cast<int>(rows.size()) - 1);
    }

    QTemporaryDir folder;
    Sheet sheet;
    PageInfo info;
};

} // namespace schedules::testing
