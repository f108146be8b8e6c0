#include "workbook/XlsxCheck.h"

#include "common/XmlReader.h"

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

bool EndsWhole(GsfInput* part)
{
    const std::string tail = TailOf(part);
    return std::ranges::any_of(kEnds, [&](std::string_view end) { return tail.ends_with(end); });
}

/// Whatever a document says.
class AnyContent : public XmlHandler
{
    void StartElement(const XmlStartTag&) override {}
    void EndElement(std::size_t) override {}
    void Text(std::string_view) override {}
    void OtherNode() override {}
};

/// Of a part that lacks something in its midst this is hardly ever so. A large sheet would take too long to read; its
/// cells are counted.
bool IsWellFormed(GsfInput* part)
{
    constexpr gsf_off_t kMostBytes = 4 * 1024 * 1024;
    const gsf_off_t size = gsf_input_size(part);
    if (size > kMostBytes)
        return true;
    QByteArray content(size, Qt::Uninitialized);
    AnyContent any;
    return !gsf_input_seek(part, 0, G_SEEK_SET) &&
           gsf_input_read(part, static_cast<std::size_t>(size), reinterpret_cast<guint8*>(content.data())) &&
           ReadXml(content, any);
}

bool IsWholePart(GsfInput* part)
{
    return EndsWhole(part) && IsWellFormed(part);
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

/// How often a text begins in a part.
qint64 CountOf(std::string_view text, GsfInput* part)
{
    constexpr gsf_off_t kChunk = 65536;
    qint64 count = 0;
    std::string read;
    while (gsf_input_remaining(part) > 0) {
        const auto size = static_cast<std::size_t>(std::min(gsf_input_remaining(part), kChunk));
        const guint8* bytes = gsf_input_read(part, size, nullptr);
        if (!bytes)
            break;
        read.append(reinterpret_cast<const char*>(bytes), size);
        for (std::size_t at = read.find(text); at != read.npos; at = read.find(text, at + text.size()))
            ++count;
        read.erase(0, read.size() - std::min(read.size(), text.size() - 1));
    }
    return count;
}

/// Texts of cells have no "<".
bool HasCells(GsfInfile* root, qint64 cells)
{
    const Input sheet(gsf_infile_child_by_vname(root, "xl", "worksheets", "sheet1.xml", nullptr));
    return sheet && CountOf("<c ", sheet.get()) == cells;
}

} // namespace

bool IsWholeXlsx(const QString& fileName, qint64 cells)
{
    gsf_init();
    const Input file(gsf_input_stdio_new(QFile::encodeName(fileName).constData(), nullptr));
    if (!file)
        return false;
    const Folder root(gsf_infile_zip_new(file.get(), nullptr));
    return root && gsf_infile_num_children(root.get()) > 0 && IsWholeFolder(root.get()) && HasCells(root.get(), cells);
}

} // namespace schedules
