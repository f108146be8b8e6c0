#include "workbook/OleContainer.h"

#include "common/FileReplacement.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <dlfcn.h>
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

/// GLib never forgets the types that the library registers with it. So its code has to stay when the component goes.
void KeepInProcess()
{
    Dl_info library;
    if (::dladdr(reinterpret_cast<const void*>(&gsf_init), &library) != 0)
        ::dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
}

bool Closed(GsfOutput* output)
{
    return gsf_output_is_closed(output) || gsf_output_close(output);
}

void CloseKeepingError(int handle)
{
    const int code = errno;
    ::close(handle);
    errno = code;
}

} // namespace

OleContainer::OleContainer(QFileDevice& file) : m_fileName(file.fileName())
{
    KeepInProcess();
    gsf_init();
    const int handle = ::dup(file.handle());
    Require(handle >= 0);
    m_file.reset(::fdopen(handle, "wb"));
    if (!m_file)
        CloseKeepingError(handle);
    Require(m_file != nullptr);
    m_sink.reset(gsf_output_stdio_new_FILE(m_fileName.toUtf8().constData(), m_file.get(), true));
    Require(m_sink != nullptr);
    m_root.reset(GSF_OUTPUT(gsf_outfile_msole_new(m_sink.get())));
    Require(m_root != nullptr);
    gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(m_root.get()), kWorkbookClass.data());
    m_stream.reset(gsf_outfile_new_child(GSF_OUTFILE(m_root.get()), "Workbook", false));
    Require(m_stream != nullptr);
}

void OleContainer::Write(std::string_view bytes)
{
    Require(gsf_output_write(m_stream.get(), bytes.size(), BytesOf(bytes)));
}

void OleContainer::Overwrite(std::uint32_t position, std::string_view bytes)
{
    Require(gsf_output_seek(m_stream.get(), position, G_SEEK_SET));
    Write(bytes);
    Require(gsf_output_seek(m_stream.get(), 0, G_SEEK_END));
}

void OleContainer::Close()
{
    for (Output* output : {&m_stream, &m_root, &m_sink}) {
        Require(Closed(output->get()));
        output->reset();
    }
    const bool failed = std::ferror(m_file.get()) != 0;
    const bool closed = std::fclose(m_file.release()) == 0;
    Require(closed && !failed);
}

void OleContainer::Release::operator()(GsfOutput* output) const
{
    Closed(output);
    g_object_unref(output);
}

void OleContainer::Require(bool success) const
{
    if (success)
        return;
    const int code = errno;
    throw Error(kFileNotWrittenError, QStringLiteral("%1: %2").arg(m_fileName, ReasonOf(code)), {}, code);
}

QString ReasonOf(int code)
{
    return code == 0 ? QStringLiteral("The file takes no more, and the system does not say why.")
                     : QString::fromLocal8Bit(std::strerror(code));
}

} // namespace schedules
