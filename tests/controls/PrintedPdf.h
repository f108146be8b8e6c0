#pragma once

#include "controls/paper/SheetPrinter.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <vector>

namespace schedules::testing {

/// A PDF document, read back by other programs.
class PrintedPdf
{
public:
    explicit PrintedPdf(const QByteArray& bytes)
    {
        QFile file(FileName());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    explicit PrintedPdf(const PrintJob& job) : PrintedPdf(PdfOf(job)) {}

    QString FileName() const { return m_folder.filePath(QStringLiteral("printed.pdf")); }

    /// The text of a page, from 1, line by line; runs of blanks are one, and lines without text are left out.
    std::string Text(int page) const
    {
        const QString number = QString::number(page);
        const QString text = Run(QStringLiteral("pdftotext"), {"-layout", "-f", number, "-l", number, FileName(), "-"});
        QStringList lines;
        for (const QString& line : text.split(QRegularExpression("[\n\f]"))) {
            if (!line.trimmed().isEmpty())
                lines << line.simplified();
        }
        return lines.join('\n').toStdString();
    }

    /// A line of what is said about the document: "Pages", "Title", "Page size".
    std::string Info(const QString& name) const
    {
        const QString said = Run(QStringLiteral("pdfinfo"), {FileName()});
        const QRegularExpression line("^" + name + ":\\s*(.*)$", QRegularExpression::MultilineOption);
        return line.match(said).captured(1).simplified().toStdString();
    }

    /// The page at 72 dots per inch: a pixel is a point.
    QImage Picture(int page = 1) const
    {
        const QString number = QString::number(page);
        const QString name = m_folder.filePath(QStringLiteral("page"));
        Run(QStringLiteral("pdftoppm"),
            {"-r", "72", "-png", "-singlefile", "-f", number, "-l", number, FileName(), name});
        return QImage(name + QStringLiteral(".png")).convertToFormat(QImage::Format_RGB32);
    }

    /// Where the words of the first page end at the bottom, in points from its upper edge.
    std::vector<double> WordBottoms() const
    {
        std::vector<double> bottoms;
        const QString boxes = Run(QStringLiteral("pdftotext"), {"-bbox", FileName(), "-"});
        auto words = QRegularExpression("<word .* yMax=\"([0-9.]+)\"").globalMatch(boxes);
        while (words.hasNext())
            bottoms.push_back(words.next().captured(1).toDouble());
        return bottoms;
    }

    /// A line for each font: its name, and whether it is embedded and its text can be read.
    QStringList Fonts() const
    {
        QStringList fonts = Run(QStringLiteral("pdffonts"), {FileName()}).split('\n', Qt::SkipEmptyParts).mid(2);
        for (QString& font : fonts) {
            const QStringList fields = font.simplified().split(' ');
            const qsizetype count = fields.size(); // name, type of several words, encoding, emb, sub, uni, object
            font = fields.front() + (fields[count - 5] == "yes" ? " embedded" : "") +
                   (fields[count - 3] == "yes" ? " readable" : "");
        }
        fonts.sort();
        return fonts;
    }

private:
    static QString Run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QTemporaryDir m_folder;
};

} // namespace schedules::testing
