#pragma once

#include <QObject>

#include <functional>

namespace schedules {

class Sheet;

/// Notices when a sheet that is being printed changes or is deleted, as may happen wherever events are handled.
class SheetPrinterWatch
{
public:
    /// `changed` is called whenever the sheet changes, and when it goes.
    explicit SheetPrinterWatch(const Sheet& sheet, std::function<void()> changed = {});

    /// Throws `Error` when the sheet is not what it was.
    void RequireUnchanged() const;

private:
    void Note();

    std::function<void()> m_tell;
    bool m_changed = false;
    QObject m_listener;
};

} // namespace schedules
