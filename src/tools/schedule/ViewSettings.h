#pragma once

#include "common/CResEnum.h"
#include "tools/schedule/layout/CustomMessage.h"

#include <QString>

namespace schedules {

/// What a host sets before it shows anything; read where it is used next.
struct ViewSettings
{
    QString builderPdsg;
    int viewType = 0;
    bool printsSelections = false;
    bool selectAllTags = false;
    CustomMessageText message;

    bool IsScheduleView() const { return viewType == static_cast<int>(CResEnum::eViewType::vtSCHEDULE_VIEW); }
    bool IsSelectorView() const { return viewType == static_cast<int>(CResEnum::eViewType::vtSELECTOR_VIEW); }
};

} // namespace schedules
