#include "common/KeyedCollection.h"

namespace schedules {

QString FoldedKey(const QString& key)
{
    QString folded;
    folded.reserve(key.size());
    for (const uint character : key.toUcs4())
        folded += QChar::fromUcs4(QChar::toCaseFolded(character));
    return folded;
}

} // namespace schedules
