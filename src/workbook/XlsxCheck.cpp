#include "workbook/XlsxCheck.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <gsf/gsf.h>
#include <memory>
#include <string>

namespace schedules {

namespace {

struct Unreference
{
    template <class Object>
    void operator()(Object* object) const
    {
        g_object_unref(object);
    }
};

using Input = std::unique_ptr<GsfInput, Unreference>;
using Folder = std::unique_ptr<GsfInfile, Unreference>;

/// With these the parts of a workbook end.
constexpr std::array<std::string_view, 9> kEnds{
    "</Types>",      "</Relationships>", "</Properties>", "</cp:coreProperties>", "</workbook>", "</a:theme>",
    "</styleSheet>", "</worksheet>",     "</sst>"};

std::string TailOf(GsfInput* part)
{
    constexpr gsf_off_t kLongest = 64;
    const gsf_off_t size = std::min(gsf_input_size(part), kLongest);
    std::string tail(static_cast<std::size_t>(size), '\0');
    const bool isRead = !gsf_input_seek(part, gsf_input_size(part) - size, G_SEEK_SET) &&
                        gsf_input_read(part, tail.size(), reinterpret_cast<guint8*>(tail.data()));
    tail = isRead ? tail : std::string();
    return tail.substr(0, tail.find_last_not_of("\r\n") + 1);
}

bool IsWholePart(GsfInput* part)
{
    const std::string tail = TailOf(part);
    return std::ranges::any_of(kEnds, [&](std::string_view end) { return tail.ends_with(end); });
}

bool IsWholeFolder(GsfInfile* folder)
{
    for (int number = 0; number < gsf_infile_num_children(folder); ++number) {
        const Input part(gsf_infile_child_by_index(folder, number));
        if (!part)
            return false;
        const bool isFolder = GSF_IS_INFILE(part.get()) && gsf_infile_num_children(GSF_INFILE(part.get())) > 0;
        if (!(isFolder ? IsWholeFolder(GSF_INFILE(part.get())) : IsWholePart(part.get())))
            return false;
    }
    return true;
}

} // namespace

bool IsWholeXlsx(const QString& fileName)
{
    gsf_init();
    const Input file(gsf_input_stdio_new(QFile::encodeName(fileName).constData(), nullptr));
    if (!file)
        return false;
    const Folder root(gsf_infile_zip_new(file.get(), nullptr));
    return root && gsf_infile_num_children(root.get()) > 0 && IsWholeFolder(root.get());
}

} // namespace schedules
