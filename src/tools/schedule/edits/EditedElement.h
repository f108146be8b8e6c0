#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <utility>

namespace schedules {

/// The XML of an element that is well-formed, with a text in place of whatever it held and the attribute `Dirty` set to
/// "-1". Its name and its other attributes stay as they are written.
QByteArray EditedElement(QByteArrayView element, const QString& text);

/// Names and values, in the order of the document.
using ElementAttributes = QList<std::pair<QString, QString>>;

/// The attributes of an element that is well-formed, but for `Dirty`; none for an empty text. Prefixes are left as they
/// are: what they stand for is said outside the element.
ElementAttributes AttributesOfElement(const QByteArray& element);

} // namespace schedules
