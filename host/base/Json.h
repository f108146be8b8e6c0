#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <initializer_list>
#include <utility>

namespace schedules::host {

// Each gives a JSON value as UTF-8. What values are made of is JSON already.

/// A lone surrogate, which is no character, becomes U+FFFD.
QByteArray JsonText(const QString& text);

QByteArray JsonFlag(bool value);

/// Keeps the order of the members, whose names must need no escaping.
QByteArray JsonObject(std::initializer_list<std::pair<const char*, QByteArray>> members);

QByteArray JsonArray(const QByteArrayList& values);

/// An array with a line of its own for every value.
QByteArray JsonLines(const QByteArrayList& values);

} // namespace schedules::host
