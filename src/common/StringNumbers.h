#pragma once

namespace schedules {

/// The numbers of the localised texts that code loads by number; each language's table has them all. Captions of
/// controls are found by key instead (see `CResEnum.h`); those that code also loads by number stand here, too.
enum StringNumber
{
    kSaveTemplateTitle = 1014,
    kCustomizeTooltip = 1017,
    kContinueCaption = 1058, ///< the button and the title of what it tells
    kExportCaption = 1061,   ///< the menu, the tooltip and the dialog for a web page
    kTemplateListUnreadable = 1062,
    kScheduleNotLoaded = 1064,
    kScheduleEmpty = 1065,
    kScheduleWithoutRows = 1066,
    kTemplateFileExists = 1067, ///< with the three lines that follow it
    kTemplateNotSaved = 1068,
    kTemplateNotOverwritten = 1069,
    kEnterDifferentName = 1070,
    kExportWorkbookTitle = 1071,

    kDataItemWithoutName = 3022,
    kGroupWithoutName = 3023,
    kDefaultTitle = 3024,
    kSystemError = 3038, ///< before a system error's code and text
    kSelectionNotShown = 3039,
    kScheduleNotShown = 3040,
    kUnsavedChangesTitle = 3042,
    kNoTagSelected = 3043,
    kSelectTagToContinue = 3044,
    kTransposeTooltip = 3045,
    kSaveTooltip = 3046,
    kPrintTooltip = 3047,
    kHelpTooltip = 3048,
    kCloseCaption = 3049,
    kPrintSelectionsTooltip = 3050,
    kSelectionNotLoadable = 3053,
    kScheduleNotLoadable = 3054,
    kExported = 3056,
    kExportedFile = 3057, ///< before the file's name
    kExportTitle = 3058,
    kNotExported = 3059,
    kExportLogFile = 3060, ///< before the file's name
    kNothingToPrint = 3061,
    kSelectTagToPrint = 3062,
    kPrintAgain = 3063,
    kPrintSelectionsTitle = 3064,
    kDefaultTemplateWarning = 3066,
    kDeleteTemplateTitle = 3067,
    kDeleteTemplateQuestion = 3068,
    kSaveTemplateAsTitle = 3069,
    kGroupFrameSuffix = 3070, ///< after a group's name
    kNoCurrentTemplate = 3071,
    kTemplateTextMissing = 3072,
    kTemplateFolderUnknown = 3073,
    kTemplateProtected = 3074,
    kTemplateNotParsable = 3075,
    kTemplateFileNotDeleted = 3076,
    kTemplateFramePrefix = 3077 ///< before the current template's name
};

} // namespace schedules
