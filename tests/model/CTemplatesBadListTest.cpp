#include "model/Catalogue.h"
#include "support/BadXml.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr auto kUnreadable = "16|Schedules.CTemplates.CreateObjects|Missing: 1062|1062|\n";

struct CTemplatesBad : CatalogueFixture, ::testing::WithParamInterface<BadXml>
{
};

/// Blanks before a declaration are trimmed here.
std::vector<BadXml> BadLists()
{
    auto lists = BadDocuments("/nowhere");
    std::erase_if(lists, [](const BadXml& list) { return list.name == std::string("BlankBeforeTheDeclaration"); });
    return lists;
}

} // namespace

TEST_P(CTemplatesBad, AListThatCannotBeReadIsToldOnceAndChangesNothing)
{
    CreateFormer();
    QString list = GetParam().text;
    list.replace("TABLE", "Template").replace("<TR", "<Template name='A'");
    const bool isBlank = list.trimmed().isEmpty() && !list.contains('\n');
    EXPECT_FALSE(catalogue.CreateObjects(list, kCategories, folder.Path()));
    EXPECT_EQ(Seen(user), isBlank ? "" : kUnreadable);
    EXPECT_TRUE(HasFormer());
}

INSTANTIATE_TEST_SUITE_P(All, CTemplatesBad, ::testing::ValuesIn(BadLists()),
                         [](const auto& tested) { return std::string(tested.param.name); });
