#pragma once

#include "common/UserInterface.h"

#include <QLoggingCategory>
#include <QString>

#include <concepts>
#include <exception>
#include <functional>

namespace schedules {

Q_DECLARE_LOGGING_CATEGORY(kTrace)

/// Numbers of errors that are not of this component's own making.
enum ErrorNumber
{
    kOverflowError = 6,
    kOutOfMemoryError = 7,
    kTypeMismatchError = 13,
    kUnexpectedError = 51,
    kNoIndexError = 343,
    kAutomationError = 440
};

/// What a failed procedure throws inside the component. A host makes one to have it reported with `HandleError`, linked
/// with the component or not.
class Error : public std::exception
{
public:
    Error(int number, const QString& description, const QString& source = {}, int systemCode = 0)
        : m_number(number),
          m_description(description),
          m_source(source),
          m_systemCode(systemCode),
          m_what(description.toUtf8())
    {
    }

    int Number() const { return m_number; }
    const QString& Description() const { return m_description; }
    const QString& Source() const { return m_source; }

    /// The code that a failed system call left; 0 when none was involved.
    int SystemCode() const { return m_systemCode; }

    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QString m_source;
    int m_systemCode;
    QByteArray m_what;
};

/// The qualified name of a procedure, "Schedules.CSchedule.LoadScheduleData". It becomes a text when it is used as one,
/// which is when something has failed.
struct QualifiedName
{
    const char* typeName;
    const char* procedure;

    operator QString() const;
};

/// Makes the qualified names of a type's procedures.
class SourceName
{
public:
    explicit constexpr SourceName(const char* typeName) : m_typeName(typeName) {}
    constexpr QualifiedName In(const char* procedure) const { return {m_typeName, procedure}; }

private:
    const char* m_typeName;
};

/// The exception that is being handled, as an error: only to be called inside a `catch`.
Error CurrentError();

/// Writes a debug trace line.
void Trace(const QString& line);

/// The shared reporter: a trace line, the default pointer and a message box, titled with the source of what failed.
/// Never throws.
void ReportMessage(UserInterface& userInterface, const MessageBox& box) noexcept;

/// The same for an error, with its description.
void ReportError(UserInterface& userInterface, const Error& error, const QString& source) noexcept;

/// The same for the exception that is being handled: only to be called inside a `catch`. Never throws, even when there
/// is no memory left to tell of it.
void ReportCurrentError(UserInterface& userInterface, QualifiedName source) noexcept;

/// Writes a trace line of the exception that is being handled: only to be called inside a `catch`. Never throws.
void TraceIgnoredError() noexcept;

/// Runs `body` and returns what it returns. Whatever it throws is told to the shared reporter, and the result is then
/// `fallback`.
template <class Result, std::invocable Body>
Result Reported(UserInterface& userInterface, QualifiedName source, Result fallback, Body&& body)
{
    try {
        return std::invoke(body);
    } catch (...) {
        ReportCurrentError(userInterface, source);
        return fallback;
    }
}

template <std::invocable Body>
void Reported(UserInterface& userInterface, QualifiedName source, Body&& body)
{
    Reported(userInterface, source, false, [&] { return std::invoke(body), true; });
}

/// Runs what may fail; returns what went wrong, an empty text when nothing did.
template <std::invocable Body>
QString FailureOf(Body&& body)
{
    try {
        std::invoke(body);
    } catch (...) {
        return CurrentError().Description();
    }
    return {};
}

/// Runs a step whose failure must not stop what comes after it.
/// It leaves a trace line.
template <std::invocable Body>
void IgnoringErrors(Body&& body) noexcept
{
    try {
        std::invoke(body);
    } catch (...) {
        TraceIgnoredError();
    }
}

} // namespace schedules
