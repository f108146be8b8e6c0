#pragma once

#include "spread/PrintSetup.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <functional>

namespace schedules {

class Sheet;

/// What is decided about the printing of a schedule, with its defaults. See `CSchedule`.
struct PrintChoices
{
    bool smart = false;
    bool header = true;
    bool border = true;
    bool grid = true;
    bool colHeaders = true;
    bool rowHeaders = true;
    bool shadows = false;

    // Kept for whoever sets them.
    bool footer = true;
    bool projectProperties = false;
    QString headerText;
    QString footerText;
    QString jobName;
    QString abortMsg;
    std::int16_t pageStart = 0;
    std::int16_t pageEnd = 0;
    std::int16_t type = 0;
};

/// What pages are dated by.
using PageClock = std::function<QDateTime()>;

/// The header of a page in print codes, dated unless there is no clock. `written` is how a text stands among the codes.
QString PageHeader(const QString& title, const PageClock& clock, QString (*written)(QString text));

/// Prints a whole sheet with a header in print codes.
void Print(const Sheet& sheet, ISheetPrinter& printer, const PrintChoices& choices, const QString& header);

} // namespace schedules
