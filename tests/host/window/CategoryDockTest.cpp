#include "host/window/CategoryDock.h"

#include "host/answers/SmallProject.h"

#include <QTest>
#include <QTreeWidget>

namespace schedules::host::testing {

namespace {

struct CategoryDockTest : SmallProject
{
    CategoryDockTest()
    {
        QObject::connect(&dock, &CategoryDock::CategoryChosen, [this](const QString& category) { chosen << category; });
        QObject::connect(&dock, &CategoryDock::TemplateChosen,
                         [this](const QString& category, const QString& file) { chosen << category + ' ' + file; });
        dock.resize(300, 400);
        dock.show();
        dock.Show(*project, "pumps");
    }

    /// The entries, those of an expanded category behind it; the one that is selected between angles.
    std::string Listed() const
    {
        QStringList lines;
        for (auto* entry = tree.topLevelItem(0); entry; entry = tree.itemBelow(entry)) {
            const QString name = entry->font(0).bold() ? entry->text(0) + u'*' : entry->text(0);
            lines << (entry == tree.currentItem() ? '<' + name + '>' : name);
        }
        return lines.join(u'\n').toStdString();
    }

    void Click(QTreeWidgetItem* entry)
    {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(entry).center());
    }

    void DoubleClick(QTreeWidgetItem* entry)
    {
        Click(entry);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(entry).center());
    }

    CategoryDock dock;
    QTreeWidget& tree = *dock.findChild<QTreeWidget*>(QStringLiteral("lstCategories"));
    QStringList chosen;
};

} // namespace

TEST_F(CategoryDockTest, TheCategoryBeingWorkedOnIsOpenAndItsTemplateBold)
{
    EXPECT_EQ(Listed(), "<Pumps (2)>\nBoth*\nFlow\nFans (1)");
}

TEST_F(CategoryDockTest, ShowsWhatTheProjectHasNow)
{
    project->Put({.categories = {{"TANKS", "", ""}}, .tags = {{"P-3", "PUMPS"}}});
    project->SetCurrentTemplate("PUMPS", "Flow.xml");
    project->RemoveTemplate("Both.xml");
    dock.Show(*project, "TANKS");
    EXPECT_EQ(Listed(), "Pumps (3)\nFlow*\nFans (1)\n<TANKS (0)>") << "without a display name its name";
}

TEST_F(CategoryDockTest, WhatTheUserHasOpenedOrClosedStaysSo)
{
    tree.topLevelItem(1)->setExpanded(true);
    tree.topLevelItem(0)->setExpanded(false);
    dock.Show(*project, "FANS");
    EXPECT_FALSE(tree.topLevelItem(0)->isExpanded());
    dock.Show(*project, "PUMPS");
    EXPECT_TRUE(tree.topLevelItem(0)->isExpanded()) << "being worked on";
}

TEST_F(CategoryDockTest, AClickChoosesACategory)
{
    Click(tree.topLevelItem(1));
    EXPECT_EQ(chosen, QStringList{"FANS"});
}

TEST_F(CategoryDockTest, ADoubleClickChoosesATemplate)
{
    Click(tree.topLevelItem(0)->child(1));
    EXPECT_EQ(chosen, QStringList()) << "others would see it as well";
    DoubleClick(tree.topLevelItem(0)->child(1));
    EXPECT_EQ(chosen, QStringList{"PUMPS Flow.xml"});
}

TEST_F(CategoryDockTest, EnterChoosesAndMovingDoesNot)
{
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_EQ(chosen, QStringList());
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList{"PUMPS Both.xml"});
}

} // namespace schedules::host::testing
