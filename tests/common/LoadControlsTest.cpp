#include "common/CompiledTable.h"
#include "common/modResource.h"
#include "support/ScriptedUserInterface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Quoted(const char* text)
{
    return QString::fromUtf8(text);
}

/// A form whose controls have the texts and tooltips that they were designed with.
class Form
{
public:
    explicit Form(const char* name) : m_name(Quoted(name)) {}

    template <class Control>
    Control& Add(const char* name, const QVariant& index = {})
    {
        auto* control = new Control(&m_widget);
        control->setObjectName(Quoted(name));
        if (index.isValid())
            control->setProperty("index", index);
        SetDesigned(*control);
        m_controls.append(control);
        return *control;
    }

    void AddNothing() { m_controls.append(nullptr); }

    void Load() { LoadControls(m_name, m_controls, user); }

    ScriptedUserInterface user;

private:
    static void SetDesigned(QWidget& control)
    {
        for (const char* property : {"text", "title", "plainText"})
            if (control.metaObject()->indexOfProperty(property) >= 0)
                control.setProperty(property, Quoted("designed"));
        control.setToolTip(Quoted("designed"));
    }

    QString m_name;
    QWidget m_widget;
    QObjectList m_controls;
};

/// "text/tooltip" of a control.
template <class Control>
std::string Drawn(const Control& control)
{
    const bool hasTitle = control.metaObject()->indexOfProperty("title") >= 0;
    const QString text = control.property(hasTitle ? "title" : "text").toString();
    return (text + QLatin1Char('/') + control.toolTip()).toStdString();
}

/// A module in which each number up to 1100 has itself as its text.
class LoadControlsTest : public ::testing::Test
{
    static Texts EachNumber()
    {
        Texts texts;
        for (int number = 1000; number < 1100; ++number)
            texts.emplace(number, QString::number(number));
        return texts;
    }

    ModuleInUse m_module{CompiledTable(EachNumber())};
};

} // namespace

TEST_F(LoadControlsTest, SetsTheCaptionOfALabel)
{
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QLabel>("lblGroupName");
    form.Load();
    EXPECT_EQ(Drawn(control), "1039/designed");
}

TEST_F(LoadControlsTest, SetsTheCaptionOfACheckBox)
{
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QCheckBox>("chkShowGroupName");
    form.Load();
    EXPECT_EQ(Drawn(control), "1034/designed");
}

TEST_F(LoadControlsTest, SetsTheCaptionOfCommandButtons)
{
    Form form("ctlSchedOptions");
    const auto& button = form.Add<QPushButton>("cmdApply");
    const auto& toolButton = form.Add<QToolButton>("cmdDelete");
    form.Load();
    EXPECT_EQ(Drawn(button), "1025/designed");
    EXPECT_EQ(Drawn(toolButton), "1042/designed");
}

TEST_F(LoadControlsTest, SetsTheCaptionOfAFrame)
{
    Form form("frmSaveAs");
    const auto& control = form.Add<QGroupBox>("Frame1");
    form.Load();
    EXPECT_EQ(Drawn(control), "1052/designed");
}

TEST_F(LoadControlsTest, TakesTheIndexOfAnArraysMemberIntoItsKeys)
{
    Form form("ctlSchedOptions");
    const auto& up = form.Add<QPushButton>("cmdItemMove", 0);
    const auto& down = form.Add<QPushButton>("cmdItemMove", 1);
    const auto& groupUp = form.Add<QPushButton>("cmdGroupMove", 0);
    const auto& groupDown = form.Add<QPushButton>("cmdGroupMove", 1);
    form.Load();
    EXPECT_EQ(Drawn(up), "1028/1029");
    EXPECT_EQ(Drawn(down), "1030/1031");
    EXPECT_EQ(Drawn(groupUp), "1035/1036");
    EXPECT_EQ(Drawn(groupDown), "1032/1033");
}

TEST_F(LoadControlsTest, TakesTheNameAloneWhenThereIsNoIndex)
{
    Form form("ctlSchedOptions");
    const auto& member = form.Add<QPushButton>("cmdItemMove");
    const auto& single = form.Add<QPushButton>("cmdOK", 0);
    form.Load();
    EXPECT_EQ(Drawn(member), "designed/designed");
    EXPECT_EQ(Drawn(single), "designed/designed");
}

TEST_F(LoadControlsTest, NeverTakesACaptionForATextBox)
{
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QLineEdit>("lblGroupName");
    form.Load();
    EXPECT_EQ(Drawn(control), "designed/designed");
}

TEST_F(LoadControlsTest, SetsTheTooltipOfATextBoxWithoutAText)
{
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QLineEdit>("cmdItemMove", 1);
    form.Load();
    EXPECT_EQ(Drawn(control), "designed/1031");
}

TEST_F(LoadControlsTest, LeavesOtherKindsOfControlAlone)
{
    Form form("ctlSchedOptions");
    const auto& radio = form.Add<QRadioButton>("cmdItemMove", 0);
    const auto& combo = form.Add<QComboBox>("cmdItemMove", 0);
    const auto& frame = form.Add<QFrame>("cmdItemMove", 0);
    const auto& menu = form.Add<QMenu>("cmdItemMove", 0);
    const auto& text = form.Add<QPlainTextEdit>("cmdItemMove", 0);
    form.Load();
    EXPECT_EQ(Drawn(radio), "designed/designed");
    EXPECT_EQ(Drawn(combo), "/designed");
    EXPECT_EQ(Drawn(frame), "/designed");
    EXPECT_EQ(Drawn(menu), "designed/designed");
    EXPECT_EQ(text.toPlainText(), Quoted("designed"));
    EXPECT_EQ(text.toolTip(), Quoted("designed"));
}

TEST_F(LoadControlsTest, LeavesControlsWithoutKeysAsTheyWereDesigned)
{
    Form form("ctlSchedule");
    const auto& unknown = form.Add<QPushButton>("cmdApply");
    const auto& otherCase = form.Add<QPushButton>("cmdcancel");
    const auto& nameless = form.Add<QLabel>("");
    const auto& known = form.Add<QPushButton>("cmdCancel");
    form.Load();
    EXPECT_EQ(Drawn(unknown), "designed/designed");
    EXPECT_EQ(Drawn(otherCase), "designed/designed");
    EXPECT_EQ(Drawn(nameless), "designed/designed");
    EXPECT_EQ(Drawn(known), "1057/designed");
}

TEST_F(LoadControlsTest, LeavesTheControlsOfAnUnknownFormAlone)
{
    Form form("ctlSomething");
    const auto& control = form.Add<QPushButton>("cmdCancel");
    form.Load();
    EXPECT_EQ(Drawn(control), "designed/designed");
    EXPECT_TRUE(form.user.boxes.empty());
}

TEST_F(LoadControlsTest, SetsAnEmptyTextWhenTheModuleLacksTheNumber)
{
    const ModuleInUse sparse(CompiledTable({{1025, Quoted("x")}}));
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QPushButton>("cmdItemMove", 0);
    form.Load();
    EXPECT_EQ(Drawn(control), "/");
}

TEST_F(LoadControlsTest, ReportsAFailureUnderItsNameAndKeepsWhatWasSet)
{
    Form form("ctlSchedOptions");
    const auto& before = form.Add<QPushButton>("cmdOK");
    form.Add<QPushButton>("cmdItemMove", Quoted("first"));
    const auto& after = form.Add<QPushButton>("cmdCancel");
    form.Load();
    EXPECT_EQ(Drawn(before), "1027/designed");
    EXPECT_EQ(Drawn(after), "designed/designed");
    ASSERT_EQ(form.user.boxes.size(), 1U);
    EXPECT_EQ(form.user.boxes[0].title, Quoted("Schedules.modResource.LoadControls"));
    EXPECT_EQ(form.user.boxes[0].text, Quoted("The index of cmdItemMove is no number"));
}

TEST_F(LoadControlsTest, ReportsAControlThatDoesNotExist)
{
    Form form("ctlSchedOptions");
    const auto& before = form.Add<QPushButton>("cmdOK");
    form.AddNothing();
    form.Load();
    EXPECT_EQ(Drawn(before), "1027/designed");
    ASSERT_EQ(form.user.boxes.size(), 1U);
    EXPECT_EQ(form.user.boxes[0].title, Quoted("Schedules.modResource.LoadControls"));
}

TEST(LoadControls, ShowsWhichTextsAreMissingWithoutAModule)
{
    Form form("ctlSchedOptions");
    const auto& control = form.Add<QPushButton>("cmdItemMove", 0);
    form.Load();
    EXPECT_EQ(Drawn(control), "Missing: 1028/Missing: 1029");
    EXPECT_TRUE(form.user.boxes.empty());
}
