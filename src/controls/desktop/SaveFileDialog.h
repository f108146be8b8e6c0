#pragma once

#include "common/UserInterface.h"

#include <QFileDialog>

namespace schedules {

/// Asks for the name of a file to be written. It stays open, and tells why, for a name that no file can have, and for
/// a folder that must exist and does not. Before a file is written over it asks once, if the question's flags want it.
///
/// It is not the desktop's own dialog: that one closes with any name, and may ask about the name without its suffix.
class SaveFileDialog : public QFileDialog
{
public:
    /// A filter is what is shown, then a bar and the patterns behind it, parted by semicolons; or a filter of the
    /// toolkit.
    SaveFileDialog(const FileQuestion& question, QWidget* window);

    /// The name that the user chose, empty when he cancelled. A dialog whose window is deleted meanwhile is deleted,
    /// too, and counts as cancelled.
    static QString Ask(const FileQuestion& question, QWidget* window);

protected:
    void accept() override;

private:
    bool Refuses(const QString& fileName);
    bool MayWrite(const QString& fileName);

    int m_flags;
};

} // namespace schedules
