#pragma once

#include <QString>

namespace schedules {

/// A kind of equipment that templates are made for. Blanks at the ends of its texts are dropped.
class CCategory
{
public:
    CCategory() = default;
    Q_DISABLE_COPY_MOVE(CCategory)

    const QString& Name() const { return m_name; }
    void SetName(const QString& name);

    /// What the user sees.
    const QString& DisplayName() const { return m_displayName; }
    void SetDisplayName(const QString& displayName);

    /// A text of the host's own.
    const QString& Pdsg() const { return m_pdsg; }
    void SetPdsg(const QString& pdsg);

private:
    QString m_name;
    QString m_displayName;
    QString m_pdsg;
};

} // namespace schedules
