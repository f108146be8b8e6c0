#pragma once

#include "host/project/ProjectTypes.h"
#include "host/schedule/NumberText.h"
#include "host/schedule/TemplateLayout.h"
#include "host/schedule/Units.h"

#include <optional>

namespace schedules::host {

/// The cells of one data item in a schedule: how each of its values is shown.
class ItemCells
{
public:
    /// The values are looked at as long as this lives. `editable` says whether the schedule as such may be edited.
    ItemCells(const ItemLayout& layout, const DataItem& item, const QList<StoredValue>& values, bool editable);

    /// In which values are shown: the template's unit, but the item's own where there is no way from one to the other.
    const QString& Unit() const { return m_unit; }

    /// The cell of the tag with that index, as XML.
    void AppendTo(QString& xml, qsizetype tag) const;

private:
    QString ShownText(const QString& stored) const;
    QString ShownNumber(const QString& stored) const;

    const QList<StoredValue>& m_values;
    QString m_unit;
    std::optional<UnitConversion> m_conversion; ///< nothing when values are shown in their own unit
    std::optional<NumberFormat> m_format;
    bool m_isCheckBox;
    bool m_editable;
    QString m_start; ///< of each cell, without the attributes of its value
};

} // namespace schedules::host
