#pragma once

#include <QByteArray>

namespace schedules {
class CTemplates;
}

namespace schedules::host {

/// The catalogue as a JSON array in UTF-8, with a line of its own for every template, in its order.
QByteArray CatalogueJson(const CTemplates& catalogue);

} // namespace schedules::host
