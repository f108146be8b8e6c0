#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace schedules::host {

/// The text of an XML document. A byte-order mark decides the encoding, then the look of the first bytes, then the
/// declaration; without any of them it is UTF-8.
///
/// Bytes that are not of that encoding, and an encoding that nobody knows, end the text with U+FFFF. No XML document
/// may hold that character, so that whoever loads the text refuses it as not well-formed.
QString DecodedXml(QByteArrayView bytes);

/// The text of an XML file. Throws `HostError` when the file cannot be read.
QString ReadXmlFile(const QString& fileName);

/// A document in UTF-8, as it stands but for a declaration that names another encoding: it names UTF-8 then.
QByteArray EncodedXml(const QString& text);

/// Writes a document as `EncodedXml`, in place of the file. Throws `HostError`; the file is then as it was.
void WriteXmlFile(const QString& fileName, const QString& text);

} // namespace schedules::host
