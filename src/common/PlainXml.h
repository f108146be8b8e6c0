#pragma once

#include "common/XmlReader.h"

#include <concepts>
#include <optional>

namespace schedules {

/// Reads a document that is written plainly: ASCII names without prefixes, elements, attributes and text with no other
/// entities than the five predefined ones. Such are the documents that hosts write, and they are read several times
/// faster than by the full parser.
///
/// False when the document holds anything else, right or wrong: then the handler must be thrown away and the full
/// parser has the word. Whatever is read here, the full parser accepts and tells in the same calls, but for the pieces
/// in which text comes. `utf8` must be valid UTF-8.
bool ReadPlainXml(const QByteArray& utf8, XmlHandler& handler);

/// What a handler, made of `arguments`, makes of a document that is read in the faster way if it is written plainly;
/// nothing when the full parser refuses it.
template <std::derived_from<XmlHandler> Handler, class... Arguments>
std::optional<Handler> ReadEitherWay(const QByteArray& utf8, const Arguments&... arguments)
{
    for (const auto readDocument : {ReadPlainXml, ReadXml}) {
        Handler handler(arguments...);
        if (readDocument(utf8, handler))
            return handler;
    }
    return std::nullopt;
}

} // namespace schedules
