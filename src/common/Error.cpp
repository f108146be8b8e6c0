#include "common/Error.h"

#include <new>

namespace schedules {

Q_LOGGING_CATEGORY(kTrace, "schedules.trace", QtInfoMsg)

namespace {
constexpr auto kComponentName = "Schedules";
}

QualifiedName::operator QString() const
{
    return QStringLiteral("%1.%2.%3")
        .arg(QLatin1String(kComponentName), QLatin1String(typeName), QLatin1String(procedure));
}

Error CurrentError()
{
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {kOutOfMemoryError, QStringLiteral("Out of memory")};
    } catch (const std::exception& error) {
        return {kUnexpectedError, QString::fromUtf8(error.what())};
    } catch (...) {
        return {kUnexpectedError, QStringLiteral("Unexpected error")};
    }
}

void Trace(const QString& line)
{
    qCDebug(kTrace).noquote() << line;
}

void TraceIgnoredError() noexcept
{
    if (!kTrace().isDebugEnabled())
        return;
    try {
        Trace(QStringLiteral("Ignored: ") + CurrentError().Description());
    } catch (...) {
        return;
    }
}

void ReportMessage(UserInterface& userInterface, const MessageBox& box) noexcept
{
    IgnoringErrors([&] {
        Trace(box.title + QStringLiteral(": ") + box.text);
        userInterface.SetPointer(Pointer::Default);
        userInterface.Show(box);
    });
}

void ReportError(UserInterface& userInterface, const Error& error, const QString& source) noexcept
{
    IgnoringErrors([&] { ReportMessage(userInterface, {error.Description(), kExclamation, source}); });
}

void ReportCurrentError(UserInterface& userInterface, QualifiedName source) noexcept
{
    IgnoringErrors([&] { ReportError(userInterface, CurrentError(), source); });
}

} // namespace schedules
