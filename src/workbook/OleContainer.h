#pragma once

#include "workbook/RecordWriter.h"

#include <QFileDevice>

#include <cstdio>
#include <memory>

struct _GsfOutfile;
struct _GsfOutput;

namespace schedules {

/// A compound file with one stream, "Workbook", as spreadsheets expect it.
class OleContainer : public WorkbookStream
{
public:
    /// The file must be open, empty and have a handle. Throws `Error` when the container cannot be begun.
    explicit OleContainer(QFileDevice& file);
    ~OleContainer() override;
    Q_DISABLE_COPY_MOVE(OleContainer)

    void Write(std::string_view bytes) override;
    void Overwrite(std::uint32_t position, std::string_view bytes) override;

    /// Completes the container. Throws `Error` when any part of it could not be written.
    void Close();

private:
    void Require(bool success) const;
    void CloseFile();
    void Release();

    QString m_fileName;
    std::FILE* m_file = nullptr;
    _GsfOutput* m_sink = nullptr;
    _GsfOutfile* m_root = nullptr;
    _GsfOutput* m_stream = nullptr;
};

} // namespace schedules
