#pragma once

#include "host/HostProgram.h"

#include <QRegularExpression>

namespace schedules::host::testing {

/// Reads what the program has written by other programs.
class HostOutputs : public HostProgram
{
protected:
    /// The output of a program that reads a file in the test's folder.
    QByteArray By(const QString& program, const QStringList& arguments)
    {
        QProcess reader;
        reader.setWorkingDirectory(Path(QStringLiteral(".")));
        reader.start(program, arguments);
        EXPECT_TRUE(reader.waitForFinished(60'000)) << qPrintable(reader.errorString());
        EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().constData();
        return reader.readAllStandardOutput();
    }

    QByteArray WorkbookText(const QString& name)
    {
        return By(QStringLiteral("/usr/bin/python3"),
                  {"-c",
                   "import sys, xlrd\n"
                   "for sheet in xlrd.open_workbook(sys.argv[1]).sheets():\n"
                   "    print(sheet.name)\n"
                   "    for row in sheet.get_rows(): print('|'.join(str(cell.value) for cell in row))\n",
                   name});
    }

    QStringList PdfWords(const QString& name)
    {
        return QString::fromUtf8(By(QStringLiteral("pdftotext"), {"-layout", name, "-"}))
            .split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    }

    /// The values of the first sheet, line by line.
    QStringList OfficeOpenXmlValues(const QString& name)
    {
        const QString sheet = QString::fromUtf8(By("unzip", {"-p", name, "xl/worksheets/sheet1.xml"}));
        QStringList values;
        for (const auto& match : QRegularExpression("<[tv](?: [^>]*)?>([^<]*)<").globalMatch(sheet))
            values << match.captured(1);
        return values;
    }

    void ExpectDone(const Outcome& run, const QByteArray& written)
    {
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out, written);
    }
};

} // namespace schedules::host::testing
