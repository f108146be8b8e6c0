#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace schedules {

/// The XML of an element that is well-formed, with a text in place of whatever it held and the attribute `Dirty` set to
/// "-1". Its name and its other attributes stay as they are written.
QByteArray EditedElement(QByteArrayView element, const QString& text);

} // namespace schedules
