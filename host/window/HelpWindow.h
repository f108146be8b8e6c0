#pragma once

#include <QDialog>

class QTextBrowser;

namespace schedules::host {

/// Shows the page of help that belongs to a context, a number that a tool names.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// The first page, when there is none for the context.
    void Open(const QString& context);

private:
    QTextBrowser* m_page;
};

} // namespace schedules::host
