#pragma once

#include "model/PropertyValue.h"

#include <utility>

namespace schedules {

/// A setting of a template, a group or a data item: a name and a value.
class CProperty
{
public:
    CProperty() = default;
    Q_DISABLE_COPY_MOVE(CProperty)

    /// What place it had when it was added, counted from 1. Others may have the same after a removal.
    int ID() const { return m_id; }
    void SetID(int id) { m_id = id; }

    /// The attribute's name. Blanks at the ends are dropped. A collection goes on finding the property by the name that
    /// it had when it was added.
    const QString& Name() const { return m_name; }
    void SetName(const QString& name);

    /// The empty text at first. An object that it refers to lives at least as long as the property does.
    const PropertyValue& Value() const { return m_value; }
    void SetValue(PropertyValue value) { m_value = std::move(value); }

private:
    int m_id = 0;
    QString m_name;
    PropertyValue m_value;
};

} // namespace schedules
