// The reader of template files: what it reads comes back through its writer, whoever reads that, and what it cannot
// read changes nothing.

#include "common/XmlDocument.h"
#include "fuzz/Input.h"
#include "model/OtherReader.h"
#include "model/TemplatesFolder.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

/// A template and its file.
class ReadTemplate
{
public:
    explicit ReadTemplate(const QByteArray& file)
    {
        model.SetFilePath(Folder().Path());
        model.SetFilename(QStringLiteral("t.xml"));
        isRead = Read(file);
    }

    bool Read(const QByteArray& file)
    {
        Folder().Write(QStringLiteral("t.xml"), file);
        return model.XMLToObject();
    }

    ScriptedUserInterface user;
    CTemplate model{user};
    bool isRead = false;

private:
    static const TemplatesFolder& Folder()
    {
        static const TemplatesFolder folder;
        return folder;
    }
};

template <class Members>
bool HaveNames(const Members& members)
{
    return std::ranges::all_of(members.NewEnum(), [](const auto& member) {
        const auto name = member->Properties().Item("Name");
        return name && name->Name() == "Name";
    });
}

/// Whether the first of two attributes that differ in case alone has nowhere taken the place of a name, which is lost
/// then when the template is written.
bool HasNames(const CTemplate& model)
{
    return HaveNames(model.Groups()) && std::ranges::all_of(model.Groups().NewEnum(), [](const auto& group) {
               return HaveNames(group->Elements());
           });
}

void ExpectNothingChanged(const QByteArray& unreadable)
{
    ReadTemplate former("<Template><Group Name='Former'/></Template>");
    const std::string before = Drawn(former.model);
    EXPECT_FALSE(former.Read(unreadable));
    EXPECT_EQ(Drawn(former.model), before);
}

void ExpectToComeBack(const QString& written, const CTemplate& model)
{
    const ReadTemplate again(written.toUtf8());
    EXPECT_TRUE(again.isRead);
    EXPECT_EQ(Drawn(again.model), Drawn(model));
    EXPECT_EQ(OtherReader(written).Drawn(), Drawn(model));
    EXPECT_EQ(again.model.ObjectToXML(), written);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Input input(data, size);
    const ReadTemplate read(input.bytes);
    const XmlDocument document = XmlDocument::FromBytes(input.bytes);
    const bool hasTemplate(document.SelectOne(QStringLiteral("//Template")));
    if (!document)
        ExpectNothingChanged(input.bytes);
    EXPECT_EQ(read.isRead || read.model.ReadInPart(), hasTemplate);
    EXPECT_EQ(read.user.boxes.empty(), !read.model.ReadInPart());

    const QString written = read.model.ObjectToXML();
    // Prefixes that an outer element declares have no meaning without it, so such a template is not written.
    const bool isWhole = !written.isEmpty() || document.Root().Name() == QLatin1String("Template");
    if (isWhole && HasNames(read.model))
        ExpectToComeBack(written, read.model);
    return 0;
}
