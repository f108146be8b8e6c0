#include "common/KeyedCollection.h"

namespace schedules {

namespace {

/// The character that begins at a place; half a pair without the other counts as one.
char32_t CharacterAt(const QString& text, qsizetype place)
{
    const QChar first = text.at(place);
    const bool isPair = first.isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(first, text.at(place + 1)) : first.unicode();
}

} // namespace

QString FoldedKey(const QString& key)
{
    QString folded;
    folded.reserve(key.size());
    while (folded.size() < key.size()) // folding does not change how long a character is
        folded += QChar::fromUcs4(QChar::toCaseFolded(CharacterAt(key, folded.size())));
    return folded;
}

} // namespace schedules
