// The page on paper: nothing that the table holds may be missing there.

#include "webpage/WrittenPage.h"

#include <QRegularExpression>
#include <QSet>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct PaperTest : ::testing::Test, WrittenPage
{
    void SetUp() override
    {
        if (!QFile::exists(kBrowser) || !QFile::exists(kPdfReader))
            GTEST_SKIP() << "no browser or no reader here";
    }

    /// Each cell says where it is: "c12r3".
    void Make(int columns, int rows)
    {
        for (int row = 0; row <= rows; ++row) {
            for (int column = 0; column <= columns; ++column)
                sheet.SetText(At(column, row), QStringLiteral("c%1r%2").arg(column).arg(row));
        }
        sheet.SetSize(columns, rows);
    }

    QString Printed() const
    {
        WriteWebPage(sheet, info, FileName());
        const QString paper = folder.filePath(QStringLiteral("plan.pdf"));
        Browsed({"--no-pdf-header-footer", "--print-to-pdf=" + paper});
        return QString::fromStdString(Asked(kPdfReader, {"-raw", paper, "-"}).output);
    }

    /// The cells that are not on the paper.
    std::string Missing(int columns, int rows) const
    {
        static const QRegularExpression kWords(QStringLiteral("\\s+"));
        const QStringList words = Printed().split(kWords);
        const QSet<QString> printed(words.begin(), words.end());
        QString missing;
        for (int row = 0; row <= rows; ++row) {
            for (int column = 0; column <= columns; ++column) {
                if (const auto word = QStringLiteral("c%1r%2").arg(column).arg(row); !printed.contains(word))
                    missing += word + u' ';
            }
        }
        return missing.toStdString();
    }

    const QString kPdfReader = QStringLiteral("/usr/bin/pdftotext");
};

} // namespace

TEST_F(PaperTest, AllColumnsOfAWideTableArePrinted)
{
    Make(60, 3);
    EXPECT_EQ(Missing(60, 3), "");
}

TEST_F(PaperTest, AllRowsOfAWideTableArePrinted)
{
    Make(40, 80);
    EXPECT_EQ(Missing(40, 80), "");
}

TEST_F(PaperTest, ColumnsThatAreMadeSmallerArePrinted)
{
    Make(12, 3);
    EXPECT_EQ(Missing(12, 3), "");
}

TEST_F(PaperTest, ANarrowTableIsPrintedOnce)
{
    Make(3, 2);
    EXPECT_EQ(Printed().count(QStringLiteral("c2r2")), 1);
}

TEST_F(PaperTest, AWordLongerThanItsColumnIsPrintedToItsEnd)
{
    Make(10, 1);
    for (int column = 1; column <= 10; ++column)
        sheet.SetText(At(column, 1), QString(60, u'x') + QStringLiteral("end"));
    static const QRegularExpression kBlanks(QStringLiteral("\\s+"));
    EXPECT_EQ(Printed().remove(kBlanks).count(QChar(u'x')), 600);
}
