#include "host/cli/Platform.h"

#include <QLoggingCategory>

#include <clocale>
#include <langinfo.h>
#include <string_view>

namespace schedules::host {

namespace {

bool HasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void EnsureUtf8Locale()
{
    std::setlocale(LC_ALL, "");
    if (std::string_view(nl_langinfo(CODESET)) != "UTF-8")
        qputenv("LC_ALL", "C.UTF-8");
}

} // namespace

void ChoosePlatform(bool window)
{
    EnsureUtf8Locale();
    if (!window)
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && (!window || !HasDisplay()))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace schedules::host
