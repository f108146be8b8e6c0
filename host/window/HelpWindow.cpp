#include "host/window/HelpWindow.h"

#include "host/base/DataFolder.h"

#include <QDir>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace schedules::host {

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_page(new QTextBrowser(this))
{
    setWindowTitle(tr("Equipment Schedules Help"));
    m_page->setObjectName(QStringLiteral("helpPage"));
    m_page->setSearchPaths({DataFolder(QStringLiteral("help"))});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_page);
    resize(40 * fontMetrics().averageCharWidth() * 2, 32 * fontMetrics().height());
}

void HelpWindow::Open(const QString& context)
{
    const QDir pages(DataFolder(QStringLiteral("help")));
    const QString page = context + QStringLiteral(".md");
    const QString name = pages.exists(page) ? page : QStringLiteral("index.md");
    m_page->setSource(QUrl::fromLocalFile(pages.filePath(name)), QTextDocument::MarkdownResource);
    show();
    raise();
}

} // namespace schedules::host
