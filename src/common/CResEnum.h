#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace schedules {

/// The enumerations that other programs may read by name: what the view types are, and for each form which number the
/// text of each of its controls has. A key is the control's name, with "_" and its index if it is one of several of
/// that name, then what the text is for.
class CResEnum
{
    Q_GADGET

public:
    enum class eViewType
    {
        vtSCHEDULE_VIEW = 1,
        vtSELECTOR_VIEW = 2
    };
    Q_ENUM(eViewType)

    /// The template options editor.
    enum class ectlSchedOptions
    {
        cmdApply_CAPTION = 1025,
        cmdCancel_CAPTION = 1026,
        cmdOK_CAPTION = 1027,
        cmdItemMove_0_CAPTION = 1028,
        cmdItemMove_0_TOOLTIPTEXT = 1029,
        cmdItemMove_1_CAPTION = 1030,
        cmdItemMove_1_TOOLTIPTEXT = 1031,
        cmdGroupMove_1_CAPTION = 1032,
        cmdGroupMove_1_TOOLTIPTEXT = 1033,
        chkShowGroupName_CAPTION = 1034,
        cmdGroupMove_0_CAPTION = 1035,
        cmdGroupMove_0_TOOLTIPTEXT = 1036,
        Label1_2_CAPTION = 1037,
        Label1_1_CAPTION = 1038,
        lblGroupName_CAPTION = 1039,
        fraGroup_CAPTION = 1040,
        cmdSaveAs_CAPTION = 1041,
        cmdDelete_CAPTION = 1042,
        Label2_CAPTION = 1043,
        lblTemplFileName_CAPTION = 1044,
        Label1_0_CAPTION = 1045
    };
    Q_ENUM(ectlSchedOptions)

    /// The dialog that names a new template.
    enum class efrmSaveAs
    {
        chkUseNameAsCaption_CAPTION = 1046,
        Label5_CAPTION = 1048,
        Label4_CAPTION = 1049,
        Label1_CAPTION = 1050,
        Label2_CAPTION = 1051,
        Frame1_CAPTION = 1052,
        cmdCancel_CAPTION = 1053,
        cmdOK_CAPTION = 1054,
        frmSaveAs_CAPTION = 1055
    };
    Q_ENUM(efrmSaveAs)

    /// The schedule view.
    enum class ectlSchedule
    {
        cmdCancel_CAPTION = 1057,
        cmdContinue_CAPTION = 1058,
        mnuExportExcel_CAPTION = 1059,
        mnuExportHtml_CAPTION = 1060,
        mnuExport_CAPTION = 1061
    };
    Q_ENUM(ectlSchedule)

    /// The value of the first member of that name in the first enumeration of that name; both are compared exactly.
    static std::optional<int> ValueOf(const QString& enumeration, const QString& member);
};

} // namespace schedules
