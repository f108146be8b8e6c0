#include "common/CResEnum.h"

#include <QMetaEnum>
#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

/// All members of an enumeration in the order of their declaration, a line each.
std::string Drawn(const QMetaEnum& members)
{
    QStringList lines;
    for (int i = 0; i < members.keyCount(); ++i)
        lines << QStringLiteral("%1 %2").arg(members.value(i)).arg(QLatin1String(members.key(i)));
    return lines.join(QLatin1Char('\n')).toStdString();
}

template <class Enumeration>
std::string Drawn()
{
    return Drawn(QMetaEnum::fromType<Enumeration>());
}

std::optional<int> Value(const char* enumeration, const char* member)
{
    return CResEnum::ValueOf(QString::fromLatin1(enumeration), QString::fromLatin1(member));
}

} // namespace

TEST(CResEnum, DeclaresTheKeysOfTheOptionsEditorInOrder)
{
    EXPECT_EQ(Drawn<CResEnum::ectlSchedOptions>(), "1025 cmdApply_CAPTION\n"
                                                   "1026 cmdCancel_CAPTION\n"
                                                   "1027 cmdOK_CAPTION\n"
                                                   "1028 cmdItemMove_0_CAPTION\n"
                                                   "1029 cmdItemMove_0_TOOLTIPTEXT\n"
                                                   "1030 cmdItemMove_1_CAPTION\n"
                                                   "1031 cmdItemMove_1_TOOLTIPTEXT\n"
                                                   "1032 cmdGroupMove_1_CAPTION\n"
                                                   "1033 cmdGroupMove_1_TOOLTIPTEXT\n"
                                                   "1034 chkShowGroupName_CAPTION\n"
                                                   "1035 cmdGroupMove_0_CAPTION\n"
                                                   "1036 cmdGroupMove_0_TOOLTIPTEXT\n"
                                                   "1037 Label1_2_CAPTION\n"
                                                   "1038 Label1_1_CAPTION\n"
                                                   "1039 lblGroupName_CAPTION\n"
                                                   "1040 fraGroup_CAPTION\n"
                                                   "1041 cmdSaveAs_CAPTION\n"
                                                   "1042 cmdDelete_CAPTION\n"
                                                   "1043 Label2_CAPTION\n"
                                                   "1044 lblTemplFileName_CAPTION\n"
                                                   "1045 Label1_0_CAPTION");
}

TEST(CResEnum, DeclaresTheKeysOfTheSaveAsDialogInOrder)
{
    EXPECT_EQ(Drawn<CResEnum::efrmSaveAs>(), "1046 chkUseNameAsCaption_CAPTION\n"
                                             "1048 Label5_CAPTION\n"
                                             "1049 Label4_CAPTION\n"
                                             "1050 Label1_CAPTION\n"
                                             "1051 Label2_CAPTION\n"
                                             "1052 Frame1_CAPTION\n"
                                             "1053 cmdCancel_CAPTION\n"
                                             "1054 cmdOK_CAPTION\n"
                                             "1055 frmSaveAs_CAPTION");
}

TEST(CResEnum, DeclaresTheKeysOfTheScheduleViewInOrder)
{
    EXPECT_EQ(Drawn<CResEnum::ectlSchedule>(), "1057 cmdCancel_CAPTION\n"
                                               "1058 cmdContinue_CAPTION\n"
                                               "1059 mnuExportExcel_CAPTION\n"
                                               "1060 mnuExportHtml_CAPTION\n"
                                               "1061 mnuExport_CAPTION");
}

TEST(CResEnum, DeclaresTheViewTypes)
{
    EXPECT_EQ(Drawn<CResEnum::eViewType>(), "1 vtSCHEDULE_VIEW\n"
                                            "2 vtSELECTOR_VIEW");
}

TEST(CResEnum, FindsEveryDeclaredMemberByItsName)
{
    const QMetaObject& declarations = CResEnum::staticMetaObject;
    for (int i = 0; i < declarations.enumeratorCount(); ++i) {
        const QMetaEnum members = declarations.enumerator(i);
        for (int k = 0; k < members.keyCount(); ++k)
            EXPECT_EQ(Value(members.name(), members.key(k)), members.value(k)) << members.key(k);
    }
}

TEST(CResEnum, SelectsTheNumberByTheEnumerationNotByTheKeyAlone)
{
    EXPECT_EQ(Value("ectlSchedOptions", "cmdCancel_CAPTION"), 1026);
    EXPECT_EQ(Value("efrmSaveAs", "cmdCancel_CAPTION"), 1053);
    EXPECT_EQ(Value("ectlSchedule", "cmdCancel_CAPTION"), 1057);
}

TEST(CResEnum, FindsNothingInAnotherFormsEnumeration)
{
    EXPECT_EQ(Value("ectlSchedule", "cmdApply_CAPTION"), std::nullopt);
}

TEST(CResEnum, ComparesTheMemberExactly)
{
    EXPECT_EQ(Value("ectlSchedule", "cmdcancel_CAPTION"), std::nullopt);
    EXPECT_EQ(Value("ectlSchedule", "cmdCancel_caption"), std::nullopt);
    EXPECT_EQ(Value("ectlSchedule", "cmdCancel_CAPTION "), std::nullopt);
    EXPECT_EQ(Value("ectlSchedule", "cmdCancel"), std::nullopt);
    EXPECT_EQ(Value("ectlSchedule", ""), std::nullopt);
}

TEST(CResEnum, ComparesTheEnumerationExactly)
{
    EXPECT_EQ(Value("ECTLSCHEDULE", "cmdCancel_CAPTION"), std::nullopt);
    EXPECT_EQ(Value("ctlSchedule", "cmdCancel_CAPTION"), std::nullopt);
    EXPECT_EQ(Value("", "cmdCancel_CAPTION"), std::nullopt);
}

TEST(CResEnum, TakesNoQualifiedOrCombinedNames)
{
    EXPECT_EQ(Value("ectlSchedule", "ectlSchedule::cmdCancel_CAPTION"), std::nullopt);
    EXPECT_EQ(Value("eViewType", "vtSCHEDULE_VIEW|vtSELECTOR_VIEW"), std::nullopt);
}
