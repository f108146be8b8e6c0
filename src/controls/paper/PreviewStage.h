#pragma once

#include "controls/paper/SheetPrinter.h"

#include <QImage>
#include <QWidget>

namespace schedules {

/// A page of a print job on the desk, as large as there is room.
class PreviewStage : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewStage(QWidget* parent);

    /// Throws `Error` when the job cannot be laid out. A page that does not exist is the nearest one that does.
    void Show(const PrintJob& job, int page);

    /// The page that is shown, from 0, and the number of all.
    int Page() const { return m_page; }
    int PageCount() const { return m_pageCount; }

    /// The page as it is painted.
    QImage Picture() const;

    QSize sizeHint() const override { return {760, 640}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    PrintJob m_job;
    int m_page = 0;
    int m_pageCount = 0;
    QSize m_paper; ///< twips
    QImage m_picture;
};

} // namespace schedules
