#pragma once

#include <QString>

#include <exception>

namespace schedules::host {

/// Something that the user must be told in one line, and that ends what he asked for.
class HostError : public std::exception
{
public:
    explicit HostError(const QString& line) : m_line(line), m_what(line.toUtf8()) {}

    const QString& Line() const { return m_line; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_line;
    QByteArray m_what;
};

/// A server does not let the user in with the password that he gave, or without one.
class LoginRefused : public HostError
{
public:
    using HostError::HostError;
};

/// Somebody else has stored another text of a template since it was looked at.
class TextsChanged : public HostError
{
public:
    using HostError::HostError;
};

} // namespace schedules::host
