#pragma once

#include "workbook/RecordWriter.h"

#include <QFileDevice>

#include <cstdio>
#include <memory>

struct _GsfOutput;

namespace schedules {

/// A compound file with one stream, "Workbook", as spreadsheets expect it.
class OleContainer : public WorkbookStream
{
public:
    /// The file must be open, empty and have a handle. Throws `Error` when the container cannot be begun.
    explicit OleContainer(QFileDevice& file);
    ~OleContainer() override = default;
    Q_DISABLE_COPY_MOVE(OleContainer)

    void Write(std::string_view bytes) override;
    void Overwrite(std::uint32_t position, std::string_view bytes) override;

    /// Completes the container. Throws `Error` when any part of it could not be written.
    void Close();

private:
    struct CloseFile
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    /// Whatever is not closed yet is closed first, since the library complains about objects that are dropped open.
    struct Release
    {
        void operator()(_GsfOutput* output) const;
    };

    using Output = std::unique_ptr<_GsfOutput, Release>;

    void Require(bool success) const;

    // Each is written into the one before, and so is gone before it.
    QString m_fileName;
    std::unique_ptr<std::FILE, CloseFile> m_file;
    Output m_sink;
    Output m_root;
    Output m_stream;
};

/// What the system says of a failure by its number; that it says nothing when there is none.
QString ReasonOf(int code);

} // namespace schedules
