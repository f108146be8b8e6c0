// The host's list of templates: the catalogue finds what it lists, and a list that is no XML changes nothing.

#include "common/XmlDocument.h"
#include "fuzz/Input.h"
#include "model/Catalogue.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

struct FilledCatalogue : CatalogueFixture
{
    void TestBody() override {}

    void Take(const QString& list)
    {
        CreateFormer();
        const bool isMade = catalogue.CreateObjects(list, kCategories, folder.Path());
        const bool isXml(XmlDocument::FromText(list));
        EXPECT_TRUE(isXml || (!isMade && HasFormer()));
        EXPECT_TRUE(isMade || !isXml || !user.boxes.empty());
        ExpectFound();
        ExpectSettled(list);
    }

private:
    /// Each template is found by its name, its place and its number, which are its own.
    void ExpectFound() const
    {
        int place = 0;
        for (const auto& listed : catalogue.NewEnum()) {
            EXPECT_EQ(listed->ID(), ++place);
            EXPECT_EQ(catalogue.Item(listed->Name()), listed);
            EXPECT_EQ(catalogue.Item(Position(place)), listed);
            EXPECT_EQ(catalogue.Template(place), listed);
            EXPECT_FALSE(listed->Name().isEmpty());
        }
        EXPECT_EQ(catalogue.Count(), place);
    }

    /// The same list again makes the same catalogue.
    void ExpectSettled(const QString& list)
    {
        const std::string once = Drawn();
        catalogue.CreateObjects(list, kCategories, folder.Path());
        EXPECT_EQ(Drawn(), once);
    }
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FilledCatalogue().Take(Input(data, size).Text());
    return 0;
}
