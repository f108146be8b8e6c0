#include "workbook/OleContainer.h"

#include "common/FileReplacement.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <gsf/gsf.h>
#include <unistd.h>

namespace schedules {

namespace {

/// {00020820-0000-0000-C000-000000000046}, as it lies in a container.
constexpr std::array<guint8, 16> kWorkbookClass{0x20, 0x08, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};

const guint8* BytesOf(std::string_view bytes)
{
    return reinterpret_cast<const guint8*>(bytes.data());
}

bool Closed(GsfOutput* output)
{
    return gsf_output_is_closed(output) || gsf_output_close(output);
}

} // namespace

OleContainer::OleContainer(QFileDevice& file) : m_fileName(file.fileName())
{
    gsf_init();
    const int handle = ::dup(file.handle());
    m_file = handle < 0 ? nullptr : ::fdopen(handle, "wb");
    Require(m_file);
    m_sink = gsf_output_stdio_new_FILE(m_fileName.toUtf8().constData(), m_file, true);
    m_root = gsf_outfile_msole_new(m_sink);
    gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(m_root), kWorkbookClass.data());
    m_stream = gsf_outfile_new_child(m_root, "Workbook", false);
    Require(m_stream);
}

OleContainer::~OleContainer()
{
    Release();
    if (m_file)
        std::fclose(m_file);
}

void OleContainer::Write(std::string_view bytes)
{
    Require(gsf_output_write(m_stream, bytes.size(), BytesOf(bytes)));
}

void OleContainer::Overwrite(std::uint32_t position, std::string_view bytes)
{
    Require(gsf_output_seek(m_stream, position, G_SEEK_SET));
    Write(bytes);
    Require(gsf_output_seek(m_stream, 0, G_SEEK_END));
}

void OleContainer::Close()
{
    Require(Closed(m_stream));
    Require(Closed(GSF_OUTPUT(m_root)));
    Require(Closed(m_sink));
    Release();
    CloseFile();
}

void OleContainer::CloseFile()
{
    const bool failed = std::ferror(m_file) != 0;
    const bool closed = std::fclose(m_file) == 0;
    m_file = nullptr;
    Require(closed && !failed);
}

/// Whatever is not closed yet is closed first, since the library complains about objects that are dropped open.
void OleContainer::Release()
{
    for (GsfOutput* output : {m_stream, reinterpret_cast<GsfOutput*>(m_root), m_sink}) {
        if (!output)
            continue;
        Closed(output);
        g_object_unref(output);
    }
    m_stream = nullptr;
    m_root = nullptr;
    m_sink = nullptr;
}

void OleContainer::Require(bool success) const
{
    if (success)
        return;
    const int code = errno;
    throw Error(kFileNotWrittenError,
                QStringLiteral("%1: %2").arg(m_fileName, QString::fromLocal8Bit(std::strerror(code))), {}, code);
}

} // namespace schedules
