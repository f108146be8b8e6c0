// Choosing between two values.

#include "host/window/ConflictDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

const QList<DataItem> kItems{{"PUMPS/Design/Flow", "Design flow", "Design", "DOUBLE", "m³/h"}};
const QList<Conflict> kConflicts{{{"P-1", "PUMPS/Design/Flow", "12.5", 1}, {"99", 2}},
                                 {{"P-2", "PUMPS/Design/Head", "50", 3}, {"51", 7}}};

struct ConflictDialogTest : ::testing::Test
{
    QTableWidget& Table() { return *dialog.findChild<QTableWidget*>(QStringLiteral("lstConflicts")); }

    std::string Row(int row)
    {
        QStringList cells;
        for (int column = 0; column < 4; ++column)
            cells << Table().item(row, column)->text();
        cells << Choice(row).currentText();
        return cells.join(u' ').toStdString();
    }

    QComboBox& Choice(int row) { return *qobject_cast<QComboBox*>(Table().cellWidget(row, 4)); }

    void Press(const QString& text)
    {
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == text)
                return button->click();
        }
        ADD_FAILURE() << text.toStdString();
    }

    ConflictDialog dialog{kConflicts, kItems};
};

} // namespace

TEST_F(ConflictDialogTest, ListsBothValuesAndKeepsTheirsAtFirst)
{
    EXPECT_EQ(Row(0), "P-1 Design flow (m³/h) 99 12.5 Theirs");
    EXPECT_EQ(Row(1), "P-2 PUMPS/Design/Head 51 50 Theirs");
    dialog.accept();
    EXPECT_EQ(dialog.Insisted(), QList<ValueEdit>());
}

TEST_F(ConflictDialogTest, NamesDataItemsInOneLine)
{
    dialog.show();
    const int width = Table().fontMetrics().horizontalAdvance(Table().item(0, 1)->text());
    EXPECT_GT(Table().columnWidth(1), width);
}

TEST_F(ConflictDialogTest, WhatTheUserInsistsOnReplacesWhatIsStoredNow)
{
    Choice(1).setCurrentIndex(1);
    dialog.accept();
    EXPECT_EQ(dialog.Insisted(), (QList<ValueEdit>{{"P-2", "PUMPS/Design/Head", "50", 7}}));
}

TEST_F(ConflictDialogTest, AllAreChosenAtOnce)
{
    Press("All mine");
    EXPECT_EQ(Row(0), "P-1 Design flow (m³/h) 99 12.5 Mine");
    dialog.accept();
    EXPECT_EQ(dialog.Insisted().size(), 2);
    Press("All theirs");
    EXPECT_EQ(dialog.Insisted().size(), 0);
}

TEST_F(ConflictDialogTest, CancelLeavesTheDecisionOpen)
{
    Press("Cancel");
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

} // namespace schedules::host::testing
