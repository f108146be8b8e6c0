// How the editor's controls are laid out, reached by keys and told to assistive programs.

#include "OptionsTest.h"
#include "common/CompiledTable.h"

#include <QAccessible>
#include <QLabel>

#include <set>

namespace schedules::testing {

namespace {

struct Setting
{
    const char* language;
    Qt::LayoutDirection direction;
};

std::string NameOf(const ::testing::TestParamInfo<Setting>& info)
{
    const auto& [language, direction] = info.param;
    return std::string(language) + (direction == Qt::RightToLeft ? "Mirrored" : "");
}

/// The letter behind the ampersand of a text; null when there is none.
QChar AccessKey(QString text)
{
    const qsizetype at = text.replace("&&", "  ").indexOf('&');
    return at < 0 ? QChar() : text.at(at + 1).toUpper();
}

QString TextOf(const QWidget& control)
{
    const QVariant title = control.property("title");
    return title.isValid() ? title.toString() : control.property("text").toString();
}

} // namespace

class OptionsLayout : public OptionsTest, public ::testing::WithParamInterface<Setting>
{
protected:
    OptionsLayout() : module(LanguageFile(GetParam().language)) { editor->setLayoutDirection(GetParam().direction); }

    std::vector<QWidget*> Controls() const
    {
        std::vector<QWidget*> controls;
        for (QWidget* const each : editor->findChildren<QWidget*>()) {
            if (!each->objectName().isEmpty() && !each->objectName().startsWith("qt_"))
                controls.push_back(each);
        }
        return controls;
    }

    QRect PlaceOf(const QWidget& control) const { return {control.mapTo(editor.get(), QPoint()), control.size()}; }

    void ExpectWholeOn(QSize size) const
    {
        editor->resize(size);
        QApplication::processEvents();
        for (const QWidget* each : Controls()) {
            if (each->isVisible())
                ExpectWhole(*each);
        }
    }

    void ExpectWhole(const QWidget& control) const
    {
        const bool isElided = control.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        const QSize least = control.minimumSizeHint();
        EXPECT_TRUE(editor->rect().contains(PlaceOf(control))) << control.objectName().toStdString();
        EXPECT_GE(control.width(), isElided ? 0 : least.width()) << control.objectName().toStdString();
        EXPECT_GE(control.height(), control.minimumHeight() > 0 ? control.minimumHeight() : least.height())
            << control.objectName().toStdString();
    }

    ModuleInUse module;
};

INSTANTIATE_TEST_SUITE_P(All, OptionsLayout,
                         ::testing::Values(Setting{"en", Qt::LeftToRight}, Setting{"de", Qt::LeftToRight},
                                           Setting{"fr", Qt::LeftToRight}, Setting{"de", Qt::RightToLeft},
                                           Setting{"fr", Qt::RightToLeft}),
                         NameOf);

TEST_P(OptionsLayout, HasRoomOn480By360)
{
    Start();
    const QSize least = editor->minimumSizeHint();
    EXPECT_LE(least.width(), 480);
    EXPECT_LE(least.height(), 360);
}

TEST_P(OptionsLayout, ShowsAllControlsWholeOn480By360)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    ExpectWholeOn({480, 360});
}

TEST_P(OptionsLayout, ShowsAllControlsWholeInAnyScale)
{
    Start();
    QFont font = editor->font();
    for (const double scale : {1.25, 1.5, 2.0}) {
        QFont scaled = font;
        scaled.setPointSizeF(font.pointSizeF() * scale);
        editor->setFont(scaled);
        ExpectWholeOn(QSize(480, 360) * scale);
    }
}

TEST_P(OptionsLayout, LeavesRoomForANameInAnySize)
{
    Start();
    for (const QSize size : {QSize(480, 360), QSize(640, 480), QSize(800, 600), QSize(1200, 400), QSize(1600, 900)}) {
        editor->resize(size);
        QApplication::processEvents();
        EXPECT_GE(NameBox().width(), 20 * editor->fontMetrics().averageCharWidth()) << size.width();
    }
}

TEST_P(OptionsLayout, LeavesOutWhatExplainsWhereThereIsLittleRoom)
{
    Start();
    for (const char* name :
         {"Label2", "lblTemplFileName", "templateFileName", "lblGroupName", "groupName", "lblLegend", "lblDisplayName"})
    {
        editor->resize(480, 360);
        EXPECT_FALSE(Find<QWidget>(name)->isVisible()) << name;
        editor->resize(640, 480);
        EXPECT_TRUE(Find<QWidget>(name)->isVisible()) << name;
    }
}

TEST_P(OptionsLayout, NoControlCoversAnother)
{
    Start();
    editor->resize(480, 360);
    QApplication::processEvents();
    const auto controls = Controls();
    for (const QWidget* first : controls) {
        for (const QWidget* second : controls) {
            if (first == second || !first->isVisible() || !second->isVisible() || first->isAncestorOf(second) ||
                second->isAncestorOf(first))
                continue;
            EXPECT_FALSE(PlaceOf(*first).intersects(PlaceOf(*second)))
                << first->objectName().toStdString() << ' ' << second->objectName().toStdString();
        }
    }
}

TEST_P(OptionsLayout, TheListsShowSeveralEntriesOn480By360)
{
    Start();
    editor->resize(480, 360);
    QApplication::processEvents();
    ClickGroup("Design");
    for (CheckList* list : {&Groups(), &Items()})
        EXPECT_GE(list->viewport()->height(), 3 * list->visualRect(list->model()->index(0, 0)).height());
}

TEST_P(OptionsLayout, RunsInTheDirectionOfTheText)
{
    Start();
    const bool isMirrored = GetParam().direction == Qt::RightToLeft;
    const auto isBefore = [&](const QWidget& first, const QWidget& second) {
        return (PlaceOf(first).x() < PlaceOf(second).x()) != isMirrored;
    };
    EXPECT_TRUE(isBefore(*Find<QLabel>("Label1", 0), Templates()));
    EXPECT_TRUE(isBefore(Groups(), Items()));
    EXPECT_TRUE(isBefore(*Find<QWidget>("cmdSaveAs"), *Find<QWidget>("cmdDelete")));
    EXPECT_TRUE(isBefore(*Find<QWidget>("cmdOK"), *Find<QWidget>("cmdApply")));
    EXPECT_TRUE(isBefore(*Find<QWidget>("lblDisplayName"), NameBox()));
    EXPECT_TRUE(isBefore(*Find<QWidget>("cmdUpdateUDItemName"), *Find<QWidget>("cmdResetUDItemName")));
}

TEST_P(OptionsLayout, AccessKeysDoNotCollide)
{
    Start();
    ClickGroup("Design");
    std::set<QChar> keys;
    for (const QWidget* each : Controls()) {
        const QChar key = AccessKey(TextOf(*each));
        if (!key.isNull()) {
            EXPECT_TRUE(keys.insert(key).second) << TextOf(*each).toStdString();
        }
    }
    EXPECT_GE(keys.size(), 7U);
}

TEST_P(OptionsLayout, EveryControlThatTakesTheFocusIsNamedForAssistivePrograms)
{
    Start();
    std::multiset<QString> names;
    for (QWidget* const each : Controls()) {
        if (each->focusPolicy() == Qt::NoFocus || each->focusProxy())
            continue;
        const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(each);
        ASSERT_TRUE(told);
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << each->objectName().toStdString();
        EXPECT_FALSE(told->text(QAccessible::Name).contains('&')) << each->objectName().toStdString();
        names.insert(told->text(QAccessible::Name));
    }
    for (const QString& name : names)
        EXPECT_EQ(names.count(name), 1U) << name.toStdString();
}

TEST_P(OptionsLayout, LabelsLeadToTheirControls)
{
    Start();
    EXPECT_EQ(Find<QLabel>("Label1", 0)->buddy(), &Templates());
    EXPECT_EQ(Find<QLabel>("Label1", 1)->buddy(), &Groups());
    EXPECT_EQ(Find<QLabel>("Label1", 2)->buddy(), &Items());
    EXPECT_EQ(Find<QLabel>("lblDisplayName")->buddy(), &NameBox());
}

TEST_P(OptionsLayout, TabGoesThroughAllControlsInTheOrderOfReading)
{
    Start();
    ClickGroup("Design");
    MarkItem("Head");
    ClickItem("*Duty note");
    ClickGroup("Motor");
    ClickGroup("Design");
    ClickItem("*Duty note");
    TypeName("abc");
    QTest::keyClick(&Groups(), Qt::Key_Down, Qt::AltModifier);
    Templates().setFocus();
    QStringList names;
    for (int step = 0; step < 16; ++step) {
        names += QApplication::focusWidget()->objectName() + QApplication::focusWidget()->property("index").toString();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(' ').toStdString(),
              "cboTemplates cmdSaveAs cmdDelete lstGroups cmdGroupMove0 cmdGroupMove1 chkShowGroupName lstItems "
              "cmdItemMove0 txtDisplayName "
              "cmdUpdateUDItemName cmdResetUDItemName cmdOK cmdCancel cmdApply cboTemplates");
}

TEST_P(OptionsLayout, AnAccessKeyBringsTheFocusToItsControl)
{
    Start();
    for (const auto& [label, control] :
         {std::pair<int, QWidget*>(1, &Groups()), std::pair<int, QWidget*>(0, &Templates())}) {
        const QChar key = AccessKey(Find<QLabel>("Label1", label)->text());
        QTest::keyClick(editor.get(), static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
        EXPECT_EQ(QApplication::focusWidget(), control);
    }
}

} // namespace schedules::testing
