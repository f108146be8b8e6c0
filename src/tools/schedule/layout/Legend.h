#pragma once

#include <QLabel>

namespace schedules {

class ShownTable;

/// The note below a table of tags whose first row or column does not scroll (`lblLegend`).
class Legend : public QLabel
{
    Q_OBJECT

public:
    explicit Legend(QWidget* parent);

    /// Keeps the text that it has when the table gives it none.
    void Follow(const ShownTable& table);
};

} // namespace schedules
