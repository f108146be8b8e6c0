// Captions in each language, access keys, tab order, what assistive programs read, sizes, directions and palettes.

#include "common/CResEnum.h"
#include "tools/options/frmSaveAsTest.h"

#include <QAccessible>
#include <QGroupBox>
#include <QMetaEnum>
#include <QRegularExpression>

namespace schedules::testing {

namespace {

const QStringList kLanguages{"en", "de", "fr"};

QString CaptionOf(const QWidget& control)
{
    const QVariant title = control.property("title");
    return (title.isValid() ? title : control.property("text")).toString();
}

QString AccessKeyOf(const QWidget& control)
{
    static const QRegularExpression marked("&(\\w)");
    return marked.match(CaptionOf(control)).captured(1).toUpper();
}

class SaveAsLanguage : public SaveAsTest, public ::testing::WithParamInterface<QString>
{
protected:
    const ModuleInUse module{LanguageFile(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(Languages, SaveAsLanguage, ::testing::ValuesIn(kLanguages),
                         [](const auto& language) { return language.param.toStdString(); });

} // namespace

TEST_F(SaveAsTest, WithoutAModuleItHasTheCaptionsItWasDesignedWith)
{
    const frmSaveAs form(user);
    const std::pair<const char*, const char*> captions[] = {
        {"Frame1", "Specify New Template Properties"},
        {"Label1", "Name"},
        {"Label2", "Suggested FileName"},
        {"Label4", "Caption (Display name)"},
        {"Label5", "Category"},
        {"chkUseNameAsCaption", "Same as Template Name"},
        {"cmdOK", "OK"},
        {"cmdCancel", "Cancel"},
    };
    for (const auto& [control, caption] : captions)
        EXPECT_EQ(CaptionOf(*form.findChild<QWidget*>(control)), caption) << control;
    EXPECT_EQ(form.windowTitle(), "Save As... (New Template)");
}

TEST_P(SaveAsLanguage, EveryKeyOfTheTableHasItsControl)
{
    const frmSaveAs form(user);
    const auto keys = QMetaEnum::fromType<CResEnum::efrmSaveAs>();
    for (int key = 0; key < keys.keyCount(); ++key) {
        const QString name = QString(keys.key(key)).section('_', 0, 0);
        const QString expected = LoadResString(keys.value(key));
        EXPECT_FALSE(expected.isEmpty()) << keys.key(key);
        if (name == form.objectName())
            EXPECT_EQ(form.windowTitle(), expected);
        else
            EXPECT_EQ(CaptionOf(*form.findChild<QWidget*>(name)), expected) << keys.key(key);
    }
    EXPECT_TRUE(user.boxes.empty());
}

TEST_P(SaveAsLanguage, TheFormsCaptionIsTheTitleUntilTheCallerSetsOne)
{
    frmSaveAs form(user);
    form.show();
    EXPECT_EQ(form.windowTitle(), LoadResString(1055));
    form.hide();
    form.SetTitleBarCaption("Save pumps as");
    form.show();
    EXPECT_EQ(form.windowTitle(), "Save pumps as");
}

TEST_P(SaveAsLanguage, NoTwoControlsShareAnAccessKey)
{
    ShowNew();
    QStringList keys;
    for (const QWidget* control : dialog->findChildren<QWidget*>()) {
        if (const QString key = AccessKeyOf(*control); !key.isEmpty())
            keys << key;
    }
    EXPECT_EQ(keys.size(), 5) << keys.join(' ').toStdString();
    EXPECT_EQ(keys.removeDuplicates(), 0) << keys.join(' ').toStdString();
}

TEST_P(SaveAsLanguage, EachLabelsKeyLeadsToItsField)
{
    ShowNew();
    const std::pair<const char*, const char*> fields[] = {
        {"Label2", "Text2"}, {"Label4", "txtTemplCaption"}, {"Label5", "cboCategory"}, {"Label1", "Text1"}};
    for (const auto& [label, field] : fields) {
        const QString key = AccessKeyOf(*Find<QLabel>(label));
        ASSERT_FALSE(key.isEmpty()) << label;
        QTest::keyClick(dialog.get(), Qt::Key(key[0].unicode()), Qt::AltModifier);
        EXPECT_TRUE(Find<QWidget>(field)->hasFocus()) << label;
    }
    EXPECT_EQ(Box("Text1")->selectedText(), "Pumps");
}

TEST_P(SaveAsLanguage, WarningsSpeakIt)
{
    Put("Pumps.xml");
    ShowNew();
    EXPECT_EQ(Warning(), ComponentText("%1 exists already.").arg("Pumps.xml").toStdString());
    EXPECT_EQ(Warning() == "Pumps.xml exists already.", GetParam() == "en");
}

TEST_P(SaveAsLanguage, HasRoomForEverythingIn480By360)
{
    ShowNew(QString("A rather long name ").repeated(10));
    Box("Text1")->setText("a/b");
    dialog->resize(480, 360);
    QApplication::processEvents();
    EXPECT_EQ(dialog->size(), QSize(480, 360));
    for (const QWidget* control :
         dialog->findChildren<QWidget*>(QRegularExpression("^(Label|Text|lbl|txt|chk|cbo|cmd)"))) {
        const QRect place(control->mapTo(dialog.get(), QPoint()), control->size());
        EXPECT_TRUE(dialog->rect().contains(place)) << control->objectName().toStdString();
        const int needed = control->hasHeightForWidth() ? control->heightForWidth(control->width())
                                                        : control->minimumSizeHint().height();
        EXPECT_GE(control->height(), needed) << control->objectName().toStdString();
    }
}

TEST_F(SaveAsTest, TabVisitsTheFieldsFromTopToBottom)
{
    ShowNew();
    QStringList visited;
    for (int step = 0; step < 8; ++step) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(' ').toStdString(),
              "Text1 Text2 lblFullFileName txtTemplCaption chkUseNameAsCaption cboCategory cmdOK cmdCancel");
    EXPECT_TRUE(Box("Text1")->hasFocus());
}

TEST_F(SaveAsTest, EveryFieldHasANameForAssistivePrograms)
{
    ShowNew();
    const std::pair<const char*, const char*> names[] = {{"Text1", "Name"},
                                                         {"Text2", "Suggested FileName"},
                                                         {"lblFullFileName", "Full file name"},
                                                         {"txtTemplCaption", "Caption (Display name)"},
                                                         {"chkUseNameAsCaption", "Same as Template Name"},
                                                         {"cmdOK", "OK"},
                                                         {"cmdCancel", "Cancel"}};
    for (const auto& [control, name] : names) {
        const auto* accessible = QAccessible::queryAccessibleInterface(Find<QWidget>(control));
        EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), name) << control;
    }
}

TEST_F(SaveAsTest, AssistiveProgramsFindTheCategorysLabel)
{
    ShowNew();
    QObjectList labels;
    for (const auto& [related, relation] : QAccessible::queryAccessibleInterface(Categories())->relations())
        labels << (relation == QAccessible::Label ? related->object() : nullptr);
    EXPECT_TRUE(labels.contains(Find<QLabel>("Label5")));
}

TEST_F(SaveAsTest, AssistiveProgramsKnowWhetherTheCaptionIsLocked)
{
    ShowNew();
    const auto* caption = QAccessible::queryAccessibleInterface(Box("txtTemplCaption"));
    EXPECT_TRUE(caption->state().readOnly);
    Tick();
    EXPECT_FALSE(caption->state().readOnly);
}

TEST_F(SaveAsTest, TheCaptionsBackgroundTellsWhetherItIsLocked)
{
    for (const auto& [window, base] : {std::pair(Qt::lightGray, Qt::white), std::pair(Qt::darkGray, Qt::black)}) {
        Prepare();
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::Base, base);
        dialog->setPalette(palette);
        Show();
        const auto background = [this] { return Box("txtTemplCaption")->palette().color(QPalette::Base); };
        EXPECT_EQ(background(), QColor(window));
        Tick();
        EXPECT_EQ(background(), QColor(base));
        Tick();
        EXPECT_EQ(background(), QColor(window));
    }
}

TEST_F(SaveAsTest, TheBackgroundsFollowAChangedPalette)
{
    ShowNew();
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::darkBlue);
    dark.setColor(QPalette::Base, Qt::black);
    dialog->setPalette(dark);
    for (const char* box : {"Text2", "lblFullFileName", "txtTemplCaption"})
        EXPECT_EQ(Box(box)->palette().color(QPalette::Base), QColor(Qt::darkBlue)) << box;
    EXPECT_EQ(Box("Text1")->palette().color(QPalette::Base), QColor(Qt::black));
    Tick();
    EXPECT_EQ(Box("txtTemplCaption")->palette().color(QPalette::Base), QColor(Qt::black));
}

TEST_F(SaveAsTest, IsMirroredFromRightToLeft)
{
    ShowNew();
    const auto leftOf = [this](const char* name) { return Find<QWidget>(name)->mapTo(dialog.get(), QPoint()).x(); };
    EXPECT_LT(leftOf("Label1"), leftOf("Text1"));
    EXPECT_LT(leftOf("cmdOK"), leftOf("cmdCancel"));
    dialog->setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(leftOf("Label1"), leftOf("Text1"));
    EXPECT_GT(leftOf("cmdOK"), leftOf("cmdCancel"));
}

TEST_F(SaveAsTest, ALongWarningMakesRoomForItself)
{
    ShowNew();
    Click("cmdOK");
    dialog->KeepFields(QString("The host knows a template of this name in another file. ").repeated(5));
    Show();
    QApplication::processEvents();
    const auto* warning = Find<QLabel>("lblWarning");
    EXPECT_GE(warning->height(), warning->heightForWidth(warning->width()));
    dialog->resize(dialog->minimumWidth(), dialog->height());
    QApplication::processEvents();
    EXPECT_GE(warning->height(), warning->heightForWidth(warning->width())) << "also when it gets narrower";
}

TEST_F(SaveAsTest, AWarningTakesNoRoomFromTheFields)
{
    ShowNew();
    const QRect before = Box("Text2")->geometry();
    TypeName("");
    QApplication::processEvents();
    ASSERT_NE(Warning(), "");
    EXPECT_EQ(Box("Text2")->geometry(), before);
}

} // namespace schedules::testing
